# shellcheck shell=bash
command_build() {
    [ $# -eq 0 ] || fail "build takes no arguments"
    need_packages build wine
    build_third_party
    build_preset windows-x86
    note "the libraries and programs are in build/windows-x86/bin"
}
