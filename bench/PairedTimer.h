#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

namespace vorn::bench
{
/// Times an operation against a yardstick in turns of the same run, so that whatever slows one slows the other. Reports
/// the time of a turn (so many calls), that of one call of each as "call_ns" and "yardstick_ns", and "ratio" of the
/// two. `prepare` runs before each turn, untimed.
template <class Operation, class Yardstick, class Preparation>
void Compare(benchmark::State& state, int callsInTurn, Operation operation, Yardstick yardstick, Preparation prepare)
{
    using Clock = std::chrono::steady_clock;
    const auto seconds = [=](auto& call)
    {
        const auto start = Clock::now();
        for (int i = 0; i < callsInTurn; ++i)
        {
            call();
        }
        return std::chrono::duration<double>(Clock::now() - start).count();
    };
    double mine = 0;
    double measure = 0;
    for (auto _ : state)
    {
        prepare();
        measure += seconds(yardstick);
        prepare();
        const double own = seconds(operation);
        mine += own;
        state.SetIterationTime(own);
    }
    const double calls = static_cast<double>(state.iterations()) * callsInTurn;
    state.counters["call_ns"] = mine / calls * 1e9;
    state.counters["yardstick_ns"] = measure / calls * 1e9;
    state.counters["ratio"] = mine / measure;
}

template <class Operation, class Yardstick>
void Compare(benchmark::State& state, int callsInTurn, Operation operation, Yardstick yardstick)
{
    Compare(state, callsInTurn, operation, yardstick, [] {});
}
} // namespace vorn::bench
