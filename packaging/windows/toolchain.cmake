# Debian's compiler for 64-bit Windows, with threads of the C++ standard library.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ZIEL x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ZIEL}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZIEL}-g++-posix)
set(CMAKE_RC_COMPILER ${ZIEL}-windres)

# Libraries and headers come from the target, programs from this machine.
set(CMAKE_FIND_ROOT_PATH /usr/${ZIEL})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
