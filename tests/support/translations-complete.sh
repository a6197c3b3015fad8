#!/usr/bin/env bash
# Gathers the texts of the sources anew and names those that a translation lacks, and those it has for nothing.
#   translations-complete.sh LUPDATE TS_FILE SOURCE_DIR...
set -euo pipefail
lupdate=$1 translation=$2
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$translation" "$work/now.ts"
"$lupdate" "$@" -ts "$work/now.ts" -locations none -silent 2>/dev/null
lacking=$(grep -B 4 -E '<translation type="(unfinished|vanished|obsolete)"' "$work/now.ts" | grep '<source>' || true)
if [ -n "$lacking" ]; then
    echo "Not translated, or translated for a text that is gone:"
    echo "$lacking"
    exit 1
fi
echo "$(grep -c '<source>' "$translation") texts, all translated"
