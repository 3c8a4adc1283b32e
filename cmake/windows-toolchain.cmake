# 64-bit Windows from Debian: MinGW-w64 with the posix thread model, programs run under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triple x86_64-w64-mingw32)
find_program(QUORVAN_WINDOWS_CC NAMES ${triple}-gcc-posix ${triple}-gcc REQUIRED)
find_program(QUORVAN_WINDOWS_CXX NAMES ${triple}-g++-posix ${triple}-g++ REQUIRED)
set(CMAKE_C_COMPILER ${QUORVAN_WINDOWS_CC})
set(CMAKE_CXX_COMPILER ${QUORVAN_WINDOWS_CXX})
find_program(QUORVAN_WINDOWS_RC NAMES ${triple}-windres)
set(CMAKE_RC_COMPILER ${QUORVAN_WINDOWS_RC})

# The plain name stands for a script that looks for a 32-bit Wine too.
find_program(QUORVAN_WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(QUORVAN_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${QUORVAN_WINE})
endif()

set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
