# Leaves out of a header the overrides that have no comment of their own: they are what the base class tells of them.
# Empty lines stand in their place, so that line numbers hold.
function print_held() {
    if (held != "") {
        print held
        held = ""
    }
}
{
    if (held != "") {
        if ($0 ~ /override;$/) { # its second line
            held = ""
            print ""
            print ""
            previous = ""
            next
        }
        print_held()
    }
    if (previous !~ /\*\/[ \t]*$/ && /^    [A-Za-z].*\(/) {
        if (/override;$/) {
            print ""
            previous = ""
            next
        }
        if (/,$/) {
            held = $0
            previous = $0
            next
        }
    }
    print
    previous = $0
}
END { print_held() }
