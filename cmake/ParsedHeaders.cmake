# Headers that are parsed once for many sources: parsing takes half to three quarters of a small source's
# compilation. The sources include what they use all the same; the check of style compiles them without.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT VELK_SANITIZE)
  set(VELK_PARSES_HEADERS_ONCE ON)
  # Without it ccache cannot tell what a precompiled header holds.
  set(VELK_PARSED_HEADERS_OPTIONS -fpch-preprocess)
endif()
# A precompiled header that a source cannot use, because an option differs, costs time and is otherwise not noticed.
set(CMAKE_PCH_WARN_INVALID ${VELK_WARNINGS_AS_ERRORS})

set(VELK_STANDARD_HEADERS
  <algorithm> <array> <atomic> <chrono> <cmath> <cstdint> <filesystem> <functional> <memory> <mutex> <optional>
  <string> <string_view> <thread> <utility> <vector>)

# velk_parse_once(<target> [<header...>|<other target>])
# Parses the standard library once for all targets that name no headers and are compiled with the usual options;
# once more for a target that names what else most of its sources include. Naming such a target shares its headers.
function(velk_parse_once target)
  if(NOT VELK_PARSES_HEADERS_ONCE)
    return()
  endif()
  target_compile_options(${target} PRIVATE ${VELK_PARSED_HEADERS_OPTIONS})
  if(TARGET "${ARGN}")
    target_precompile_headers(${target} REUSE_FROM ${ARGN})
    return()
  endif()
  if(ARGN)
    set(headers ${VELK_STANDARD_HEADERS} ${ARGN})
    # Objective-C by itself has none of these.
    list(TRANSFORM headers REPLACE "^(.*)>$" "$<$<NOT:$<COMPILE_LANGUAGE:OBJC>>:\\1$<ANGLE-R>>")
    target_precompile_headers(${target} PRIVATE ${headers})
    return()
  endif()
  if(NOT TARGET velk_standard_headers)
    set(source ${CMAKE_BINARY_DIR}/velk_standard_headers.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "namespace {}\n")
    add_library(velk_standard_headers OBJECT ${source})
    target_link_libraries(velk_standard_headers PRIVATE velk_warnings)
    target_compile_options(velk_standard_headers PRIVATE ${VELK_PARSED_HEADERS_OPTIONS})
    target_precompile_headers(velk_standard_headers PRIVATE ${VELK_STANDARD_HEADERS})
  endif()
  target_precompile_headers(${target} REUSE_FROM velk_standard_headers)
endfunction()

# velk_compile_quickly(<source...>)
# For what runs once and instantiates a whole library's templates: half the compilation.
function(velk_compile_quickly)
  set_source_files_properties(${ARGN} PROPERTIES
    COMPILE_OPTIONS $<$<CONFIG:Release>:-O1>
    SKIP_PRECOMPILE_HEADERS ON)
endfunction()
