# Headers that are parsed once for many sources: parsing Qt's takes three quarters of a small source's compilation.
# The sources include what they use all the same; the check of style compiles them without.
set(CMAKE_PCH_WARN_INVALID OFF)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT VELK_SANITIZE)
  set(VELK_PARSES_HEADERS_ONCE ON)
  # Without it ccache cannot tell what a precompiled header holds.
  set(VELK_PARSED_HEADERS_OPTIONS -fpch-preprocess)
endif()

# velk_parse_once(<target> <header...>)
function(velk_parse_once target)
  if(NOT VELK_PARSES_HEADERS_ONCE)
    return()
  endif()
  target_precompile_headers(${target} PRIVATE <functional> <memory> <string> <vector> ${ARGN})
  target_compile_options(${target} PRIVATE ${VELK_PARSED_HEADERS_OPTIONS})
endfunction()

# velk_compile_quickly(<source...>)
# For what runs once at the start and instantiates a whole library's templates: half the compilation.
function(velk_compile_quickly)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-O1>)
endfunction()
