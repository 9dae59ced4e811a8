# The Debian packages that each job needs; sourced by the scripts.

# To build the program with its window and the pages of the codes.
PAKETE_BAU="g++ cmake ninja-build qt6-base-dev libxcb1-dev python3 python3-markdown"

# The tests besides.
PAKETE_TEST="$PAKETE_BAU libgtest-dev libxml2-utils python3-pytest"

# The slower checks besides: clang, the Windows build, Wine, a display without a screen, and a browser for the pages.
PAKETE_CI="$PAKETE_TEST git ccache clang clang-tidy clang-format googletest g++-mingw-w64-x86-64-posix wine64 fonts-wine
xvfb xdotool openbox chromium nodejs pngquant emscripten firefox-esr"

# The page that tests in a browser.
PAKETE_WEB="cmake ninja-build python3 python3-markdown emscripten nodejs"

# Other publishers' Node.js brings npm along, and Debian's npm would not install beside it.
command -v npm >/dev/null || PAKETE_CI="$PAKETE_CI npm"
