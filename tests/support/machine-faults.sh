#!/usr/bin/env bash
# machine-faults.sh EXECUTABLE [FAULT...]
#
# Runs MachineFaultEnduranceTest's every fault, or those that are named, all at the same time: each in a process and in
# network namespaces of its own, since the longest of them do little but wait. MACHINE_FAULT_ATTEMPTS (1000) says how
# often each is met; a thousand times five seconds is what the longest take. Exit code 77 (skipped): no namespaces can
# be made here.
set -euo pipefail

[ $# -gt 0 ] || { echo "usage: machine-faults.sh EXECUTABLE [FAULT...]" >&2; exit 2; }
executable=$1
function=everyAttemptEndsOnceAndLeavesNothing
namespaces=$(dirname "$(readlink -f "$0")")/machine-namespaces.sh
shift
[ $# -gt 0 ] || mapfile -t tags < <("$executable" -datatags | sed -n "s/^[^ ]* $function //p")
[ $# -eq 0 ] || tags=("$@")
# So many windows that come and go on one display would take each other's focus.
export QT_QPA_PLATFORM=offscreen MACHINE_FAULT_ATTEMPTS=${MACHINE_FAULT_ATTEMPTS:-1000}
export QTEST_FUNCTION_TIMEOUT=7200000 # of its own accord a test function is ended after five minutes

logs=$(mktemp -d)
children=()
trap 'kill "${children[@]}" 2>/dev/null || true; wait; rm -rf "$logs"' EXIT
trap 'exit 143' INT TERM HUP
for tag in "${tags[@]}"; do
    "$namespaces" "$executable" "$function:$tag" >"$logs/$tag" 2>&1 &
    children+=($!)
done
code=0
for index in "${!tags[@]}"; do
    result=0
    wait "${children[index]}" || result=$?
    cat "$logs/${tags[index]}"
    [ "$result" -eq 0 ] || code=$result
done
children=()
exit "$code"
