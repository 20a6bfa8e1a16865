# Compiler hardening, and paths in the program that do not depend on the build folder. On Linux both come
# from the flags of the distribution.
add_compile_options(-fstack-protector-strong -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
  -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
add_link_options(-fstack-protector-strong
  -Wl,--dynamicbase,--high-entropy-va,--nxcompat,--no-insert-timestamp)
