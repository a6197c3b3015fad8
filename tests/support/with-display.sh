#!/usr/bin/env bash
# Runs a program on a display of its own with a window manager, so that focus, grabs and stacking are real.
set -euo pipefail
# No session bus: a test reaches nobody's desktop, and the bus library loses memory where it looks for a bus in vain.
export DBUS_SESSION_BUS_ADDRESS=disabled:
exec xvfb-run --auto-servernum --server-args="-screen 0 1600x1200x24 -nolisten tcp" \
    bash -c 'openbox --sm-disable >/dev/null 2>&1 & wm=$!
             for _ in $(seq 100); do xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q window && break; sleep 0.05; done
             "$@"; code=$?; kill $wm 2>/dev/null; exit $code' with-display "$@"
