#!/usr/bin/env bash
# Runs a cross-built program under Wine with the DLLs it needs in reach; CMake calls it for every test of that build.
# A Qt Test program prints nothing to a redirected output there, so its report goes through a file.
#   wine-run.sh PROGRAM.exe [ARGUMENTS]
# Needs QT_WINDOWS_DIR and a display; keeps its Wine prefix in WINEPREFIX. Wine hides variables that begin with QT_ from
# its programs: the plug-ins are found beside Qt's DLLs, and TestEnvironment names the platform.
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
case $program in
*Test.exe)
    report=$(mktemp --suffix=.txt)
    output=$(mktemp)
    trap 'rm -f "$report" "$output"' EXIT
    # To a file, since a program that the test leaves behind would hold on to ctest's pipe; and ended a little before the
    # test's own limit, so that the report of one that hangs is seen.
    timeout 280 "$wine" "$program" "$@" -o "Z:${report//\//\\},txt" >"$output" 2>&1 </dev/null
    code=$?
    cat "$output"
    grep -v EnableNonClientDpiScaling "$report"
    exit "$code"
    ;;
*)
    exec "$wine" "$program" "$@"
    ;;
esac
