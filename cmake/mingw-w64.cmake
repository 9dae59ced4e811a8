# Cross-build for Windows with Debian's mingw-w64; the programs run under Wine, each build with a prefix of its own.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(T x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${T}-gcc-posix)
set(CMAKE_CXX_COMPILER ${T}-g++-posix)
set(CMAKE_RC_COMPILER ${T}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${T})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CXX_FLAGS_INIT "-DUNICODE -D_UNICODE -DNOMINMAX -D_WIN32_WINNT=0x0A00 -ffunction-sections -fdata-sections")
# Without -static the program dies silently where the compiler's DLLs are missing; no time stamp: two links are identical.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s -Wl,--gc-sections -Wl,--no-insert-timestamp")
set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_COMMAND} -E env WINEPREFIX=${CMAKE_BINARY_DIR}/wp WINEDEBUG=-all "WINEDLLOVERRIDES=mscoree,mshtml="
    /usr/lib/wine/wine64)
