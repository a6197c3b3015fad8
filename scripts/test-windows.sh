#!/usr/bin/env bash
# Cross-builds for 64-bit Windows and runs the unit tests and the tests of the native parts under Wine. Qt for Windows is
# taken from QT_WINDOWS_DIR; docs/windows.md tells where it comes from.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

if [ ! -d "${QT_WINDOWS_DIR:-}" ]; then
    say "QT_WINDOWS_DIR names no Qt for Windows; see docs/windows.md"
    exit 1
fi
require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" "${PACKAGES_DISPLAY[@]}" "${PACKAGES_WINDOWS[@]}"
export QT_WINDOWS_DIR
build_preset windows

export WINEPREFIX=${WINEPREFIX:-$PWD/build/windows/wine}
mkdir -p "$WINEPREFIX"
trap 'wineserver -k 2>/dev/null || true' EXIT
say "Running the tests under $(wine --version 2>/dev/null || echo Wine)"
status=0
log=build/windows/tests.log
# One after the other: they share the desktop's one pointer and one focus. The server that stays for the whole run saves
# each test the start of a session.
tests/support/with-display.sh bash -c '
    export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
    wineserver -p >/dev/null 2>&1
    wineboot --init >/dev/null 2>&1
    ctest --test-dir build/windows -L "unit|windows" --no-tests=error -V --output-log "$0" >/dev/null' "$log" || status=1
report_log "$log"
say "Test functions under Wine"
printf '%d passed, %d failed, %d skipped\n' "$passed" "$failed" "$skipped"
exit "$status"
