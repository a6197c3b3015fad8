# Leaves out of a header the overrides that have no comment of their own: they are what the base class tells of them.
# Empty lines stand in their place, so that line numbers hold. A property without a comment is told to be what its
# operation is.
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
    if (previous !~ /\*\/[ \t]*$/ && match($0, /WRITE [A-Za-z]+/) && /^    Q_PROPERTY/) {
        print "    /** See " substr($0, RSTART + 6, RLENGTH - 6) "(). */" $0
        previous = $0
        next
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
