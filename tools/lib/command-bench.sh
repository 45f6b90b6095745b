# shellcheck shell=bash
# Benchmarks: the portable ones natively, and all under Wine with server and program on one core; on
# two, a call to the server costs 8 or 50 microseconds by chance. bench/ratios.txt holds the limits.
command_bench() {
    local results=build/bench missed=0 arguments=(--benchmark_repetitions=5 --benchmark_report_aggregates_only=true)
    [ $# -le 1 ] || fail "bench [FILTER] takes one regular expression at most"
    [ -z "${1:-}" ] || arguments+=("--benchmark_filter=$1")
    need_packages build wine count
    build_third_party
    build_yardsticks
    build_preset native-core core_bench count_table_fields
    build_preset windows-x86 core_bench windows_bench bench_start_plain bench_start_library
    mkdir -p "$results"
    rm -f "$results"/*.txt
    headline "Benchmarks, native"
    step build/native-core/bench/core_bench "${arguments[@]}" || exit 1
    bench_under_wine
    headline "Against the limits (bench/ratios.txt), and instructions counted"
    step tools/bench-ratios bench/ratios.txt "$results"/*.txt || missed=1
    step tools/bench-instructions || missed=1
    [ "$missed" -eq 0 ] || fail "not every limit is kept"
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
