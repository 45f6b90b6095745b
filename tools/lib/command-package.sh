# shellcheck shell=bash
# What a developer of a host needs, as a ZIP: it is made of what is installed, and then unpacked and started in a Wine
# prefix of its own, so that nothing it needs can be missing.
command_package() {
    local version name stage
    [ $# -eq 0 ] || fail "package takes no arguments"
    need_packages build wine
    build_third_party
    build_preset windows-x86
    version=$(sed -n 's/^project(VornCommon VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
    name=VornCommon-$version-win32
    stage=build/package
    headline "Packing out/$name.zip"
    rm -rf "$stage" "out/$name.zip"
    mkdir -p out "$stage"
    long_step install cmake --install build/windows-x86 --prefix "$PWD/$stage/$name" --strip || exit 1
    step tools/collect-licences "$stage/$name/share/doc/vorn" || exit 1
    (cd "$stage" && cmake -E tar cf "$OLDPWD/out/$name.zip" --format=zip "$name") || fail "the ZIP could not be written"
    headline "Starting it in an empty Wine prefix"
    step tools/check-package "out/$name.zip" || fail "what was packed does not run by itself"
    headline "The package is $PWD/out/$name.zip ($(du -h "out/$name.zip" | cut -f 1))"
}
