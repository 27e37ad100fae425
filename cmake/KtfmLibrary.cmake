# The library: compiled once into objects, from which both the shared library that hosts link and the static
# one that the tests of internal parts link are made.

add_library(ktfm_objects OBJECT)
ktfm_compile_settings(ktfm_objects)
target_compile_definitions(ktfm_objects PRIVATE KTFileManager2QU_EXPORTS)
target_include_directories(ktfm_objects
  PUBLIC ${KTFM_PUBLIC_INCLUDE_DIR} ${KTFM_GENERATED_INCLUDE_DIR} ${PROJECT_SOURCE_DIR})
target_include_directories(ktfm_objects SYSTEM PRIVATE ${SIMPLEINI_INCLUDE_DIR})
target_link_libraries(ktfm_objects PUBLIC Qt5::Widgets)

file(GLOB ktfm_public_headers CONFIGURE_DEPENDS ${KTFM_PUBLIC_INCLUDE_DIR}/KTFileManager2QU/*.h)
target_sources(ktfm_objects PRIVATE ${ktfm_public_headers})
add_subdirectory(ini)
add_subdirectory(models)
add_subdirectory(views)
add_subdirectory(widget)

add_library(KTFileManager2QU SHARED $<TARGET_OBJECTS:ktfm_objects>)
add_library(KTFileManager2QU::KTFileManager2QU ALIAS KTFileManager2QU)
target_compile_features(KTFileManager2QU PUBLIC cxx_std_17)
target_include_directories(KTFileManager2QU INTERFACE
  $<BUILD_INTERFACE:${KTFM_PUBLIC_INCLUDE_DIR}>
  $<BUILD_INTERFACE:${KTFM_GENERATED_INCLUDE_DIR}>
  $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_link_libraries(KTFileManager2QU PUBLIC Qt5::Widgets)
set_target_properties(KTFileManager2QU PROPERTIES
  AUTOMOC OFF
  LINKER_LANGUAGE CXX
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR})
if(WIN32)
  # One name from all compilers; MinGW's would begin with "lib".
  set_target_properties(KTFileManager2QU PROPERTIES PREFIX "")
endif()

include(GenerateExportHeader)
generate_export_header(KTFileManager2QU
  EXPORT_MACRO_NAME KTFM_EXPORT
  NO_EXPORT_MACRO_NAME KTFM_NO_EXPORT
  DEPRECATED_MACRO_NAME KTFM_DEPRECATED
  STATIC_DEFINE KTFM_STATIC_DEFINE
  EXPORT_FILE_NAME ${KTFM_GENERATED_INCLUDE_DIR}/KTFileManager2QU/KTFMExport.h)

# For tests, benchmarks and fuzzers, which reach internal parts as well; never installed.
add_library(ktfm_internals STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:ktfm_objects>)
set_target_properties(ktfm_internals PROPERTIES AUTOMOC OFF LINKER_LANGUAGE CXX)
target_compile_features(ktfm_internals PUBLIC cxx_std_17)
target_compile_definitions(ktfm_internals INTERFACE KTFM_STATIC_DEFINE)
target_include_directories(ktfm_internals INTERFACE
  ${KTFM_PUBLIC_INCLUDE_DIR} ${KTFM_GENERATED_INCLUDE_DIR} ${PROJECT_SOURCE_DIR})
target_link_libraries(ktfm_internals PUBLIC Qt5::Widgets)
