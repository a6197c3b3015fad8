#!/usr/bin/env bash
# Builds examples/hello as a host would, starts it on this display and answers it with the keyboard.
#   package.sh Installed|Subdirectory|External SOURCE_DIR BUILD_DIR
# Installed: against the installed tree, through CMake and through pkg-config. Subdirectory: with the source tree in its
# own, and static libraries. External: against a package that stands on another CorvaneBase.
set -euo pipefail
kind=$1 source=$2 build=$3
# A fixed place, so that the compiler cache recognises what it has compiled before.
work=$build/package/$kind
rm -rf "$work"
mkdir -p "$work"

configure() {
    local from=$1 to=$2
    shift 2
    cmake -S "$from" -B "$to" -G Ninja -DCMAKE_BUILD_TYPE=Release "$@" >"$work/configure.log" 2>&1 ||
        { cat "$work/configure.log"; exit 1; }
    cmake --build "$to" >"$work/build.log" 2>&1 || { tail -n 40 "$work/build.log"; exit 1; }
}

# greet PROGRAM: it has to show its box, and to end with 0 once Return is pressed.
greet() {
    local program=$1 window status=0
    "$program" &
    window=$(timeout 30 xdotool search --sync --onlyvisible --pid $! | head -n 1) || true
    [ -n "$window" ] || { echo "$program showed no window"; kill $!; exit 1; }
    timeout 10 xdotool windowfocus --sync "$window" key Return
    wait $! || status=$?
    [ "$status" -eq 0 ] || { echo "$program ended with $status"; exit 1; }
    echo "$program was answered"
}

expect_file() {
    local name
    for name in "$@"; do
        [ -e "$name" ] || { echo "not installed: $name"; exit 1; }
    done
}

case $kind in
Installed)
    prefix=$work/prefix
    cmake --install "$build" --prefix "$prefix" >/dev/null
    library=$(dirname "$(find "$prefix" -name libCustomControls.so)")
    expect_file "$library"/libCorvaneBase.so "$library"/cmake/CustomControls/CustomControlsConfig{,Version}.cmake \
        "$library"/cmake/CorvaneBase/CorvaneBaseConfig{,Version}.cmake "$library"/pkgconfig/{CustomControls,CorvaneBase}.pc \
        "$prefix"/bin/{gallery,machine-simulator}
    # Exactly the headers that a host needs: those of exported classes and what those include.
    stray=$(find "$prefix/include" \( -name '*_p.h' -o -path '*platform*' -o ! -name '*.h' -type f \))
    [ -z "$stray" ] || { echo "installed for nobody: $stray"; exit 1; }
    # The headers include nothing that is not installed.
    (cd "$prefix/include" && find . -name '*.h' | sed 's/.*/#include "&"/') >"$work/headers.cpp"
    # shellcheck disable=SC2046 # the flags are words
    g++ -std=c++17 -fPIC -fsyntax-only -I"$prefix/include" "$work/headers.cpp" \
        $(PKG_CONFIG_PATH=$library/pkgconfig pkg-config --cflags CustomControls)

    configure "$source/examples/hello" "$work/hello" -DCMAKE_PREFIX_PATH="$prefix"
    greet "$work/hello/hello"
    # A component that exists, and one that does not.
    mkdir "$work/components"
    cat >"$work/components/CMakeLists.txt" <<'PROJECT'
cmake_minimum_required(VERSION 3.22)
project(components LANGUAGES CXX)
find_package(CustomControls 1.0 REQUIRED COMPONENTS Controls)
find_package(CustomControls QUIET COMPONENTS Nonsense)
if(CustomControls_FOUND)
    message(FATAL_ERROR "A component that does not exist was found")
endif()
PROJECT
    cmake -S "$work/components" -B "$work/components/build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >"$work/components.log" 2>&1 ||
        { cat "$work/components.log"; exit 1; }

    # shellcheck disable=SC2046 # the flags are words
    g++ -std=c++17 -fPIC "$source/examples/hello/main.cpp" -o "$work/hello-pkg-config" \
        $(PKG_CONFIG_PATH=$library/pkgconfig pkg-config --cflags --libs CustomControls) -Wl,-rpath,"$library"
    greet "$work/hello-pkg-config"
    ;;
Subdirectory)
    configure "$source/examples/hello" "$work/hello" -DCUSTOMCONTROLS_SOURCE="$source" -DBUILD_SHARED_LIBS=OFF
    # Only what a host needs is built in its tree.
    stray=$(find "$work/hello" -name gallery -o -name machine-simulator -o -name '*Test')
    [ -z "$stray" ] || { echo "built for nobody: $stray"; exit 1; }
    if ldd "$work/hello/hello" | grep -E 'CustomControls|CorvaneBase'; then
        echo "the static libraries were not taken"
        exit 1
    fi
    # The images come along, though nothing refers to them by a symbol.
    nm "$work/hello/hello" | grep qInitResources_CustomControls >/dev/null || { echo "the images are missing"; exit 1; }
    greet "$work/hello/hello"
    ;;
External)
    prefix=$work/prefix
    configure "$source/tests/package/foreign-base" "$work/base" -DCMAKE_INSTALL_PREFIX="$prefix"
    cmake --install "$work/base" >/dev/null
    configure "$source" "$work/controls" -DCORVANE_BASE=external -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_INSTALL_PREFIX="$prefix" -DCUSTOMCONTROLS_BUILD_GALLERY=OFF -DCUSTOMCONTROLS_BUILD_SIMULATOR=OFF \
        -DCUSTOMCONTROLS_BUILD_TESTS=OFF
    cmake --install "$work/controls" >/dev/null
    configure "$source/examples/hello" "$work/hello" -DCMAKE_PREFIX_PATH="$prefix"
    greet "$work/hello/hello"
    ;;
*)
    sed -n '2,6s/^# \{0,1\}//p' "$0"
    exit 2
    ;;
esac
