# Makes the string-table script of the control help texts: resources/help/help_strings.txt in, a resource
# script out. A text is the tip, and where there is an info-box text, a carriage return and that text.
function quoted(text) {
    gsub(/"/, "\"\"", text) # "\n" stays as it is: the resource compiler reads it as a line feed
    return text
}

BEGIN {
    FS = "\t"
    print "#include <windows.h>\n\nLANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US\n\nSTRINGTABLE\nBEGIN"
}

/^#/ || /^$/ { next }

NF != 6 || $1 !~ /^[0-9]+$/ || $5 == "" {
    printf "%s:%d: not id, topic, control, kind, tip and info\n", FILENAME, FNR > "/dev/stderr"
    failed = 1
    exit 1
}

{ printf "    %d, \"%s%s\"\n", $1, quoted($5), $6 == "" ? "" : "\\r" quoted($6) }

END {
    if (failed) exit 1
    print "END"
}
