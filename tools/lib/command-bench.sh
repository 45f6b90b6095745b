# shellcheck shell=bash
# Benchmarks: the portable ones natively, and all under Wine with server and program on one core; on
# two, a call to the server costs 8 or 50 microseconds by chance. bench/ratios.txt holds the limits.
command_bench() {
    local results=build/bench arguments=(--benchmark_repetitions=5 --benchmark_report_aggregates_only=true)
    [ $# -le 1 ] || fail "bench [FILTER] takes one regular expression at most"
    [ -z "${1:-}" ] || arguments+=("--benchmark_filter=$1")
    need_packages build wine
    build_third_party
    build_preset native-core core_bench
    build_preset windows-x86 core_bench windows_bench bench_start_plain bench_start_library
    mkdir -p "$results"
    rm -f "$results"/*.txt
    headline "Benchmarks, native"
    step build/native-core/bench/core_bench "${arguments[@]}" || exit 1
    bench_under_wine
    headline "Against the limits (bench/ratios.txt)"
    step tools/bench-ratios bench/ratios.txt "$results"/*.txt || fail "not every limit is kept"
}

bench_under_wine() {
    local program core
    core=$(taskset -cp $$ | grep -oE '[0-9]+$')
    headline "Benchmarks, 32-bit Windows under Wine (server and program on core $core)"
    at_exit+=("tools/wine-session stop")
    tools/wine-session stop
    for program in core_bench windows_bench; do
        step taskset -c "$core" tools/with-wine "build/windows-x86/bin/$program.exe" "${arguments[@]}" \
            "--benchmark_out=$results/$program.txt" --benchmark_out_format=console || exit 1
    done
}
