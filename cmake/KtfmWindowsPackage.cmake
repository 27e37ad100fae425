# The package for Windows, a ZIP: the DLL with its import library, the headers and the CMake files, laid out as
# `cmake --install` does below its prefix. `cpack` in the build folder makes it.

set(CPACK_GENERATOR ZIP)
# Libraries of different compilers cannot be linked with each other.
if(MINGW)
  set(ktfm_compiler mingw)
else()
  set(ktfm_compiler msvc)
endif()
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-windows-x64-${ktfm_compiler})
set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_BINARY_DIR}/packages)
# One archive with everything, in a folder of its own name.
set(CPACK_MONOLITHIC_INSTALL ON)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)

install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION . COMPONENT runtime)
