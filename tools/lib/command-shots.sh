# shellcheck shell=bash
# Pictures of the planner's windows at each density of the screen, in a Wine prefix of their own:
# places that a user has left would show another first size.
shots_densities=(96 144)

command_shots() {
    local density faulty=0
    [ $# -eq 0 ] || fail "shots takes no argument"
    need_packages build wine
    build_third_party
    build_preset windows-x86 VornSample
    export VORN_WINE_HOME=$PWD/build/wine-shots
    at_exit+=("tools/wine-session stop")
    rm -rf out/shots
    mkdir -p out/shots
    for density in "${shots_densities[@]}"; do
        headline "Pictures at $density dots an inch"
        use_density "$density"
        step timeout 300 tools/with-wine build/windows-x86/bin/VornSample.exe --shots out/shots || faulty=1
    done
    [ "$faulty" -eq 0 ] || fail "something is not as it should look; the pictures are in $PWD/out/shots"
    headline "All pictures in one: $PWD/out/shots/contact.png"
}

# Fonts follow the density from the next start of the session on.
use_density() {
    tools/wine-session start || exit 1
    tools/with-wine reg delete 'HKCU\Software\Vornwald\VornSample' /f > build/log/shots.log 2>&1 || true
    tools/with-wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f > build/log/shots.log
    tools/wine-session stop
    tools/wine-session start || exit 1
}
