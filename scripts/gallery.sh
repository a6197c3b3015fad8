#!/usr/bin/env bash
# Builds the gallery and runs it. Without a display it walks the gallery's tour on a virtual one and names the pictures.
# Arguments go to the gallery (see --help there).
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}"
build_preset release gallery machine-simulator

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || [ "$(uname)" != Linux ]; then
    say "Opening the gallery"
    exec build/release/bin/gallery "$@"
fi

require_packages "${PACKAGES_DISPLAY[@]}"
say "No display here: walking the tour on a virtual one"
pictures=build/release/tour
rm -rf "$pictures"
# The tour reads every text it sees in the language that the controls are written in.
WITH_COMPOSITOR=1 tests/support/with-display.sh build/release/bin/gallery --language zh --tour "$pictures" "$@"
say "The pictures lie in $PWD/$pictures:"
ls "$pictures"
