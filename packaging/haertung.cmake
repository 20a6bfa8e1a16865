# What a program that players get does against faults of memory, and that its bytes do not depend on
# the folder of the build. The builds for work on the code go without it.
set(AUSGABE $<CONFIG:Release,MinSizeRel>)
add_compile_options($<${AUSGABE}:-fstack-protector-strong>
  $<${AUSGABE}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>
  $<${AUSGABE}:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>)

if(WIN32)
  add_link_options($<${AUSGABE}:-fstack-protector-strong>
    $<${AUSGABE}:-Wl,--dynamicbase,--high-entropy-va,--nxcompat,--no-insert-timestamp>)
  return()
endif()

include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_link_options($<${AUSGABE}:LINKER:-z,relro,-z,now>)
# Some compilers bring a level of their own, which must not be set twice.
add_compile_options($<${AUSGABE}:-U_FORTIFY_SOURCE> $<${AUSGABE}:-D_FORTIFY_SOURCE=3>)
