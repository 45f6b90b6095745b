# shellcheck shell=bash
command_lint() {
    local check failed=()
    [ $# -eq 0 ] || fail "lint takes no arguments"
    need_packages build wine check
    build_third_party
    build_preset windows-x86
    configure_preset native-core
    headline "Linting"
    for check in tools/lint/check-*; do
        note "${check#tools/lint/check-}"
        step "$check" || failed+=("${check#tools/lint/check-}")
    done
    headline "Lengths of functions and files"
    step tools/lint/report-lengths
    [ "${#failed[@]}" -eq 0 ] || fail "these checks failed: ${failed[*]}"
}
