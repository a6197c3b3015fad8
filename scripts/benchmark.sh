#!/usr/bin/env bash
# Measures each control beside the toolkit's own counterpart, by time and by executed instructions.
#   --update   writes the tables and the machine's description into benchmarks/README.md
# Everything else goes to the program, e.g. --filter '^combo' or --profiles FOLDER (see its --help).
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

readme=benchmarks/README.md
json=build/benchmarks.json
tables=build/benchmarks.md
begin='<!-- figures -->'
end='<!-- end of figures -->'

update=no options=()
for argument in "$@"; do
    case $argument in
    --update) update=yes ;;
    -h | --help) sed -n '2,4s/^# \{0,1\}//p' "$0"; exit 0 ;;
    *) options+=("$argument") ;;
    esac
done

describe_machine() {
    local processor memory kind=
    if grep -q '^flags.* hypervisor' /proc/cpuinfo; then
        kind=' (virtual machine)'
    fi
    processor=$(sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo | head -n 1)
    memory=$(awk '/^MemTotal/ {printf "%.0f", $2 / 1024 / 1024}' /proc/meminfo)
    printf 'Measured on %s: %s cores of %s%s, %s GiB, %s, %s, Qt %s, offscreen, release build, commit %s.\n' \
        "$(date -u +%F)" "$(nproc)" "${processor:-an unnamed processor}" "$kind" "$memory" \
        "$(. /etc/os-release && echo "$PRETTY_NAME")" "$(c++ --version | head -n 1)" \
        "$(qtpaths6 --qt-version 2>/dev/null || qmake6 -query QT_VERSION)" "$(git rev-parse --short HEAD)"
}

require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" libbenchmark-dev valgrind
build_preset release benchmarks load-cost

status=0
build/release/bin/benchmarks --instructions --json "$json" "${options[@]}" >"$tables" || status=1
echo >>"$tables"
build/release/bin/load-cost >>"$tables" || status=1
cat "$tables"

if [ "$update" = yes ]; then
    {
        sed "/^$begin\$/q" "$readme"
        echo
        describe_machine
        cat "$tables"
        echo
        sed -n "/^$end\$/,\$p" "$readme"
    } >build/benchmarks-readme.md
    mv build/benchmarks-readme.md "$readme"
    say "Wrote the tables into $readme"
fi
exit "$status"
