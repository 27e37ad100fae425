# Finds the header of SimpleIni, which is all that is used of it: SIMPLEINI_INCLUDE_DIR.

find_path(SIMPLEINI_INCLUDE_DIR SimpleIni.h DOC "Folder that holds SimpleIni.h")

# The header is the same for every system, so a cross-build may use the building machine's: a copy of it, because
# the folder where it lies holds that machine's other headers too.
if(NOT SIMPLEINI_INCLUDE_DIR AND CMAKE_CROSSCOMPILING)
  find_file(SIMPLEINI_HEADER_OF_HOST SimpleIni.h PATHS /usr/include /usr/local/include NO_CMAKE_FIND_ROOT_PATH)
  mark_as_advanced(SIMPLEINI_HEADER_OF_HOST)
  if(SIMPLEINI_HEADER_OF_HOST)
    file(COPY ${SIMPLEINI_HEADER_OF_HOST} DESTINATION ${PROJECT_BINARY_DIR}/simpleini)
    set(SIMPLEINI_INCLUDE_DIR ${PROJECT_BINARY_DIR}/simpleini)
  endif()
endif()

if(NOT SIMPLEINI_INCLUDE_DIR)
  message(FATAL_ERROR "SimpleIni.h is not found: install it (Debian: libsimpleini-dev) or set SIMPLEINI_INCLUDE_DIR")
endif()
