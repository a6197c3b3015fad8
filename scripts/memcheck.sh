#!/usr/bin/env bash
# Runs a subset of the unit tests under valgrind's memcheck, which sees what the sanitizers don't: a decision made on a
# value that nobody has set, also where the toolkit makes it. Each program runs 20 to 50 times slower than alone.
#   TEST...   only these
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

# Chosen for values that come from outside or are easily left unset: what reads files and answers, what keeps state
# between events, what paints with colours and rectangles of its own, and what owns others across nested loops. Left out
# are tests that wait for the seconds of a real time-out, and those of further rows, pages and screens of the same code.
tests=(
    CDebugLogTest CorvaneFontsTest CorvaneTextHelperTest CorvaneToolBitHelperTest CorvaneRegisterHelperTest
    StatefulIconTest FrameRulesTest
    CVelmarButtonTest CSelectButtonTest CUnitButtonTest CHintButtonTest CMultiLineLabelTest
    CCustomMenuItemTest CVelmarMenuItemTest
    MovieCopyTest CVelmarMessageListItemTest CMsgBoxBackgroundTest
    CDelegateLineEditTest CDelegateTableViewItemTest CFileNameDelegateTest
    CTextEditTest CSelectBoxTest
    CSelectMachineIPLineEditTest MachineUsbRoadTest
    MyProgressBarTest
    CToolButtonTest CTabBarTest
)
case ${1:-} in
-*) sed -n '2,4s/^# \{0,1\}//p' "$0"; exit 2 ;;
?*) tests=("$@") ;;
esac

require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" "${PACKAGES_TEST[@]}" "${PACKAGES_MEMCHECK[@]}"
build_preset release "${tests[@]}"

logs=build/release/memcheck
mkdir -p "$logs"
rm -f "$logs"/*
export QT_QPA_PLATFORM=offscreen
# Patterns compiled to machine code read what they don't use; interpreted ones don't.
export QT_ENABLE_REGEXP_JIT=0

memcheck() { # test
    local code=0
    # Leaks are LeakSanitizer's, with the list of those that are meant.
    timeout 1200 valgrind --quiet --leak-check=no --error-exitcode=99 --num-callers=30 --gen-suppressions=all \
        --suppressions=tests/support/memcheck.supp --log-file="$logs/$1.valgrind" "build/release/tests/$1" \
        >"$logs/$1.log" 2>&1 || code=$?
    echo "$code" >"$logs/$1.code"
}

say "Memcheck, $(nproc) at a time"
for test in "${tests[@]}"; do
    while [ "$(jobs -rp | wc -l)" -ge "$(nproc)" ]; do
        wait -n
    done
    memcheck "$test" &
done
wait

passed=0 failed=0
for test in "${tests[@]}"; do
    code=$(cat "$logs/$test.code")
    if [ "$code" -eq 0 ] && [ ! -s "$logs/$test.valgrind" ]; then
        passed=$((passed + 1))
        continue
    fi
    failed=$((failed + 1))
    echo "$test: exit code $code; the whole of it: $logs/$test.valgrind and .log"
    grep -E '^(FAIL!|QFATAL)' "$logs/$test.log" | head -n 10 || true
    head -n 30 "$logs/$test.valgrind"
done
say "Programs under memcheck"
printf '%d passed, %d failed, %d skipped\n' "$passed" "$failed" 0
[ "$failed" -eq 0 ]
