# Address and undefined-behaviour checks for the whole tree; the first finding ends the program.
if(LENSBENCH_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
# Fuzz targets stand on the same checks; what they reach is counted in everything that they call.
if(LENSBENCH_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
# Counters for tests/coverage.sh.
if(LENSBENCH_COVERAGE)
  add_compile_options(--coverage -fno-inline)
  add_link_options(--coverage)
endif()
