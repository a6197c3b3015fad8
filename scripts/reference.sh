#!/usr/bin/env bash
# Makes the reference of the public headers with Doxygen, and fails on its first warning. Returns 77 where there is no
# Doxygen.
#   reference.sh [FOLDER]    default: build/reference; index.html lies in FOLDER/html
set -euo pipefail
cd "$(dirname "$0")/.."
folder=${1:-build/reference}
if ! command -v doxygen >/dev/null; then
    echo "There is no doxygen here"
    echo "Totals: 0 passed, 0 failed, 1 skipped"
    exit 77
fi
mkdir -p "$folder"
{ cat docs/Doxyfile; echo "OUTPUT_DIRECTORY = \"$folder\""; } | doxygen -
[ -f "$folder/html/index.html" ] || { echo "doxygen made no pages"; exit 1; }
echo "The reference lies in $folder/html/index.html"
echo "Totals: 1 passed, 0 failed, 0 skipped"
