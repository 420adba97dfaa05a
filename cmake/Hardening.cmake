# What every target is compiled and linked with so that a slip in memory ends the program and is of
# no use to anyone: an address space that is laid out anew at each start, tables that nothing can
# write once the program runs, guarded stacks, and checked calls of the C library.
include(CheckCXXCompilerFlag)

# The toolkit asks for -fPIC on top, under which a compiler expects any function to be replaced from
# outside and inlines none; nothing is ever replaced in a program.
add_compile_options(-fPIE -fno-semantic-interposition -fstack-protector-strong)
add_link_options(-pie LINKER:-z,relro LINKER:-z,now)

# Not known to every compiler on every processor.
check_cxx_compiler_flag(-fstack-clash-protection LENSBENCH_STACK_CLASH_PROTECTION)
if(LENSBENCH_STACK_CLASH_PROTECTION)
  add_compile_options(-fstack-clash-protection)
endif()

# The checks need the optimiser, and the sanitizers bring their own. Some compilers define a level by
# themselves, which must not be defined twice.
if(NOT LENSBENCH_SANITIZE)
  set(fortified "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")
  add_compile_options("$<${fortified}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>")
endif()
