#!/usr/bin/env bash
# Cross-builds for 64-bit Windows, and runs the unit tests, the tests of the native parts and the gallery's tour under
# Wine. Qt for Windows is taken from QT_WINDOWS_DIR; docs/windows.md tells where it comes from.
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

# A desk is a display and a Wine prefix of its own: programs on different desks share neither pointer nor focus, so as
# many of them run at a time as there are desks.
export WINE_DESKS=$PWD/build/windows/desks
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
displays=()

close_desks() {
    local folder pid
    for folder in "$WINE_DESKS"/*/; do
        WINEPREFIX=${folder}wine timeout 20 wineserver -k 2>/dev/null || true
    done
    for pid in "${displays[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
}

open_desk() { # folder
    mkdir -p "$1/wine"
    : >"$1/display"
    Xvfb -displayfd 5 -screen 0 1600x1200x24 -nolisten tcp -noreset 5>"$1/display" >/dev/null 2>&1 </dev/null &
    displays+=($!)
    for _ in $(seq 200); do [ -s "$1/display" ] && break; sleep 0.05; done
    [ -s "$1/display" ] || { say "No virtual display starts"; return 1; }
    # The server outlives each test, which saves the start of a session, but nobody who has ended: a minute at most.
    # Nothing here may hold on to this script's output. No window manager is asked: Wine keeps its windows itself, with
    # the modal loops of moving and resizing that Windows has.
    (
        export WINEPREFIX=$1/wine
        DISPLAY=:$(cat "$1/display")
        export DISPLAY
        # Room for a task bar: the toolkit takes a maximised window that covers the whole screen for full screen.
        timeout 20 xprop -root -f _NET_WORKAREA 32c -set _NET_WORKAREA "0, 0, 1600, 1160"
        timeout 20 wineserver -p60
        timeout 120 wineboot --init
        timeout 30 wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f
    ) >/dev/null 2>&1 </dev/null
}

rm -rf "$WINE_DESKS"
trap close_desks EXIT
desks=$(nproc)
[ "$desks" -le 4 ] || desks=4
say "Running the tests under $(wine --version 2>/dev/null || echo Wine), $desks at a time"
for desk in $(seq "$desks"); do
    open_desk "$WINE_DESKS/$desk"
done
start_report
# Now and then Wine loses a click, or the news of a connection that is closed as soon as it is made: two more tries for a
# test that met that; one that fails three times has failed.
status=0
log=build/windows/tests.log
start=$SECONDS
ctest --test-dir build/windows -L "unit|windows" -j "$desks" --repeat until-pass:3 --no-tests=error -V --output-log "$log" >/dev/null ||
    status=1
report_log "$log"
grep -E '^[0-9]+: tour: ' "$log" || true
say "Test functions under Wine, in $((SECONDS - start)) s"
close_report "$passed" "$failed" "$skipped"
exit "$status"
