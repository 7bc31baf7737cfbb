# apmqdf-warnings: link it PRIVATE, and every warning in the target's own code ends the build.

add_library(apmqdf-warnings INTERFACE)
target_compile_options(apmqdf-warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
