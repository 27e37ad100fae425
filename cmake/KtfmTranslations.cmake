# The catalogues in translations/, built into the files that QTranslator loads. Qt's own CMake package for its
# translation tools is not used: a Qt for another system than the building one has none, and needs none, as
# the tool that counts is the building machine's.

if(TARGET Qt5::qmake)
  get_target_property(ktfm_qmake Qt5::qmake IMPORTED_LOCATION)
  get_filename_component(ktfm_qt_bin_dir "${ktfm_qmake}" DIRECTORY)
endif()
# What Debian has in the path runs the tool of whichever Qt is chosen there, which may be none.
find_program(KTFM_LRELEASE NAMES lrelease lrelease-qt5 HINTS ${ktfm_qt_bin_dir} /usr/lib/qt5/bin
  NO_CMAKE_FIND_ROOT_PATH DOC "Qt's lrelease, which builds the translations")
if(KTFM_LRELEASE)
  set(KTFM_HAS_LRELEASE ON)
else()
  set(KTFM_HAS_LRELEASE OFF)
  message(STATUS "lrelease is not found (Debian: qttools5-dev-tools): the library speaks English alone")
endif()
option(KTFM_BUILD_TRANSLATIONS "Build the translations (needs Qt's lrelease)" ${KTFM_HAS_LRELEASE})

if(KTFM_BUILD_TRANSLATIONS)
  if(NOT KTFM_HAS_LRELEASE)
    message(FATAL_ERROR "KTFM_BUILD_TRANSLATIONS needs lrelease: install it or set KTFM_LRELEASE to its path")
  endif()
  set(KTFileManager2QU_TRANSLATIONS_DIR ${PROJECT_BINARY_DIR}/translations)
  if(NOT KTFM_IS_TOP_LEVEL)
    # As find_package tells it to a host.
    set(KTFileManager2QU_TRANSLATIONS_DIR ${KTFileManager2QU_TRANSLATIONS_DIR} PARENT_SCOPE)
  endif()
  file(MAKE_DIRECTORY ${KTFileManager2QU_TRANSLATIONS_DIR})
  file(GLOB ktfm_catalogues CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/*.ts)
  foreach(catalogue IN LISTS ktfm_catalogues)
    get_filename_component(name ${catalogue} NAME_WE)
    set(qm_file ${KTFileManager2QU_TRANSLATIONS_DIR}/${name}.qm)
    add_custom_command(OUTPUT ${qm_file}
      COMMAND ${KTFM_LRELEASE} -silent -nounfinished ${catalogue} -qm ${qm_file}
      DEPENDS ${catalogue} VERBATIM)
    list(APPEND KTFM_QM_FILES ${qm_file})
  endforeach()
  add_custom_target(ktfm_translations ALL DEPENDS ${KTFM_QM_FILES})
endif()
