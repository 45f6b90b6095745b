# shellcheck shell=bash
# Everything that checks, as one CTest suite: the trees of all presets and the lints.
test_presets=(windows-x86 native-core native-asan native-fuzz)

command_test() {
    local preset begin=$SECONDS status=0
    need_packages build wine check oracle docs
    build_third_party
    for preset in "${test_presets[@]}"; do
        build_preset "$preset"
    done
    write_suite
    borrow_wine_session
    headline "Testing"
    # One more than there are processors: tests of windows wait for messages half of their time.
    step ctest --test-dir build/suite -j "$(($(nproc) + 1))" --output-on-failure --no-tests=error "$@" || status=$?
    [ "$status" -eq 0 ] || fail "tests failed (after $((SECONDS - begin)) s in all)"
}

write_suite() {
    local preset check
    mkdir -p build/suite
    {
        for check in tools/lint/check-* tools/lint/test-lints tools/lint/report-lengths; do
            suite_lint "$check"
        done
        for preset in "${test_presets[@]}"; do
            printf 'subdirs("%s")\n' "$PWD/build/$preset"
        done
    } > build/suite/CTestTestfile.cmake
}

suite_lint() { # script
    local name=lint.${1##*/}
    name=${name/check-/}
    printf 'add_test([=[%s]=] [=[%s]=])\nset_tests_properties([=[%s]=] PROPERTIES TIMEOUT 600)\n' "$name" "$PWD/$1" "$name"
}
