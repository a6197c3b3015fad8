#!/usr/bin/env bash
# Compares the classes and functions that the library exports with those that its headers mark as exported.
#   exported-classes.sh LIBRARY SOURCE_DIR TOOL
# TOOL is nm, or for a DLL objdump, of the library's own kind.
set -euo pipefail
library=$1 source_dir=$2 tool=$3

names() {
    case $library in
    *.dll) "$tool" -p "$library" | sed -n '/Ordinal\/Name Pointer/,/^$/s/^\t\[[ 0-9]*\] //p' | c++filt ;;
    *) "$tool" -DC --defined-only "$library" | cut -d' ' -f3- ;;
    esac
}

declared=$(grep -rhoE '^(class|struct) CUSTOMCONTROLS_EXPORT [A-Za-z_]+|^CUSTOMCONTROLS_EXPORT .*\(' "$source_dir" --include='*.h' |
    sed -E 's/^(class|struct) CUSTOMCONTROLS_EXPORT //; s/.*[ *&]([A-Za-z_]+)\($/\1/' | sort -u)
# "vtable for X", "typeinfo name for X", "X::operation(...)", "non-virtual thunk to X::operation(...)", "operation(...)"
exported=$(names | grep -vE '^(__bss_start|_edata|_end|_init|_fini)$' |
    sed -E 's/^(vtable|typeinfo name|typeinfo|VTT|guard variable) for //; s/^(non-virtual|virtual|covariant return) thunk to //; s/[:(<@].*//' |
    sort -u)

if [ "$declared" != "$exported" ]; then
    echo "Marked as exported in the headers (<), exported by the library (>):"
    diff <(echo "$declared") <(echo "$exported") || true
    exit 1
fi
echo "$(wc -l <<<"$exported") classes and functions, as the headers say"
