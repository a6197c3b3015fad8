#!/usr/bin/env bash
# machine-namespaces.sh COMMAND [ARGUMENTS...]
#
# Runs a command where a machine hangs on the computer's USB Type-C cable: in a network namespace of its own, whose one
# wired adapter "usb0" is up and has no address. Its other end lies in a second namespace, at 192.168.7.2. The command
# finds that namespace's name in MACHINE_NAMESPACE and starts machines there:
#
#     ip netns exec "$MACHINE_NAMESPACE" machine-simulator --address 192.168.7.2
#
# Nothing of it is seen outside, and all of it is gone when the command ends, however it ends. Exit code 77 (skipped):
# this user or this system cannot make namespaces.
set -euo pipefail

skip() { echo "machine-namespaces.sh: skipped: $1" >&2; exit 77; }

[ $# -gt 0 ] || { echo "usage: machine-namespaces.sh COMMAND [ARGUMENTS...]" >&2; exit 2; }
[ "$(id -u)" -eq 0 ] || skip "network namespaces need root"
command -v ip >/dev/null || skip "the program 'ip' is missing (Debian: iproute2)"

machine=controls-machine-$$
host=controls-host-$$
child=

clean_up() {
    trap - EXIT INT TERM HUP
    [ -z "$child" ] || kill "$child" 2>/dev/null || true
    for namespace in "$host" "$machine"; do
        # Only what runs in the two namespaces, and that is what the command started: asked first, then ended.
        for attempt in TERM 0 0 0 0 0 0 0 0 0 KILL; do
            pids=$(ip netns pids "$namespace" 2>/dev/null) && [ -n "$pids" ] || break
            for pid in $pids; do kill -s "$attempt" "$pid" 2>/dev/null || true; done
            sleep 0.1
        done
        ip netns delete "$namespace" 2>/dev/null || true
    done
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

ip netns add "$machine" 2>/dev/null && ip netns add "$host" 2>/dev/null || skip "no network namespace could be made"
ip link add usb0 netns "$host" type veth peer name usb0 netns "$machine" 2>/dev/null || skip "no veth pair could be made"
ip -n "$machine" link set lo up
ip -n "$machine" address add 192.168.7.2/24 dev usb0
ip -n "$machine" link set usb0 up
ip -n "$host" link set lo up
ip -n "$host" link set usb0 up
ip netns exec "$host" true 2>/dev/null || skip "no network namespace could be entered"
for _ in $(seq 100); do # the cable takes a moment to be noticed
    ip -n "$host" -br link show usb0 | grep -q LOWER_UP && break
    sleep 0.05
done

# In the background: a signal is answered at once, not when the command has ended.
MACHINE_NAMESPACE=$machine ip netns exec "$host" "$@" <&0 &
child=$!
code=0
wait "$child" || code=$?
child=
exit "$code"
