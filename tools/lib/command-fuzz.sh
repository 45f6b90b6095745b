# shellcheck shell=bash
# Longer fuzzing than the tests do. What is found stays in build/fuzz-corpus for the next run; an
# input that breaks a target is kept in build/fuzz-findings.
command_fuzz() {
    local seconds=${1:-60} wanted=${2:-} target found=0 status=0
    [[ $seconds =~ ^[0-9]+$ ]] || fail "fuzz [SECONDS] [TARGET]: \"$seconds\" is no number of seconds"
    need_packages build check
    build_preset native-fuzz
    mkdir -p build/fuzz-findings
    for target in build/native-fuzz/fuzz/fuzz_*; do
        [[ -f $target && -x $target ]] || continue
        local name=${target##*/fuzz_}
        [ -z "$wanted" ] || [ "$wanted" = "$name" ] || continue
        found=1
        fuzz_target "$target" "$name" "$seconds" || status=1
    done
    [ "$found" -eq 1 ] || fail "there is no fuzz target \"$wanted\""
    [ "$status" -eq 0 ] || fail "a target broke; the inputs are in build/fuzz-findings"
}

fuzz_target() { # program name seconds
    local corpus=build/fuzz-corpus/$2 seeds=()
    headline "Fuzzing $2 for $3 s"
    mkdir -p "$corpus"
    [ ! -d "fuzz/seeds/$2" ] || seeds=("fuzz/seeds/$2")
    long_step "fuzz-$2" "$1" -max_total_time="$3" -max_len=65536 -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="build/fuzz-findings/$2-" "$corpus" "${seeds[@]}" || return
    note "$(grep -E 'number_of_executed_units' "build/log/fuzz-$2.log" | tr -s ' ' | cut -d ' ' -f 2) runs, $(find "$corpus" -type f | wc -l) inputs kept"
}
