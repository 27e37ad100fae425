# Cross-builds for 64-bit Windows by MinGW-w64 (Debian: g++-mingw-w64-x86-64-posix) against the Qt that
# scripts/windows/build-qt provides. KTFM_WINDOWS_QT, a variable of CMake or of the environment, names the
# folder of another one.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# With the threads of POSIX, which std::thread and Qt want.
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(NOT KTFM_WINDOWS_QT)
  if(DEFINED ENV{KTFM_WINDOWS_QT})
    set(KTFM_WINDOWS_QT $ENV{KTFM_WINDOWS_QT})
  elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(KTFM_WINDOWS_QT $ENV{XDG_CACHE_HOME}/ktfilemanager2qu/qt5-mingw64)
  else()
    set(KTFM_WINDOWS_QT $ENV{HOME}/.cache/ktfilemanager2qu/qt5-mingw64)
  endif()
endif()
set(KTFM_WINDOWS_QT ${KTFM_WINDOWS_QT} CACHE PATH "Folder of the Qt for Windows")
# CMake's own tries at the compiler are configured with this file as well.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KTFM_WINDOWS_QT)

# Programs are the building machine's, moc among them; all else is found for Windows or not at all.
set(CMAKE_FIND_ROOT_PATH ${KTFM_WINDOWS_QT} /usr/x86_64-w64-mingw32)
set(CMAKE_PREFIX_PATH ${KTFM_WINDOWS_QT} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Runs what was built, tests above all, under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../scripts/windows/run)
