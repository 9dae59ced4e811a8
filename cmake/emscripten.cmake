# Debian's emscripten, whose own file knows the rest.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
