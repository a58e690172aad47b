# velk_test(<name> LABELS <room...> SOURCES <file...> LINK <target...> [PROPERTIES <ctest properties...>])
# One small GoogleTest program; every test of it carries the rooms' labels.
function(velk_test name)
  cmake_parse_arguments(TEST "" "" "LABELS;SOURCES;LINK;PROPERTIES" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LINK} GTest::gmock GTest::gtest_main velk_warnings)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  gtest_discover_tests(${name}
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
