# What `cmake --install` puts below the prefix: library, translations, public headers, CMake package and pkg-config
# file.

include(CMakePackageConfigHelpers)
set(ktfm_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/KTFileManager2QU)

install(TARGETS KTFileManager2QU EXPORT KTFileManager2QUTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(DIRECTORY ${KTFM_PUBLIC_INCLUDE_DIR}/KTFileManager2QU
                  ${KTFM_GENERATED_INCLUDE_DIR}/KTFileManager2QU
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development FILES_MATCHING PATTERN "*.h")
install(EXPORT KTFileManager2QUTargets NAMESPACE KTFileManager2QU::
  DESTINATION ${ktfm_cmake_dir} COMPONENT development)

set(ktfm_translations_dir ${CMAKE_INSTALL_DATADIR}/KTFileManager2QU/translations)
if(KTFM_BUILD_TRANSLATIONS)
  install(FILES ${KTFM_QM_FILES} DESTINATION ${ktfm_translations_dir} COMPONENT runtime)
endif()

configure_package_config_file(cmake/KTFileManager2QUConfig.cmake.in
  ${PROJECT_BINARY_DIR}/KTFileManager2QUConfig.cmake INSTALL_DESTINATION ${ktfm_cmake_dir}
  PATH_VARS ktfm_translations_dir)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KTFileManager2QUConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KTFileManager2QUConfig.cmake
              ${PROJECT_BINARY_DIR}/KTFileManager2QUConfigVersion.cmake
  DESTINATION ${ktfm_cmake_dir} COMPONENT development)

# The prefix is told by the place of the pkg-config file itself, so that the installed tree may be moved and
# `cmake --install --prefix` needs no new configuration; a distribution may give absolute folders instead.
foreach(kind LIB INCLUDE DATA)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${kind}DIR}")
    set(KTFM_PC_${kind}DIR "${CMAKE_INSTALL_${kind}DIR}")
  else()
    set(KTFM_PC_${kind}DIR "\${prefix}/${CMAKE_INSTALL_${kind}DIR}")
  endif()
endforeach()
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(KTFM_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
  file(RELATIVE_PATH KTFM_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  string(REGEX REPLACE "/$" "" KTFM_PC_PREFIX "\${pcfiledir}/${KTFM_PC_PREFIX}")
endif()
configure_file(cmake/KTFileManager2QU.pc.in ${PROJECT_BINARY_DIR}/KTFileManager2QU.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/KTFileManager2QU.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
