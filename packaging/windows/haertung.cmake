# What a program that players get does against faults of memory, and that its bytes do not depend on
# the folder of the build. On Linux both come from the flags of the distribution.
add_compile_options(-fstack-protector-strong -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
  -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
add_link_options(-fstack-protector-strong
  -Wl,--dynamicbase,--high-entropy-va,--nxcompat,--no-insert-timestamp)
