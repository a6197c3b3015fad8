#!/usr/bin/env bash
# Builds examples/hello as a host would, starts it on this display and answers it with the keyboard.
#   package.sh Installed|Subdirectory|External|Deb SOURCE_DIR BUILD_DIR
# Installed: against the installed tree, through CMake and through pkg-config. Subdirectory: with the source tree in its
# own, and static libraries, then against the static tree that this installs. External: against a package that stands on
# another CorvaneBase. Deb: against the content of the Debian package, whose form is checked too.
set -euo pipefail
kind=$1 source=$2 build=$3
# A fixed place, so that the compiler cache recognises what it has compiled before.
work=$build/package/$kind
rm -rf "$work"
mkdir -p "$work"

# Each is started once: optimising takes longer than it saves.
configure() {
    local from=$1 to=$2
    shift 2
    cmake -S "$from" -B "$to" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE=-O0 "$@" \
        >"$work/configure.log" 2>&1 ||
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

# The documentation is installed whole: every link of its pages leads somewhere, and hello is there to be copied.
expect_documentation() {
    local folder=$1 page link
    expect_file "$folder"/{README.md,CHANGELOG.md,docs/hosting.md,docs/controls/README.md,docs/images/gallery.png} \
        "$folder"/examples/hello/{CMakeLists.txt,main.cpp} "$folder"/examples/gallery/resources/gallery.qrc
    while IFS=: read -r page link; do
        [ -e "$(dirname "$page")/${link%%#*}" ] || { echo "$page: the link to $link leads nowhere"; exit 1; }
    done < <(grep -rHoP --include='*.md' '\]\(\K(?!https?:|#)[^) ]+(?=\))' "$folder")
    page=$(find "$folder/docs" -type f ! -name '*.md' ! -name '*.png')
    [ -z "$page" ] || { echo "installed for nobody: $page"; exit 1; }
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

    expect_documentation "$prefix/share/doc/customcontrols"
    expect_file "$prefix"/share/CustomControls/translations/CustomControls_en.qm
    if grep -q '^CUSTOMCONTROLS_HAS_DESIGNER:INTERNAL=TRUE$' "$build/CMakeCache.txt"; then
        expect_file "$(find "$prefix" -path '*/plugins/designer/libCustomControlsDesigner.so')"
    fi

    configure "$prefix/share/doc/customcontrols/examples/hello" "$work/hello" -DCMAKE_PREFIX_PATH="$prefix"
    greet "$work/hello/hello"
    # The host of docs/hosting.md, as its reader builds it.
    configure "$source/docs/host" "$work/host" -DCMAKE_PREFIX_PATH="$prefix"
    HOME=$work timeout 60 "$work/host/host" --once || { echo "the host of docs/hosting.md ended with $?"; exit 1; }
    # What exists is found, and nothing else.
    mkdir "$work/finding"
    cat >"$work/finding/CMakeLists.txt" <<'PROJECT'
cmake_minimum_required(VERSION 3.22)
project(finding LANGUAGES CXX)
function(expect_found expected)
    find_package(${ARGN} QUIET)
    list(GET ARGN 0 package)
    if((expected AND NOT ${package}_FOUND) OR (${package}_FOUND AND NOT expected))
        message(SEND_ERROR "find_package(${ARGN}): found is '${${package}_FOUND}'")
    endif()
endfunction()
foreach(package CustomControls CorvaneBase)
    expect_found(YES ${package})
    expect_found(YES ${package} 1.0)
    expect_found(YES ${package} 1.0.0 EXACT)
    expect_found(NO ${package} 1.99)
    expect_found(NO ${package} 2.0)
    expect_found(NO ${package} 0.9)
    expect_found(NO ${package} 1.0 COMPONENTS Nonsense)
    expect_found(YES ${package} 1.0 OPTIONAL_COMPONENTS Nonsense)
endforeach()
expect_found(YES CustomControls 1.0 COMPONENTS Controls)
expect_found(NO CustomControls 1.0 COMPONENTS Controls Nonsense)
PROJECT
    cmake -S "$work/finding" -B "$work/finding/build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >"$work/finding.log" 2>&1 ||
        { cat "$work/finding.log"; exit 1; }

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

    # Fetched, the tree is as good as below the host's own, and shared where the host doesn't say otherwise.
    mkdir "$work/fetching"
    cat >"$work/fetching/CMakeLists.txt" <<'PROJECT'
cmake_minimum_required(VERSION 3.22)
project(fetching LANGUAGES CXX)
include(FetchContent)
FetchContent_Declare(CustomControls SOURCE_DIR "${CUSTOMCONTROLS_SOURCE}")
FetchContent_MakeAvailable(CustomControls)
foreach(library CustomControls CorvaneBase)
    get_target_property(type ${library}::${library} TYPE)
    if(NOT type STREQUAL "SHARED_LIBRARY")
        message(SEND_ERROR "${library} is a ${type}")
    endif()
endforeach()
foreach(target gallery machine-simulator CustomControlsDesigner CVelmarButtonTest)
    if(TARGET ${target})
        message(SEND_ERROR "${target} would be built for nobody")
    endif()
endforeach()
PROJECT
    cmake -S "$work/fetching" -B "$work/fetching/build" -G Ninja -DCUSTOMCONTROLS_SOURCE="$source" \
        >"$work/fetching.log" 2>&1 || { cat "$work/fetching.log"; exit 1; }

    # The static libraries serve as an installed package too.
    cmake --install "$work/hello" --prefix "$work/prefix" >/dev/null
    stray=$(find "$work/prefix" -name '*.so*' -o -path '*/bin/*')
    [ -z "$stray" ] || { echo "installed for nobody: $stray"; exit 1; }
    configure "$source/examples/hello" "$work/hello-static" -DCMAKE_PREFIX_PATH="$work/prefix"
    greet "$work/hello-static/hello"
    ;;
External)
    prefix=$work/prefix
    configure "$source/tests/package/foreign-base" "$work/base" -DCMAKE_INSTALL_PREFIX="$prefix"
    cmake --install "$work/base" >/dev/null
    configure "$source" "$work/controls" -DCORVANE_BASE=external -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_INSTALL_PREFIX="$prefix" -DCUSTOMCONTROLS_BUILD_GALLERY=OFF -DCUSTOMCONTROLS_BUILD_SIMULATOR=OFF \
        -DCUSTOMCONTROLS_BUILD_TESTS=OFF -DCUSTOMCONTROLS_BUILD_DESIGNER=OFF -DCUSTOMCONTROLS_PRECOMPILE=ON
    cmake --install "$work/controls" >/dev/null
    configure "$source/examples/hello" "$work/hello" -DCMAKE_PREFIX_PATH="$prefix"
    greet "$work/hello/hello"
    ;;
Deb)
    for tool in cpack dpkg-deb dpkg-shlibdeps file; do
        command -v "$tool" >/dev/null || { echo "skipped: $tool is missing"; exit 77; }
    done
    # A builder's habits are no property of the package.
    (umask 077 && cd "$build" && cpack -G DEB -B "$work") >"$work/cpack.log" 2>&1 || { cat "$work/cpack.log"; exit 1; }
    deb=$(find "$work" -maxdepth 1 -name '*.deb')
    version=$(sed -n 's/^project(CustomControls VERSION \([0-9.]*\).*/\1/p' "$source/CMakeLists.txt")
    architecture=$(dpkg --print-architecture)
    [ "$(basename "$deb")" = "customcontrols_${version}_$architecture.deb" ] || { echo "made: $deb"; exit 1; }

    field() { dpkg-deb -f "$deb" "$1"; }
    expect_field() { # NAME PATTERN
        printf '%s' "$(field "$1")" | grep -Eqz -- "$2" || { printf '%s: "%s", not %s\n' "$1" "$(field "$1")" "$2"; exit 1; }
    }
    expect_field Package '^customcontrols$'
    expect_field Version "^$version\$"
    expect_field Architecture "^$architecture\$"
    expect_field Maintainer '^[^<]+ <[^ @]+@[^ >]+>$'
    expect_field Section '^libs$'
    expect_field Priority '^optional$'
    expect_field Installed-Size '^[0-9]+$'
    # A synopsis that fits a line, without an article and a full stop; then the description, in lines of 80.
    expect_field Description '^House [^.]{10,72}[^.]
 '
    long=$(field Description | grep -E '^.{81}') && { echo "too long: $long"; exit 1; }
    for library in libc6 libstdc++6 libqt6core6 libqt6gui6 libqt6network6 libqt6widgets6 qt6-qpa-plugins; do
        expect_field Depends "(^|, )${library//+/\\+}( \(|,|\$)"
    done
    # Each once, and none of them the package itself or what only its tests and its build need.
    depends=$(field Depends | tr ',' '\n' | sed 's/^ *//; s/ .*//' | sort)
    twice=$(uniq -d <<<"$depends")
    [ -z "$twice" ] || { echo "depends twice on: $twice"; exit 1; }
    if grep -E 'customcontrols|corvane|-dev$|qt6test|uitools|designer' <<<"$depends"; then
        echo "needless dependencies"
        exit 1
    fi

    dpkg-deb --ctrl-tarfile "$deb" | tar -x -C "$work"
    [ -s "$work/md5sums" ] || { echo "no checksums"; exit 1; }
    grep -qs ldconfig "$work/triggers" "$work/postinst" || { echo "the linker's cache is not refreshed"; exit 1; }
    for library in libCustomControls libCorvaneBase; do
        grep -q "^$library ${version%%.*} customcontrols (>= $version)\$" "$work/shlibs" || { cat "$work/shlibs"; exit 1; }
    done

    # Everything is root's, lies below /usr, can be read by all and written by none but root; no program runs as another user.
    bad=$(dpkg-deb -c "$deb" | awk '
        $2 != "root/root" || $6 !~ /^\.\/(usr\/.*)?$/ {print; next}
        /^l/ {next}
        /^d/ {if ($1 != "drwxr-xr-x") print; next}
        $6 ~ /^\.\/usr\/bin\// {if ($1 != "-rwxr-xr-x") print; next}
        $1 != "-rw-r--r--"')
    [ -z "$bad" ] || { echo "odd rights, owners or places:"; echo "$bad"; exit 1; }

    root=$work/root
    dpkg-deb -x "$deb" "$root"
    (cd "$root" && md5sum --quiet -c "$work/md5sums")
    library=$(dirname "$(find "$root" -name libCustomControls.so)")
    expect_file "$library"/lib{CustomControls,CorvaneBase}.so{,".${version%%.*}",".$version"} \
        "$library"/cmake/CustomControls/CustomControlsConfig{,Version}.cmake \
        "$library"/cmake/CorvaneBase/CorvaneBaseConfig{,Version}.cmake \
        "$library"/pkgconfig/{CustomControls,CorvaneBase}.pc \
        "$root"/usr/include/CustomControls/buttons/CVelmarButton.h "$root"/usr/include/CorvaneBase/CorvaneFonts.h \
        "$root"/usr/share/CustomControls/translations/CustomControls_en.qm \
        "$root"/usr/share/doc/customcontrols/copyright "$root"/usr/bin/{gallery,machine-simulator}
    expect_documentation "$root/usr/share/doc/customcontrols"
    designer=$(find "$root" -path '*/plugins/designer/libCustomControlsDesigner.so')
    if grep -q '^CUSTOMCONTROLS_HAS_DESIGNER:INTERNAL=TRUE$' "$build/CMakeCache.txt"; then
        expect_file "$designer"
    fi
    # Stripped, and found by each other alone: not one library comes from the build.
    while read -r binary; do
        grep -q ', stripped' <<<"$(file -b "$binary")" || { echo "not stripped: $binary"; exit 1; }
        if readelf -d "$binary" | grep -E '(RPATH|RUNPATH)' | grep -v '\[\$ORIGIN'; then
            echo "$binary looks for libraries in a fixed place"
            exit 1
        fi
        if ldd "$binary" | grep -E 'CustomControls|CorvaneBase|not found' | grep -v " $(realpath "$root")/"; then
            echo "$binary does not find its libraries"
            exit 1
        fi
    done < <(find "$root/usr" -type f \( -name '*.so*' -o -path '*/bin/*' \))
    if grep -rlF -e "$source/" -e "$build/" "$root"; then
        echo "these files tell where they were built"
        exit 1
    fi

    for program in gallery machine-simulator; do
        grep -q -- --help <<<"$(timeout 30 "$root/usr/bin/$program" --help)" || { echo "$program gives no help"; exit 1; }
        grep -qF "$version" <<<"$(timeout 30 "$root/usr/bin/$program" --version)" ||
            { echo "$program is another version"; exit 1; }
    done
    configure "$source/examples/hello" "$work/hello" -DCMAKE_PREFIX_PATH="$root/usr"
    grep -qF "$(realpath "$library")/libCustomControls.so" <<<"$(ldd "$work/hello/hello")" ||
        { echo "hello found another"; exit 1; }
    greet "$work/hello/hello"
    ;;
*)
    sed -n '2,7s/^# \{0,1\}//p' "$0"
    exit 2
    ;;
esac
