# shellcheck shell=bash
# Shared by the scripts beside it: which Debian packages a task needs, and how to bring in those that are missing.

PACKAGES_BUILD=(g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
                libgl1-mesa-dev libvulkan-dev libqt6opengl6-dev dpkg-dev file)
PACKAGES_SHOW=(fonts-noto-cjk fonts-noto-core)
PACKAGES_DISPLAY=(xvfb xauth openbox x11-utils xcompmgr xdotool)
PACKAGES_WINDOWS=(g++-mingw-w64-x86-64-posix wine wine64 xz-utils)
PACKAGES_TEST=(git pkg-config iproute2 util-linux libbenchmark-dev binutils clang-format doxygen)
PACKAGES_FUZZ=(clang libclang-rt-dev llvm)
PACKAGES_MEMCHECK=(valgrind)
PACKAGES_COVERAGE=(gcovr)

say() { printf '== %s\n' "$*"; }

# Installs what is missing of the named packages, or says what to install where there is no apt.
require_packages() {
    local missing=() package
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        for package in cmake ninja; do
            command -v "$package" >/dev/null || missing+=("$package")
        done
        if [ ${#missing[@]} -gt 0 ] || ! { command -v qmake6 || command -v qtpaths6; } >/dev/null 2>&1; then
            say "This is no Debian. Please install by your system's own means, then run this again:"
            echo "   a C++17 compiler, CMake 3.22 or newer, Ninja, Qt 6.4 or newer (Core, Gui, Widgets, Network, Concurrent,"
            echo "   Test, LinguistTools), a font with simplified Chinese; to test without a screen also Xvfb, xauth, openbox,"
            echo "   xdotool, xprop, Google Benchmark, clang-format"
            exit 1
        fi
        return 0
    fi
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { say "Not root and no sudo; please install: ${missing[*]}"; exit 1; }
        as_root=(sudo)
    fi
    say "Installing what is missing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures and builds a preset; further arguments are targets.
build_preset() {
    local preset=$1
    shift
    local options=() targets=()
    command -v ccache >/dev/null && options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    [ $# -gt 0 ] && targets=(--target "$@")
    say "Building in build/$preset"
    mkdir -p build
    cmake --preset "$preset" "${options[@]}" >build/configure.log 2>&1 || { cat build/configure.log; return 1; }
    cmake --build --preset "$preset" "${targets[@]}"
}

# Shows what of a verbose ctest log needs a look, ctest's own summary, and the sum of Qt Test's closing lines, which it
# leaves in passed, failed and skipped.
report_log() {
    local log=$1
    grep -E '^[0-9]+: (FAIL!|XPASS|SKIP|QFATAL|QWARN .*(QObject::connect|QPainter|QLayout))|ERROR: (Address|Leak)Sanitizer|runtime error:' \
        -A2 "$log" | sort -u | head -n 80 || true
    sed -n '/tests passed,/,$p' "$log"
    read -r passed failed skipped < <(
        sed -nE 's/^([0-9]+: )?Totals: ([0-9]+) passed, ([0-9]+) failed, ([0-9]+) skipped.*/\2 \3 \4/p' "$log" |
            awk '{p += $1; f += $2; s += $3} END {print p + 0, f + 0, s + 0}')
    printf 'functions: %d passed, %d failed, %d skipped\n' "$passed" "$failed" "$skipped"
}
