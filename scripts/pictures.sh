#!/usr/bin/env bash
# Takes the pictures of docs/ from the gallery anew: those of the controls' pages, and the README's.
#   pictures.sh [FOLDER]    into FOLDER instead, all of them, for the test that compares them; nothing is built then
# GALLERY names the program; by default build/release/bin/gallery.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

gallery=${GALLERY:-build/release/bin/gallery}
if [ $# -eq 0 ]; then
    require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" "${PACKAGES_DISPLAY[@]}"
    build_preset release gallery
    folder=$(mktemp -d)
    trap 'rm -rf "$folder"' EXIT
else
    folder=$1
fi
take=(env QT_SCALE_FACTOR=1 "$gallery" --language en --tour "$folder" --tour-only pictures)
mkdir -p "$folder"
run=(tests/support/with-display.sh)
[ -z "${DISPLAY:-}" ] || [ $# -eq 0 ] || run=() # the test has a display of its own already
"${run[@]}" "${take[@]}" | tee "$folder/steps.log"
# A gallery that was closed on the way ends without this line.
grep -q '^tour: [0-9]* ok, 0 failed' "$folder/steps.log" || { say "Not all pictures could be taken"; exit 1; }
[ $# -eq 0 ] || exit 0

mkdir -p docs/images/controls
rm -f docs/images/controls/*.png "$folder"/0*.png
mv "$folder/gallery.png" docs/images/gallery.png
mv "$folder"/*.png docs/images/controls/
say "The pictures lie in docs/images; please look at them"
