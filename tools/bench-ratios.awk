function nanoseconds(value, unit) { return value * (unit == "us" ? 1e3 : unit == "ms" ? 1e6 : unit == "s" ? 1e9 : 1) }
function trim(text) { gsub(/^[ \t]+|[ \t]+$/, "", text); return text }
function shown_time(t) { return t < 1e3 ? sprintf("%.1f ns", t) : t < 1e6 ? sprintf("%.2f us", t / 1e3) : sprintf("%.2f ms", t / 1e6) }

# The header names the counters of this file's benchmarks.
/^name,/ { gsub(/"/, ""); columns = split($0, column, ","); next }

/_median"?,/ {
    name = rest = $0
    sub(/_median"?,.*/, "", name)
    sub(/^"/, "", name)
    sub(/\/manual_time$/, "", name)
    sub(/\/iterations:[0-9]+$/, "", name)
    real = sub(/\/real_time$/, "", name)
    sub(/^.*_median"?,/, "", rest)
    split(rest, field, ",")
    gsub(/"/, "", field[4])
    elapsed[name] = nanoseconds(field[2], field[4])
    processor[name] = real ? elapsed[name] : nanoseconds(field[3], field[4])
    for (i = 6; i <= columns; i++) counter[name, column[i]] = field[i - 1]
}

# "1.5k", "2.07", "320m": how the console form shortens a counter.
function plain(text, last) {
    last = substr(text, length(text))
    return (text + 0) * (last == "k" ? 1e3 : last == "M" ? 1e6 : last == "G" ? 1e9 : last == "m" ? 1e-3 : last == "u" ? 1e-6 : last == "n" ? 1e-9 : 1)
}

# The console form: name, elapsed time, processor time, repetitions, counters.
/_median +[0-9][^,]* (ns|us|ms|s) / {
    name = rest = $0
    sub(/_median +[0-9].*/, "", name)
    sub(/\/manual_time$/, "", name)
    sub(/\/iterations:[0-9]+$/, "", name)
    real = sub(/\/real_time$/, "", name)
    sub(/^.*_median +/, "", rest)
    fields = split(rest, field, / +/)
    elapsed[name] = nanoseconds(field[1], field[2])
    processor[name] = real ? elapsed[name] : nanoseconds(field[3], field[4])
    for (i = 6; i <= fields; i++) {
        split(field[i], pair, "=")
        counter[name, pair[1]] = plain(pair[2])
    }
}

function need(name) {
    if (name in elapsed) return 1
    printf "   ?       %s: there is no benchmark \"%s\"\n", what, name
    bad = 1
    return 0
}

# Sets value and text of an expression; false when a benchmark is missing.
function evaluate(expression, side) {
    if (split(expression, side, " / ") == 2) {
        if (!need(side[1]) || !need(side[2])) return 0
        value = elapsed[side[1]] / elapsed[side[2]]
        text = sprintf("%.2f", value)
    } else if (split(expression, side, " - ") == 2) {
        if (!need(side[1]) || !need(side[2])) return 0
        value = elapsed[side[1]] - elapsed[side[2]]
        text = shown_time(value)
    } else if (split(expression, side, " @") == 2) {
        if (!need(side[1])) return 0
        if (counter[side[1], side[2]] == "") {
            printf "   ?       %s: the results hold no counter \"%s\" of \"%s\"\n", what, side[2], side[1]
            bad = 1
            return 0
        }
        value = counter[side[1], side[2]] + 0
        text = sprintf("%.2f", value)
    } else {
        if (!need(expression)) return 0
        value = processor[expression]
        text = shown_time(value)
    }
    return 1
}

END {
    while ((getline line < limits) > 0) {
        if (line ~ /^[ \t]*(#|$)/) continue
        split(line, part, "|")
        what = trim(part[1])
        limit = trim(part[3])
        if (!evaluate(trim(part[2]))) continue
        split(limit, figure, " ")
        bound = nanoseconds(figure[2], figure[3])
        kept = figure[1] == "<=" ? value <= bound : value >= bound
        printf "   %-7s %s: %s (%s)\n", kept ? "kept" : "MISSED", what, text, limit
        if (!kept) bad = 1
    }
    exit bad
}
