#!/usr/bin/env bash
# Builds everything and runs every test, under the release preset and under the sanitizers.
#   --release   the release preset only
#   --asan      the sanitizers only
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

presets=(release asan)
for argument in "$@"; do
    case $argument in
    --release) presets=(release) ;;
    --asan) presets=(asan) ;;
    *) sed -n '2,4s/^# \{0,1\}//p' "$0"; exit 2 ;;
    esac
done

require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" "${PACKAGES_DISPLAY[@]}" "${PACKAGES_TEST[@]}"
say "Checking the format of the sources"
scripts/check-format.sh

status=0 passed=0 failed=0 skipped=0

# run_label PRESET LABEL [CTEST OPTIONS]: runs the tests of a label; adds up their functions from Qt Test's closing lines.
run_label() {
    local preset=$1 label=$2 log=build/$1/$2.log p f s
    shift 2
    ctest --preset "$preset" -L "$label" --no-tests=error -V --output-log "$log" "$@" >/dev/null || status=1
    read -r p f s < <(sed -nE 's/^([0-9]+: )?Totals: ([0-9]+) passed, ([0-9]+) failed, ([0-9]+) skipped.*/\2 \3 \4/p' "$log" |
        awk '{p += $1; f += $2; s += $3} END {print p + 0, f + 0, s + 0}')
    passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
    grep -E '^[0-9]+: (FAIL!|XPASS|SKIP|QFATAL|QWARN .*(QObject::connect|QPainter|QLayout))|ERROR: (Address|Leak)Sanitizer|runtime error:' \
        -A2 "$log" | sort -u | head -n 60 || true
    sed -n '/tests passed,/,$p' "$log"
}

for preset in "${presets[@]}"; do
    build_preset "$preset"
    say "Unit tests ($preset)"
    run_label "$preset" unit -j "$(nproc)"
    say "Integration tests ($preset), on a display with a window manager"
    run_label "$preset" integration
done

say "Test functions in all"
printf '%d passed, %d failed, %d skipped\n' "$passed" "$failed" "$skipped"
exit "$status"
