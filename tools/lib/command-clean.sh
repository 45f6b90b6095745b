# shellcheck shell=bash
command_clean() {
    tools/wine-session stop 2> /dev/null || true
    find build -mindepth 1 -maxdepth 1 ! -name deps ! -name vorn.lock -exec rm -rf {} +
    note "build/ holds the third-party libraries only"
}
