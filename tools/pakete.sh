# The Debian packages that each job needs; sourced by the scripts.

# To build the program with its window and the pages of the codes.
PAKETE_BAU="g++ cmake ninja-build qt6-base-dev libxcb1-dev python3 python3-markdown"

# The page that tests in a browser.
PAKETE_WEB="cmake ninja-build python3 python3-markdown emscripten nodejs"

# The packages besides: CPack finds the libraries that a program needs by Debian's tools; the Windows build.
PAKETE_PAKETE="$PAKETE_BAU $PAKETE_WEB git binutils dpkg-dev file gzip g++-mingw-w64-x86-64-posix"

# What looks at the packages besides: Debian's judge, fresh systems, Wine.
PAKETE_PRUEFEN="lintian debootstrap wine64 desktop-file-utils shared-mime-info unzip"

# The tests besides.
PAKETE_TEST="$PAKETE_BAU libgtest-dev libxml2-utils python3-pytest bash-completion zsh man-db mandoc"

# The slower checks besides: clang, a display without a screen, a browser for the pages, what runs the examples that call
# the program, what tests many files on several machines, the module for browsers and the other packages.
PAKETE_CI="$PAKETE_TEST $PAKETE_PAKETE $PAKETE_PRUEFEN ccache clang clang-tidy clang-format googletest fonts-wine
xvfb xdotool openbox chromium pngquant default-jdk-headless mono-mcs parallel rsync openssh-server openssh-client
slurm-wlm munge procps"

# Other publishers' Node.js brings npm along, and Debian's npm would not install beside it.
command -v npm >/dev/null || PAKETE_CI="$PAKETE_CI npm"

# What the night's checks need besides.
PAKETE_NACHT="$PAKETE_CI firefox-esr"
