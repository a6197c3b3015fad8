#!/usr/bin/env bash
# Runs a cross-built program under Wine with the DLLs it needs in reach; CMake calls it for every test of that build.
# A Qt Test program prints nothing to a redirected output there, so its report goes through a file.
#   wine-run.sh PROGRAM.exe [ARGUMENTS]
# Needs QT_WINDOWS_DIR and a display; keeps its Wine prefix in WINEPREFIX.
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
plugins="Z:${QT_WINDOWS_DIR//\//\\}\\plugins"
export QT_PLUGIN_PATH=$plugins

wine=$(command -v wine64 || command -v /usr/lib/wine/wine64 || command -v wine)
case $program in
*Test.exe)
    report=$(mktemp --suffix=.txt)
    trap 'rm -f "$report"' EXIT
    "$wine" "$program" -platform windows "$@" -o "Z:${report//\//\\},txt" 2>&1 | grep -v EnableNonClientDpiScaling
    code=${PIPESTATUS[0]}
    cat "$report"
    exit "$code"
    ;;
*)
    exec "$wine" "$program" "$@"
    ;;
esac
