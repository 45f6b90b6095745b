# shellcheck shell=bash
# What a developer of a host needs, as a ZIP: it is made of what is installed, and then unpacked and started in a Wine
# prefix of its own, so that nothing it needs can be missing.
command_package() {
    local version name
    [ $# -eq 0 ] || fail "package takes no arguments"
    need_packages build wine
    build_third_party
    build_preset windows-x86 install_contents
    version=$(sed -n 's/^project(VornCommon VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
    name=VornCommon-$version-win32
    headline "Packing out/$name.zip"
    long_step package tools/make-package build/windows-x86 "$version" build/package || exit 1
    mkdir -p out
    mv "build/package/$name.zip" "out/$name.zip"
    rm -rf build/package
    headline "Starting it in an empty Wine prefix"
    step tools/check-package "out/$name.zip" || fail "what was packed does not run by itself"
    headline "The package is $PWD/out/$name.zip ($(du -h "out/$name.zip" | cut -f 1))"
}
