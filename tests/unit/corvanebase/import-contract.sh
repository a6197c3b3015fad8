#!/usr/bin/env bash
# import-contract.sh CONTROLS BASE LIST: fails when the controls import anything from the base that is not in the list, or
# when the base lacks anything of the list.
set -euo pipefail
controls=$1 base=$2 list=$3
command -v nm >/dev/null || { echo "skipped: nm is missing"; exit 77; }
symbols() { nm -D -C "$@" | sed -E 's/^[0-9a-f]* *[A-Za-z] //; s/@.*$//' | LC_ALL=C sort -u; }
defined=$(symbols --defined-only "$base")
imported=$(LC_ALL=C comm -12 <(symbols --undefined-only "$controls") <(echo "$defined"))
contract=$(grep -v '^#' "$list" | LC_ALL=C sort -u)
[ "$(wc -l <<<"$contract")" -eq 46 ] || { echo "the contract should have 46 entries"; exit 1; }
beyond=$(LC_ALL=C comm -23 <(echo "$imported") <(echo "$contract"))
lacking=$(LC_ALL=C comm -13 <(echo "$defined") <(echo "$contract"))
[ -z "$beyond" ] || printf 'imported, but not in the contract:\n%s\n' "$beyond"
[ -z "$lacking" ] || printf 'in the contract, but not exported:\n%s\n' "$lacking"
[ -z "$beyond$lacking" ] || exit 1
[ -n "$imported" ] || { echo "nothing is imported: wrong library?"; exit 1; }
echo "$(wc -l <<<"$imported") of the 46 are imported, and nothing else"
