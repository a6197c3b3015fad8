#!/usr/bin/env bash
# Runs a cross-built program under Wine with the DLLs it needs in reach; CMake calls it for every test of that build.
# A Qt Test program prints nothing to a redirected output there, so its report goes through a file.
#   wine-run.sh PROGRAM.exe [ARGUMENTS]
# Needs QT_WINDOWS_DIR, and a free desk of WINE_DESKS (see test-windows.sh) or else a display, with the Wine prefix in
# WINEPREFIX. Wine hides variables that begin with QT_ from its programs: the plug-ins are found beside Qt's DLLs, and
# TestEnvironment names the platform.
set -uo pipefail
program=$1
shift
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
binaries=$(cd "$(dirname "$program")/../bin" && pwd)
path=
for folder in "$binaries" "$QT_WINDOWS_DIR/bin" \
    "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")" \
    "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libwinpthread-1.dll)")"; do
    path+="Z:${folder//\//\\};"
done
export WINEPATH=$path
wine=$(command -v wine64 || command -v /usr/lib/wine/wine64 || command -v wine)

# A desk is taken by a lock on it; no more programs run at a time than there are desks.
if [ -n "${WINE_DESKS:-}" ]; then
    until [ -n "${desk:-}" ]; do
        for folder in "$WINE_DESKS"/*/; do
            exec 9>"$folder/lock"
            flock -n 9 && desk=$folder && break
        done
        [ -n "${desk:-}" ] || sleep 0.2
    done
    export WINEPREFIX=${desk}wine
    DISPLAY=:$(cat "${desk}display")
    export DISPLAY
fi

case $program in
*Test.exe)
    report=$(mktemp --suffix=.txt)
    output=$(mktemp)
    trap 'rm -f "$report" "$output"' EXIT
    # To a file, since a program that the test leaves behind would hold on to ctest's pipe; and ended a little before the
    # test's own limit, so that the report of one that hangs is seen.
    timeout 280 "$wine" "$program" "$@" -o "Z:${report//\//\\},txt" >"$output" 2>&1 </dev/null 9>&-
    code=$?
    cat "$output"
    grep -v EnableNonClientDpiScaling "$report"
    exit "$code"
    ;;
*)
    output=$(mktemp)
    trap 'rm -f "$output"' EXIT
    timeout "${WINE_TIMEOUT:-390}" "$wine" "$program" "$@" >"$output" 2>&1 </dev/null 9>&-
    code=$?
    grep -v EnableNonClientDpiScaling "$output"
    exit "$code"
    ;;
esac
