# The version is the project's; its date is what the change log says.
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md releases REGEX "^## ")
list(GET releases 0 newest)
if(NOT newest MATCHES "^## ([0-9.]+), ([0-9]+-[0-9]+-[0-9]+)$" OR
   NOT CMAKE_MATCH_1 VERSION_EQUAL PROJECT_VERSION)
  message(FATAL_ERROR "CHANGELOG.md begins with \"${newest}\"; the project's version is ${PROJECT_VERSION}")
endif()
set(VELK_RELEASE_DATE ${CMAKE_MATCH_2})
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
