#!/usr/bin/env bash
# Checks docs/ and the README against the sources:
#   - every exported class and function has its page, with a picture, an example, its signals and its traps;
#   - code that is marked as taken from a file is that file's, word for word;
#   - every page of what a user can use or read tells its keys and what a screen reader meets;
#   - every signal, property and operation of a header is told of on its page, and no page tells of a signal or an
#     operation that there is not;
#   - the benchmarks' page has its figures;
#   - every link leads somewhere.
# With --fix the marked code is taken from the files anew.
set -euo pipefail
cd "$(dirname "$0")/.."

checks=0 problems=0
check() { checks=$((checks + 1)); }
problem() { # FILE TEXT
    echo "$1: $2"
    problems=$((problems + 1))
}

# The text that a page shows of a file: what stands between the lines [example] and [/example], or all of it.
excerpt() {
    if grep -q '^ *// \[example\]$' "$1"; then
        awk '/^ *\/\/ \[example\]$/ { taking = first = 1; next }
             /^ *\/\/ \[\/example\]$/ { taking = 0 }
             taking { if (first) { indented = /^    /; first = 0 }
                      if (indented) sub(/^    /, "")
                      print }' "$1"
    else
        cat "$1"
    fi
}

# Prints a page with the code of every mark "<!-- from: FILE -->" replaced by what FILE holds.
refresh() {
    local line file skipping=
    while IFS= read -r line; do
        if [ -n "$skipping" ]; then
            [ "$line" = '```' ] || continue
            skipping=
        fi
        printf '%s\n' "$line"
        if [[ $line =~ ^'<!-- from: '(.*)' -->'$ ]]; then
            file=${BASH_REMATCH[1]}
            IFS= read -r line
            printf '%s\n' "$line"
            excerpt "$file"
            skipping=yes
        fi
    done <"$1"
}

mapfile -t texts < <(git ls-files --cached --others --exclude-standard '*.md')

for text in "${texts[@]}"; do
    grep -q '^<!-- from: ' "$text" || continue
    while IFS= read -r file; do
        check
        [ -f "$file" ] || problem "$text" "there is no $file"
    done < <(sed -n 's/^<!-- from: \(.*\) -->$/\1/p' "$text")
    refreshed=$(refresh "$text")
    if [ "$refreshed" != "$(cat "$text")" ]; then
        if [ "${1:-}" = --fix ]; then
            printf '%s\n' "$refreshed" >"$text"
        else
            problem "$text" "its code is not that of the files any more; run scripts/check-docs.sh --fix"
        fi
    fi
done

# Pages of classes that a host makes by name alone stand beside those of exported ones; their headers are not installed.
declare -A headers=([CPlainTextEdit]=CustomControls/fields/CPlainTextEdit.h
    [CTextBrowser]=CustomControls/fields/CTextBrowser.h)
while IFS=: read -r header name; do
    headers[$name]=$header
done < <(grep -rhHoP '^(class CUSTOMCONTROLS_EXPORT \K\w+|CUSTOMCONTROLS_EXPORT .*[ *]\K\w+(?=\())' --include='*.h' CustomControls)
unset 'headers[CustomControls]' # it is nothing but a name

# What nobody uses or reads: looks, pictures, painters of cells, whose views tell what they hold.
declare -A silent=()
for name in CCustomAppStyle CDelegateTableViewItem CFileNameDelegate CMsgBoxBackground CToolBarStyle CVelmarAnimation \
    CWatermarkWidget LoadCustomControlsTranslation StatefulIcon; do
    silent[$name]=yes
done

# The names of operations in the first column of a section's table.
table_names() { # PAGE HEADING
    awk -v heading="## $2" '/^## / { on = $0 == heading; next } on' "$1" | grep -oP '^\| `\K[^`]+(?=`)' | grep -oP '\w+(?=\()' |
        sort -u || true
}

# The public operations of a header, but for those of a base that it takes over: a declaration may go on for several lines.
operations() { # HEADER
    awk '/^(public|public Q_SLOTS):/ { on = 1; next } /^[a-zA-Z].*:$|^};/ { on = 0 }
         !on || /^ *(\/?\*|\/\/|Q_|friend |$)/ { next }
         { declaration = declaration $0 }
         /[;{}]$/ || /; *\/\// { print declaration; declaration = "" }' "$1" |
        grep -vE 'override|~|^    enum' | grep -oP '^ +[^(=]*?\b\K\w+(?=\()' | sort -u || true
}

# The signals of a header.
signals() { # HEADER
    awk '/^Q_SIGNALS:/ { on = 1; next } /^[a-z].*:$|^};/ { on = 0 } on' "$1" | grep -oP '^    void \K\w+(?=\()' | sort -u || true
}

# What is in the first list and not in the second.
missing_from() { # LIST LIST
    comm -23 <(printf '%s\n' "$1") <(printf '%s\n' "$2")
}

# The header of a class and those of its bases here.
family_of() { # HEADER
    local base header
    printf '%s\n' "$1"
    while read -r base; do
        for header in CustomControls/"$base".h CustomControls/*/"$base".h; do
            [ -f "$header" ] && family_of "$header"
        done
    done < <(grep -oP '^(class .*: |    , )public \K\w+' "$1")
}

for name in "${!headers[@]}"; do
    header=${headers[$name]}
    page=docs/controls/$name.md
    check
    [ -f "$page" ] || { problem "$header" "$name has no $page"; continue; }
    link="](../../$header)"
    grep -q "^class CUSTOMCONTROLS_EXPORT $name\b\|^CUSTOMCONTROLS_EXPORT" "$header" || link="\`$header\`" # not installed
    grep -qF "$link" "$page" || problem "$page" "it does not tell of $header"
    grep -qE '^!\[.+\]\(\.\./images/controls/.+\.png\)' "$page" || problem "$page" "it has no picture"
    grep -qF "<!-- from: docs/examples/$name.cpp -->" "$page" || problem "$page" "it has no example"
    for heading in Example Operations Signals Traps; do
        grep -qx "## $heading" "$page" || problem "$page" "it has no heading \"$heading\""
    done
    grep -qF "](docs/controls/$name.md)" README.md || problem README.md "it does not link to $page"
    grep -qF "]($name.md)" docs/controls/README.md || problem docs/controls/README.md "it does not link to $page"
    if [ -z "${silent[$name]:-}" ]; then
        grep -qx "## Keyboard and screen reader" "$page" || problem "$page" "it does not tell keys and screen reader"
    fi
    statements=$(excerpt "docs/examples/$name.cpp" | sed 's://.*$::' | grep -c ';[[:space:]]*$')
    [ "$statements" -le 10 ] || problem "$page" "its example has $statements statements, not ten at most"
    while IFS= read -r member; do
        check
        grep -qF "\`$member\`" "$page" || problem "$page" "it does not tell of the property $member"
    done < <(grep -oP '^    Q_PROPERTY\(\S+ \K\w+' "$header" || true)
    mapfile -t family < <(family_of "$header")
    declarations=$(cat "${family[@]}")
    for kind in Operations Signals; do
        told=$(table_names "$page" "$kind")
        [ "$kind" = Signals ] && members=$(signals "$header") || members=$(operations "$header" | grep -vx "$name" || true)
        for member in $(missing_from "$members" "$told"); do
            problem "$page" "it does not tell of $member among its ${kind,,}"
        done
        for member in $told; do
            check
            [[ $declarations =~ [^[:alnum:]_]$member\( ]] || problem "$page" "it tells of $member, which $header has not"
        done
    done
done
for page in docs/controls/*.md; do
    name=$(basename "$page" .md)
    check
    [ "$name" = README ] || [ -n "${headers[$name]:-}" ] || problem "$page" "there is no such class"
done

check
awk '/^<!-- figures -->$/ { on = 1; next } /^<!-- end of figures -->$/ { on = 0 } on && /^\|/ { found = 1 } END { exit !found }' \
    benchmarks/README.md || problem benchmarks/README.md "it has no figures; run scripts/benchmark.sh --update"

for text in "${texts[@]}"; do
    folder=$(dirname "$text")
    while IFS= read -r link; do
        check
        [ -e "$folder/${link%%#*}" ] || problem "$text" "the link to $link leads nowhere"
    done < <(awk '/^ *```/ { code = !code; next } !code' "$text" | grep -oP '\]\(\K(?!https?:|#)[^)]+(?=\))' || true)
done

echo "$checks things checked"
passed=$((problems ? 0 : 1))
echo "Totals: $passed passed, $((1 - passed)) failed, 0 skipped"
[ "$problems" -eq 0 ]
