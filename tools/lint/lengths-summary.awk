function at(values, n, part) { return n ? values[int((n - 1) * part) + 1] : 0 }
function summary(what, values, n) {
    printf "   %d %s: median %d lines, nine of ten at most %d, longest %d\n", n, what, at(values, n, 0.5), at(values, n, 0.9), at(values, n, 1)
}
$1 == "function" { functions[++nf] = $2; if ($2 > 60) long = long "   over 60 lines: " $0 "\n" }
$1 == "file" { files[++nl] = $2; if ($2 > 400) long = long "   over 400 lines: " $0 "\n" }
END {
    summary("functions", functions, nf)
    summary("source files", files, nl)
    printf "%s", long
}
