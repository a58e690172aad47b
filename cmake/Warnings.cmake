# A newer compiler may warn of what is right; that must stop who works on the project, not who only builds it.
option(VELK_WARNINGS_AS_ERRORS "Stop at the first warning" OFF)
add_library(velk_warnings INTERFACE)
target_compile_options(velk_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion
  $<$<BOOL:${VELK_WARNINGS_AS_ERRORS}>:-Werror>)
