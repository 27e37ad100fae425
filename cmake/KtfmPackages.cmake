# The packages that CPack makes. Here stands what holds for all of them and the package of the sources; what one
# kind of package needs besides stands in a file of its own.

if(NOT KTFM_IS_TOP_LEVEL)
  return() # a host makes its own packages
endif()

# A packager's own address goes here; it stands in the packages as the one to write to.
set(KTFM_PACKAGE_CONTACT "The KTFileManager2QU developers <developers@ktfilemanager2qu.example>"
  CACHE STRING "Name and address of who answers for the packages")
set(CPACK_PACKAGE_NAME KTFileManager2QU)
set(CPACK_PACKAGE_VENDOR "The KTFileManager2QU developers")
set(CPACK_PACKAGE_CONTACT "${KTFM_PACKAGE_CONTACT}")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)

# Sources: all that is kept, nothing that was built.
set(CPACK_SOURCE_GENERATOR TGZ ZIP)
set(CPACK_SOURCE_PACKAGE_FILE_NAME KTFileManager2QU-${PROJECT_VERSION})
set(CPACK_SOURCE_IGNORE_FILES "/[.]git(/|$)" "/build(-[^/]*)?/" "/[.]cache/" "[.]user$" "/CMakeUserPresets[.]json$")

# The kinds of packages, by the system that they are for.
if(UNIX AND NOT APPLE)
  include(cmake/KtfmDebianPackages.cmake)
elseif(WIN32)
  include(cmake/KtfmWindowsPackage.cmake)
endif()
include(CPack)
