#!/usr/bin/env bash
# Builds the fuzz targets with Clang, replays the corpus of each and then fuzzes it, as many at a time as there are cores.
#   --seconds N   fuzz each target that long (30); 0 only replays
#   --seed N      take the same road each time; another one at each run else
#   TARGET...     only these; all of tests/fuzz else
# An input that breaks a target is kept in build/fuzz/findings; what fuzzing adds to a corpus stays in build/fuzz/grown.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

seconds=30 seed=0 targets=()
while [ $# -gt 0 ]; do
    case $1 in
    --seconds) seconds=${2:?how many?}; shift ;;
    --seed) seed=${2:?which?}; shift ;;
    -*) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 2 ;;
    *) targets+=("$1") ;;
    esac
    shift
done
if [ ${#targets[@]} -eq 0 ]; then
    for source in tests/fuzz/*Fuzz.cpp; do
        targets+=("$(basename "$source" .cpp)")
    done
fi

require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" "${PACKAGES_FUZZ[@]}"
build_preset fuzz "${targets[@]}"

results=build/fuzz/results
mkdir -p build/fuzz/findings "$results"
rm -f "$results"/*
# The targets' own files are small, many and short-lived.
scratch=$(mktemp -d -p /dev/shm fuzz-XXXXXX 2>/dev/null || mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export TMPDIR=$scratch QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=1:quarantine_size_mb=64:allocator_may_return_null=1 UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/tests/fuzz/lsan.supp:print_suppressions=0

# fuzz TARGET: its outcome goes to one file, for the table below
fuzz() {
    local target=$1 seeds=tests/fuzz/corpus/$1 grown=build/fuzz/grown/$1 log=build/fuzz/$1.log
    local options=(-timeout=20 -rss_limit_mb=2048 -malloc_limit_mb=1048576 -max_len=1024 "-artifact_prefix=build/fuzz/findings/$target-")
    mkdir -p "$grown"
    if ! build/fuzz/fuzz/"$target" "${options[@]}" "$seeds"/* >"$log" 2>&1; then
        echo "replay FAILED" >"$results/$target"
        return
    fi
    local line
    line="$(find "$seeds" -type f | wc -l) inputs replayed"
    if [ "$seconds" -gt 0 ]; then
        if ! build/fuzz/fuzz/"$target" "${options[@]}" -dict="tests/fuzz/$target.dict" -max_total_time="$seconds" \
            -seed="$seed" -print_final_stats=1 -use_value_profile=1 "$grown" "$seeds" >>"$log" 2>&1; then
            echo "$line, fuzzing FAILED" >"$results/$target"
            return
        fi
        line+=", $(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1) executions in $seconds s"
    fi
    echo "$line" >"$results/$target"
}

say "Fuzzing, $seconds s each"
for target in "${targets[@]}"; do
    while [ "$(jobs -rp | wc -l)" -ge "$(nproc)" ]; do
        wait -n
    done
    fuzz "$target" &
done
wait

passed=0 failed=0
for target in "${targets[@]}"; do
    printf '%-18s %s\n' "$target" "$(cat "$results/$target")"
    if grep -q FAILED "$results/$target"; then
        failed=$((failed + 1))
        grep -nE 'does not hold|ERROR: |SUMMARY: |runtime error: |Test unit written|^ *#[0-9]+ .*(CustomControls|CorvaneBase)/' \
            "build/fuzz/$target.log" | head -n 20
        echo "$target failed; the whole of it: build/fuzz/$target.log; again: build/fuzz/fuzz/$target build/fuzz/findings/FILE" |
            tee -a "${FAILURES:-/dev/null}"
    else
        passed=$((passed + 1))
    fi
done
say "Fuzz targets"
printf '%d passed, %d failed, %d skipped\n' "$passed" "$failed" 0
[ "$failed" -eq 0 ]
