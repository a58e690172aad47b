add_library(velk_warnings INTERFACE)
target_compile_options(velk_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
