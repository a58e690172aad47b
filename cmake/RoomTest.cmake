# Tests wait for their compilation longer than for themselves.
set(VELK_TEST_OPTIONS $<$<CONFIG:Release>:-Og> ${VELK_PARSED_HEADERS_OPTIONS})

# velk_test_headers(<name> LINK <target...> HEADERS <header...>)
# Parses headers once for all tests that are compiled as this says. Parsing GoogleTest takes half of a small
# test's compilation, and Qt takes more.
function(velk_test_headers name)
  cmake_parse_arguments(TEST "" "" "LINK;HEADERS" ${ARGN})
  if(TARGET ${name} OR NOT VELK_PARSES_HEADERS_ONCE)
    return()
  endif()
  set(main ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${main} CONTENT "int main() {}\n")
  add_executable(${name} ${main})
  target_link_libraries(${name} PRIVATE ${TEST_LINK} GTest::gmock GTest::gtest_main velk_warnings)
  target_compile_options(${name} PRIVATE ${VELK_TEST_OPTIONS})
  target_precompile_headers(${name} PRIVATE
    <gmock/gmock.h> <gtest/gtest.h> <functional> <memory> <string> <vector> ${TEST_HEADERS})
endfunction()

velk_test_headers(velk_test_headers)

# velk_test(<name> LABELS <room...> SOURCES <file...> LINK <target...> [AS_PRODUCT]
#           [PARSED <target>] [TOGETHER <suite...>] [PROPERTIES <ctest properties...>])
# One small GoogleTest program; every test of it carries the rooms' labels. AS_PRODUCT compiles it with the
# products' options, where g++ 12 warns of what is not there at -Og. PARSED names other headers than the usual, or
# "nothing" where the options are those of no other test.
# Every test is a process of its own, but for the suites of TOGETHER, which prepare something at length for all of
# their tests.
# Programs with tests that take seconds say so by the property COST: those start first, so that none is left to
# run alone at the end.
function(velk_test name)
  cmake_parse_arguments(TEST "AS_PRODUCT" "PARSED" "LABELS;SOURCES;LINK;TOGETHER;PROPERTIES" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LINK} GTest::gmock GTest::gtest_main velk_warnings)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  if(NOT TEST_AS_PRODUCT)
    target_compile_options(${name} PRIVATE ${VELK_TEST_OPTIONS})
    if(NOT TEST_PARSED)
      set(TEST_PARSED velk_test_headers)
    endif()
    if(TARGET ${TEST_PARSED})
      target_precompile_headers(${name} REUSE_FROM ${TEST_PARSED})
    endif()
  endif()
  list(TRANSFORM TEST_TOGETHER APPEND ".*" OUTPUT_VARIABLE together)
  foreach(suite IN LISTS together)
    add_test(NAME "${name}: ${suite}" COMMAND ${name} --gtest_filter=${suite})
    set_tests_properties("${name}: ${suite}" PROPERTIES LABELS "${TEST_LABELS}" TIMEOUT 120 ${TEST_PROPERTIES})
  endforeach()
  set(apart)
  if(together)
    list(JOIN together ":" joined)
    set(apart TEST_FILTER "-${joined}")
  endif()
  gtest_discover_tests(${name} ${apart}
    TEST_PREFIX "${name}: "
    NO_PRETTY_VALUES
    DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 120 ${TEST_PROPERTIES})
  # The discovery would take a list apart, so the labels are set when ctest reads the tests.
  set(labels ${CMAKE_CURRENT_BINARY_DIR}/${name}_labels.cmake)
  file(CONFIGURE OUTPUT ${labels} @ONLY CONTENT
    "foreach(test IN LISTS @name@_TESTS)
  set_tests_properties(\"\${test}\" PROPERTIES LABELS \"@TEST_LABELS@\")
endforeach()
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${labels})
endfunction()
