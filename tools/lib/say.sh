# shellcheck shell=bash
# How the scripts talk and how they run others: a headline for each step, signs of life on long
# ones, a clear last word, and nothing left running after an interruption.

headline() { printf '== %s\n' "$*"; }
note() { printf '   %s\n' "$*"; }
fail() {
    printf 'vorn: %s\n' "$*" >&2
    exit 1
}

progress_period=15  # seconds between two signs of life
shown_on_failure=40 # lines of the log
running_group=      # process group of the command that runs now
at_exit=()          # commands for the end, however it comes

on_interrupt() {
    trap '' INT TERM HUP
    if [ -n "$running_group" ]; then
        kill -- "-$running_group" 2> /dev/null || true
    fi
    printf '\nvorn: interrupted; the next run goes on from here\n' >&2
    exit 130
}

on_exit() {
    local command
    for command in "${at_exit[@]}"; do
        $command
    done
}

trap on_interrupt INT TERM HUP
trap on_exit EXIT

# start_group COMMAND...: in the background, in a process group of its own.
start_group() {
    set -m
    "$@" < /dev/null &
    running_group=$!
    set +m
}

end_group() {
    local status=0
    wait "$running_group" || status=$?
    running_group=
    return "$status"
}

# step COMMAND...: its output is ours, its status too.
step() {
    start_group "$@"
    end_group
}

# long_step NAME COMMAND...: its output goes to build/log/NAME.log, of which the last line is shown
# now and then, and the end when the command fails. The command's status is returned.
long_step() {
    local log=build/log/$1.log status=0
    shift
    mkdir -p build/log
    start_group "$@" > "$log" 2>&1
    watch_log "$running_group" "$log"
    end_group || status=$?
    if [ "$status" -ne 0 ]; then
        tail -n "$shown_on_failure" "$log" >&2
        printf 'vorn: this failed; the whole output is in %s\n' "$log" >&2
    fi
    return "$status"
}

watch_log() { # pid log
    local begin=$SECONDS next=$((SECONDS + progress_period))
    while kill -0 "$1" 2> /dev/null; do
        if [ "$SECONDS" -ge "$next" ]; then
            note "$((SECONDS - begin)) s: $(last_line "$2")"
            next=$((SECONDS + progress_period))
        fi
        sleep 0.1
    done
}

last_line() { tail -c 2000 "$1" | tr '\r' '\n' | grep '[^[:space:]]' | tail -n 1 | cut -c 1-100; }

# Two runs in one checkout would build into each other's hands: the second one waits.
take_turn() {
    if ! mkdir -p build 2> /dev/null || [ ! -w build ]; then
        fail "the folder $PWD/build cannot be written"
    fi
    exec 8> build/vorn.lock
    if ! flock -n 8; then
        note "another ./vorn works in this checkout; waiting for it"
        flock 8
    fi
}

end_turn() { exec 8>&-; }
