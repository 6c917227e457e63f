# Builds for 64-bit Windows with Debian's mingw-w64, and runs what was built under Wine.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# Large tables of tests have more sections than an object file otherwise may.
set(CMAKE_CXX_FLAGS_INIT "-Wa,-mbig-obj")

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

find_program(WINE_PROGRAM NAMES wine wine64)
if(WINE_PROGRAM)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE_PROGRAM})
endif()
