# shellcheck shell=bash
command_docs() {
    [ $# -eq 0 ] || fail "docs takes no arguments"
    need_packages docs
    headline "Making the reference documentation"
    mkdir -p build/docs
    long_step docs tools/lint/check-docs || exit 1
    note "open $PWD/build/docs/html/index.html"
}
