#!/usr/bin/env bash
# Runs a program on a display of its own with a window manager, so that focus, grabs and stacking are real. With
# WITH_COMPOSITOR set, also with a compositor where one is installed, so that translucent windows look as on a desktop.
set -euo pipefail
# No session bus: a test reaches nobody's desktop, and the bus library loses memory where it looks for a bus in vain.
export DBUS_SESSION_BUS_ADDRESS=disabled:
exec xvfb-run --auto-servernum --server-args="-screen 0 1600x1200x24 -nolisten tcp" bash -c '
    ready=$(mktemp -u)
    # Windows that appear while it starts are taken over without focus, so its own word that it is ready is waited for.
    openbox --sm-disable --startup "touch $ready" >/dev/null 2>&1 & manager=$!
    for _ in $(seq 200); do [ -e "$ready" ] && break; sleep 0.05; done
    rm -f "$ready"
    compositor=
    if [ -n "${WITH_COMPOSITOR:-}" ] && command -v xcompmgr >/dev/null; then
        xcompmgr >/dev/null 2>&1 & compositor=$!
    fi
    "$@"
    code=$?
    kill $manager $compositor 2>/dev/null
    exit $code' with-display "$@"
