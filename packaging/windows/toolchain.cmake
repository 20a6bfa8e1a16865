# Debian's compiler for 64-bit Windows, with threads of the C++ standard library. GLANZGRUBE_QT is
# the folder of a static Qt that was built with it; see scripts/windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ZIEL x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ZIEL}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZIEL}-g++-posix)
set(CMAKE_RC_COMPILER ${ZIEL}-windres)
# The compiler's libraries are linked statically.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_EXE_LINKER_FLAGS_MINSIZEREL_INIT -s)

# Libraries and headers come from the target, programs from this machine.
set(CMAKE_FIND_ROOT_PATH /usr/${ZIEL} ${GLANZGRUBE_QT})
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES GLANZGRUBE_QT)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
