# shellcheck shell=bash
# The sample application: on the user's display, or on a virtual one with a picture and a summary.
command_run() {
    local sample=build/windows-x86/bin/VornSample.exe
    need_packages build wine
    build_third_party
    build_preset windows-x86 VornSample
    if [ -n "${DISPLAY:-}" ]; then
        run_on_display "$sample" "$@"
    else
        run_for_picture "$sample" "$@"
    fi
}

run_on_display() {
    local session
    session=$(tools/wine-session desktop-env) || exit 1
    headline "Starting the sample on display $DISPLAY; close its window to end"
    end_turn
    eval "$session"
    export WINEPREFIX WINEARCH=win32 WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree=;mshtml="
    step wine "$@"
}

run_for_picture() {
    local status=0
    borrow_wine_session
    headline "There is no display: starting the sample on a virtual one"
    mkdir -p out
    rm -f out/sample.png
    step timeout 120 tools/with-wine "$1" --snapshot out/sample.png --summary "${@:2}" || status=$?
    [ "$status" -eq 0 ] || fail "the sample ended with status $status"
    [ -s out/sample.png ] || fail "the sample saved no picture"
    headline "The picture of its window is $PWD/out/sample.png"
}
