# shellcheck shell=bash
# Third-party libraries, presets and the Wine session.

export NINJA_STATUS='[%f/%t] '

build_third_party() {
    local stamps=build/deps/stamps
    for name in zlib libdeflate libpng1.6 libjpeg-turbo geographiclib googletest benchmark; do
        if [ ! -e "$stamps/built-$name" ]; then
            headline "Building the third-party libraries for 32-bit Windows (about two minutes, once)"
            step tools/build-deps || exit 1
            return
        fi
    done
}

# What the benchmarks compare with.
build_yardsticks() {
    local stamps=build/deps/stamps
    [ -e $stamps/built-shapelib ] && [ -e $stamps/built-yoga ] && [ -e $stamps/built-giflib ] &&
        [ -e $stamps/built-stb ] && return
    command -v npm > /dev/null || need_packages peers
    headline "Building what the benchmarks compare with (once)"
    step tools/build-deps yardsticks || exit 1
}

# build_preset NAME [TARGET...]
build_preset() {
    local preset=$1 arguments=()
    shift
    [ $# -eq 0 ] || arguments=(--target "$@")
    headline "Building $preset"
    configure_preset "$preset"
    long_step "build-$preset" cmake --build --preset "$preset" "${arguments[@]}" || exit 1
}

# Once configured, the build itself notices when it must be configured anew.
configure_preset() {
    if [ -f "build/$1/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "build/$1/CMakeCache.txt"; then
        note "the checkout has moved: building $1 anew"
        rm -rf "build/$1"
    fi
    [ -f "build/$1/build.ninja" ] && return
    long_step "configure-$1" cmake --preset "$1" || exit 1
}

# The session is stopped at the end, however the end comes, unless it ran before.
borrow_wine_session() {
    if tools/wine-session status; then return; fi
    at_exit+=("tools/wine-session stop")
    tools/wine-session start || exit 1
}
