# One set of warnings for every target and both compilers.
add_library(lensbench_warnings INTERFACE)
target_compile_options(lensbench_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(LENSBENCH_WERROR)
  target_compile_options(lensbench_warnings INTERFACE -Werror)
endif()
link_libraries(lensbench_warnings)
