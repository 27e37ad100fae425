# How this project's own code is compiled. None of it reaches the targets of a host.

option(KTFM_WARNINGS_AS_ERRORS "Treat warnings as errors (set by the developers' presets)" OFF)

# The strict dialect of Qt that all our code is written in: no implicit conversions between byte strings and
# text, no macros named like ordinary words.
set(KTFM_QT_DEFINITIONS
    QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING)

function(ktfm_compile_settings target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  target_compile_definitions(${target} PRIVATE ${KTFM_QT_DEFINITIONS})
  # Said as a standard too, so that the flag stands in every command: Clang's tools read commands that were
  # made for another compiler, and their own default is older.
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 17
    CXX_STANDARD_REQUIRED ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /utf-8 /permissive-)
    if(KTFM_WARNINGS_AS_ERRORS)
      target_compile_options(${target} PRIVATE /WX)
    endif()
  else()
    target_compile_options(${target} PRIVATE
      -Wall -Wextra -Wshadow -Wconversion -Woverloaded-virtual -Wundef)
    if(KTFM_WARNINGS_AS_ERRORS)
      target_compile_options(${target} PRIVATE -Werror)
    endif()
  endif()
endfunction()
