#!/usr/bin/env bash
# Tells how much of the two libraries the unit and integration tests reach, by folder, and fails below 95 % of the lines
# of either. build/coverage/lines.txt names the lines that no test reaches; docs/coverage.md says why.
#   --report   only count anew what the last run has left
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

least=95
status=0 passed=0 failed=0 skipped=0
case ${1:-} in
--report) ;;
?*) sed -n '2,4s/^# \{0,1\}//p' "$0"; exit 2 ;;
*)
    require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" "${PACKAGES_DISPLAY[@]}" "${PACKAGES_TEST[@]}" \
        "${PACKAGES_COVERAGE[@]}"
    build_preset coverage
    find build/coverage -name '*.gcda' -delete
    say "Unit and integration tests, counting lines"
    log=build/coverage/tests.log
    # Those that are left out look at the libraries' files, which this build has changed.
    ctest --preset coverage -j "$(nproc)" -L 'unit|integration' -E '^(Package|ExportedClasses|ImportContract)' --no-tests=error \
        --repeat until-pass:2 -V --output-log "$log" >/dev/null || status=1
    report_log "$log"
    ;;
esac

say "Lines that the tests reach"
table=build/coverage/lines.csv
gcovr --root . --object-directory build/coverage --filter 'CustomControls/' --filter 'CorvaneBase/' \
    --exclude-throw-branches --csv "$table" --txt build/coverage/lines.txt build/coverage >/dev/null
awk -F, -v least="$least" '
    NR > 1 {
        folder = $1; sub(/\/[^\/]*$/, "", folder)
        library = $1; sub(/\/.*/, "", library)
        all[folder] += $2; reached[folder] += $3
        if (library != folder) folders[library] = 1
        total[library] += $2; hit[library] += $3
    }
    END {
        for (library in folders) {
            all[library " in all"] = total[library]
            reached[library " in all"] = hit[library]
        }
        for (folder in all)
            printf "%-36s %5d of %5d lines  %6.2f %%\n", folder, reached[folder], all[folder], 100 * reached[folder] / all[folder] | "sort"
        close("sort")
        for (library in total)
            if (100 * hit[library] < least * total[library])
                bad = 1
        exit bad
    }' "$table" || { echo "Less than $least % of a library"; status=1 failed=$((failed + 1)); }
printf '%d passed, %d failed, %d skipped\n' "$passed" "$failed" "$skipped"
exit "$status"
