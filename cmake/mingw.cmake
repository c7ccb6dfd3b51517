# Included by mingw32.cmake and mingw64.cmake, which set `triplet`.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)
list(APPEND CMAKE_FIND_ROOT_PATH /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# What is built runs on a machine without the compiler's DLLs.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
