# The Debian packages: libktfilemanager2qu1, which programs run with, and libktfilemanager2qu-dev, which they
# are built with. scripts/make-packages configures a build for them.

set(KTFM_DEBIAN_REVISION 1 CACHE STRING "The part of a Debian package's version that counts its makings")
set(ktfm_runtime_package libktfilemanager2qu${PROJECT_VERSION_MAJOR})
set(ktfm_development_package libktfilemanager2qu-dev)
set(ktfm_package_version ${PROJECT_VERSION}-${KTFM_DEBIAN_REVISION})

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
# Each package is a group of two components: what every installation gets, and what only Debian asks for.
set(CPACK_COMPONENTS_ALL runtime runtime_debian development development_debian)
set(CPACK_COMPONENT_RUNTIME_GROUP runtime)
set(CPACK_COMPONENT_RUNTIME_DEBIAN_GROUP runtime)
set(CPACK_COMPONENT_DEVELOPMENT_GROUP development)
set(CPACK_COMPONENT_DEVELOPMENT_DEBIAN_GROUP development)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${KTFM_PACKAGE_CONTACT}")
set(CPACK_DEBIAN_PACKAGE_RELEASE ${KTFM_DEBIAN_REVISION})
set(CPACK_DEBIAN_PACKAGE_SOURCE ktfilemanager2qu)
# What a program that is linked against the library depends on.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# CPack would put it before each package's own first line.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
# Whatever the umask of who makes the packages.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${ktfm_runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "embeddable file-manager pane for Qt Widgets
Applications that show a folder tree, thumbnails and details of files inside
their own windows are built on this library. It lists large folders fast,
gives files friendly names from INI files and never overwrites unasked.
.
This package holds the shared library and its translations.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${ktfm_development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${ktfm_runtime_package} (= ${ktfm_package_version}), qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "embeddable file-manager pane for Qt Widgets - development files
Applications that show a folder tree, thumbnails and details of files inside
their own windows are built on this library. It lists large folders fast,
gives files friendly names from INI files and never overwrites unasked.
.
This package holds the headers, what CMake and pkg-config need to find the
library, the guides and the sources of the example hosts.")

# Debian asks for its own form of licence and changes, packed, in a folder of each package.
set(ktfm_debian_dir ${PROJECT_BINARY_DIR}/debian)
file(MAKE_DIRECTORY ${ktfm_debian_dir})
# Now, or the moment that SOURCE_DATE_EPOCH names.
string(TIMESTAMP KTFM_PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(cmake/debian/changelog.in ${ktfm_debian_dir}/changelog.Debian @ONLY)
configure_file(CHANGELOG.md ${ktfm_debian_dir}/changelog COPYONLY)
find_program(KTFM_GZIP gzip DOC "gzip, which packs the changes of the Debian packages")
if(KTFM_GZIP)
  execute_process(COMMAND ${KTFM_GZIP} --best --no-name --force --keep
    ${ktfm_debian_dir}/changelog.Debian ${ktfm_debian_dir}/changelog)
endif()
foreach(component runtime development)
  install(FILES cmake/debian/copyright ${ktfm_debian_dir}/changelog.Debian.gz ${ktfm_debian_dir}/changelog.gz
    DESTINATION share/doc/${ktfm_${component}_package} COMPONENT ${component}_debian EXCLUDE_FROM_ALL)
endforeach()
install(DIRECTORY docs examples DESTINATION share/doc/${ktfm_development_package}
  COMPONENT development_debian EXCLUDE_FROM_ALL REGEX "/docs/(CMakeLists.txt|Doxyfile.in)$" EXCLUDE)
