#!/usr/bin/env bash
# Runs what takes too long for every change; hours in all. Without arguments every step, else those that are named:
#   asan      the long tests under the sanitizers
#   release   the long tests as hosts run the library
#   memcheck  a subset of the unit tests under valgrind
#   tsan      what works on several threads under the thread sanitizer
#   coverage  the lines that the tests reach
#   clang     everything built by Clang, whose warnings are errors, and the two libraries read by clang-tidy
#   fuzz      ten minutes for each fuzz target
#   benchmark each control beside the toolkit's own counterpart
#   deb       the Debian package on a bare Debian 12
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# Builds a preset and runs its tests of the label long, on a display with a window manager.
long_tests() { # preset
    local log=build/$1/long.log
    require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" "${PACKAGES_DISPLAY[@]}" "${PACKAGES_TEST[@]}"
    build_preset "$1"
    say "Long tests ($1)"
    local code=0
    ctest --preset "$1" -C Long -L long --no-tests=error -V --output-log "$log" >/dev/null || code=1
    report_log "$log"
    printf '%d passed, %d failed, %d skipped\n' "$passed" "$failed" "$skipped"
    return "$code"
}

# Each step ends with a line that counts what passed, failed and was skipped, and fails when something did.
step_asan() { long_tests asan; }
step_release() { long_tests release; }
step_memcheck() { scripts/memcheck.sh; }
step_tsan() { scripts/tsan.sh; }
step_coverage() { scripts/coverage.sh; }
step_clang() {
    require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_TEST[@]}" "${PACKAGES_FUZZ[@]}" "${PACKAGES_TIDY[@]}"
    build_preset clang
    say "clang-tidy on the two libraries"
    local log=build/clang/tidy.log
    if ! run-clang-tidy -quiet -p build/clang "^$PWD/(CustomControls|CorvaneBase)/.*\.cpp\$" >"$log" 2>/dev/null; then
        grep -E -A3 '(warning|error): ' "$log" | head -n 80 | tee -a "$FAILURES" || true
        echo "1 passed, 1 failed, 0 skipped"
        return 1
    fi
    echo "2 passed, 0 failed, 0 skipped"
}
step_fuzz() { scripts/fuzz.sh --seconds 600; }
step_benchmark() {
    scripts/benchmark.sh
    echo "1 passed, 0 failed, 0 skipped"
}
step_deb() {
    if [ "$(id -u)" -ne 0 ]; then
        say "Skipped: it needs root, for chroot"
        echo "0 passed, 0 failed, 1 skipped"
        return
    fi
    scripts/try-deb.sh
    echo "1 passed, 0 failed, 0 skipped"
}

steps=(asan release memcheck tsan coverage clang fuzz benchmark deb)
[ $# -eq 0 ] || steps=("$@")
for step in "${steps[@]}"; do
    declare -F "step_$step" >/dev/null || { sed -n '2,/^set /{/^set /!s/^# \{0,1\}//p}' "$0"; exit 2; }
done

start_report
status=0 all_passed=0 all_failed=0 all_skipped=0 lines=()
for step in "${steps[@]}"; do
    say "Long step: $step"
    start=$SECONDS result=passed
    # A child of its own, so that a command that fails ends its step and no other.
    bash -euo pipefail -c ". scripts/packages.sh; $(declare -f long_tests "step_$step"); step_$step" 2>&1 |
        tee "build/long-$step.log" || { result=FAILED status=1; }
    sums=$(grep -E '^[0-9]+ passed, [0-9]+ failed, [0-9]+ skipped$' "build/long-$step.log" | tail -n 1 || true)
    [ -n "$sums" ] || { result="FAILED before its tests ended" status=1 sums="0 passed, 1 failed, 0 skipped"; }
    read -r p f s <<<"$(tr -dc '0-9 ' <<<"$sums")"
    all_passed=$((all_passed + p)) all_failed=$((all_failed + f)) all_skipped=$((all_skipped + s))
    lines+=("$(printf '%-10s %5d s   %s: %s' "$step" $((SECONDS - start)) "$result" "$sums")")
done

say "Long steps"
printf '%s\n' "${lines[@]}"
close_report "$all_passed" "$all_failed" "$all_skipped"
exit "$status"
