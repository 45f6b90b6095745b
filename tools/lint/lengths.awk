# Functions and their lines: what stands between `{` and `}` in the first column, which the format
# guarantees, apart from types, namespaces and tables.
/^\{$/ && before !~ /^(namespace|class|struct|enum|union|extern)|[=,]$/ { from = FNR; name = before }
/^\}/ && from { print "function", FNR - from - 1, FILENAME ": " name; from = 0 }
{ before = $0 }
END { print "file", FNR, FILENAME }
