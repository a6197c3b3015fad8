#!/usr/bin/env bash
# Builds everything and runs every test, under the release preset and under the sanitizers.
#   --release   the release preset only
#   --asan      the sanitizers only
#   --long ...  instead, what takes too long for every change: see scripts/test-long.sh --help
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

presets=(release asan)
while [ $# -gt 0 ]; do
    case $1 in
    --release) presets=(release) ;;
    --asan) presets=(asan) ;;
    --long) shift; exec scripts/test-long.sh "$@" ;;
    *) sed -n '2,5s/^# \{0,1\}//p' "$0"; exit 2 ;;
    esac
    shift
done

require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" "${PACKAGES_DISPLAY[@]}" "${PACKAGES_TEST[@]}"
say "Checking the format of the sources"
scripts/check-format.sh

start_report
status=0 all_passed=0 all_failed=0 all_skipped=0

# run_label PRESET LABEL [CTEST OPTIONS]
run_label() {
    local preset=$1 label=$2 log=build/$1/$2.log
    shift 2
    ctest --preset "$preset" -L "$label" --no-tests=error -V --output-log "$log" "$@" >/dev/null || status=1
    report_log "$log"
    all_passed=$((all_passed + passed)) all_failed=$((all_failed + failed)) all_skipped=$((all_skipped + skipped))
}

for preset in "${presets[@]}"; do
    build_preset "$preset"
    say "Unit tests ($preset)"
    run_label "$preset" unit -j "$(nproc)"
    say "Integration tests ($preset), on a display with a window manager"
    # A window manager moves focus and windows at its own pace: one more try for a test that met it at a bad moment; one
    # that fails twice has failed.
    run_label "$preset" integration -j "$(nproc)" --repeat until-pass:2
done

say "Test functions in all"
close_report "$all_passed" "$all_failed" "$all_skipped"
exit "$status"
