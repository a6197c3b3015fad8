# shellcheck shell=bash
# Shared by the scripts beside it: which Debian packages a task needs, and how to bring in those that are missing.

PACKAGES_BUILD=(g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
                libgl1-mesa-dev libvulkan-dev libqt6opengl6-dev dpkg-dev file)
PACKAGES_SHOW=(fonts-noto-cjk fonts-noto-core)
PACKAGES_DISPLAY=(xvfb xauth openbox x11-utils xcompmgr xdotool)
PACKAGES_WINDOWS=(g++-mingw-w64-x86-64-posix wine wine64 xz-utils)
PACKAGES_TEST=(git pkg-config iproute2 util-linux libbenchmark-dev binutils clang-format doxygen)
PACKAGES_FUZZ=(clang libclang-rt-dev llvm)
PACKAGES_TIDY=(clang-tidy)
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
    # Without these ccache leaves alone what is compiled on top of precompiled headers.
    export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
    [ $# -gt 0 ] && targets=(--target "$@")
    say "Building in build/$preset"
    mkdir -p build
    cmake --preset "$preset" "${options[@]}" >build/configure.log 2>&1 || { cat build/configure.log; return 1; }
    cmake --build --preset "$preset" "${targets[@]}"
}

# Reads a verbose ctest log: first a line with what passed, failed and was skipped, then what the failed tests said.
# Only the last try of a test counts. A Qt Test program counts by its functions, every other test as one, by ctest's own
# verdict; so does a program that fails though none of its functions did, by a leak or a crash.
read_log() {
    awk '
    function forget(n) { functions[n] = p[n] = f[n] = s[n] = count[n] = quoting[n] = 0; verdict[n] = said[n] = "" }
    /^ +Start +[0-9]+: / {
        n = $2; sub(/:.*/, "", n)
        if (!(n in name)) order[++all] = n
        name[n] = $0; sub(/^ +Start +[0-9]+: /, "", name[n])
        forget(n)
        next
    }
    /^[0-9]+: / {
        n = $1; sub(/:.*/, "", n)
        line = $0; sub(/^[0-9]+: /, "", line)
        if (line ~ /^(Test command:|Working Directory:|Test timeout computed|Environment variables:)|^ [A-Z_]+=/) next
        last[n, ++count[n] % 15] = line
        if (line ~ /^Totals: [0-9]+ passed, [0-9]+ failed, [0-9]+ skipped/) {
            split(line, word, " ")
            functions[n] = 1; p[n] += word[2]; f[n] += word[4]; s[n] += word[6]
        }
        if (line ~ /^(FAIL!|XPASS|QFATAL)/) quoting[n] = 4
        else if (line ~ /^(PASS|SKIP|Totals)/) quoting[n] = 0
        if (quoting[n]-- > 0) said[n] = said[n] "   " line "\n"
        next
    }
    # The verdict may stand on the next line, where other lines came between.
    /^ *([0-9]+\/[0-9]+)? +Test +#[0-9]+: / {
        match($0, /#[0-9]+:/)
        judged = substr($0, RSTART + 1, RLENGTH - 2)
    }
    judged && /Passed|\*\*\*/ {
        verdict[judged] = $0 ~ /\*\*\*(Skipped|Not Run \(Disabled\))/ ? "skipped" : $0 ~ /\*\*\*/ ? "failed" : "passed"
        judged = 0
    }
    END {
        for (i = 1; i <= all; ++i) {
            n = order[i]
            if (verdict[n] == "skipped") {
                skipped += s[n] ? s[n] : 1
                continue
            }
            passed += p[n]; skipped += s[n]
            if (verdict[n] == "passed") {
                passed += !functions[n]; failed += f[n]
                continue
            }
            failed += f[n] ? f[n] : 1
            text = text name[n] " failed:\n" said[n]
            if (!f[n])
                for (k = count[n] > 15 ? count[n] - 14 : 1; k <= count[n]; ++k)
                    text = text "   " last[n, k % 15] "\n"
        }
        if (!all) { failed = 1; text = "no test was run\n" }
        printf "%d %d %d\n%s", passed, failed, skipped, text
    }' "$1"
}

# What fails is said where it fails, and once more by the outermost script right before its closing line, so that the end
# of an output tells it all.
start_report() {
    report_is_own=
    [ -z "${FAILURES:-}" ] || return 0
    mkdir -p build
    export FAILURES=$PWD/build/failures.log
    : >"$FAILURES"
    report_is_own=yes
}

close_report() { # PASSED FAILED SKIPPED
    if [ -n "$report_is_own" ] && [ -s "$FAILURES" ]; then
        say "What failed"
        tail -n 100 "$FAILURES"
    fi
    printf '%d passed, %d failed, %d skipped\n' "$@"
}

# Shows what of a verbose ctest log needs a look, ctest's own summary, and the sums of the tests, which it leaves in
# passed, failed and skipped.
report_log() {
    local log=$1
    grep -E '^[0-9]+: (FAIL!|XPASS|SKIP|QFATAL|QWARN .*(QObject::connect|QPainter|QLayout))|ERROR: (Address|Leak)Sanitizer|runtime error:' \
        -A2 "$log" | sort -u | head -n 80 || true
    sed -n '/tests passed,/,$p' "$log"
    local result
    result=$(read_log "$log")
    read -r passed failed skipped <<<"${result%%$'\n'*}"
    if [ "$failed" -gt 0 ]; then
        sed 1d <<<"$result" | tee -a "${FAILURES:-/dev/null}"
    fi
    printf 'functions: %d passed, %d failed, %d skipped\n' "$passed" "$failed" "$skipped"
}
