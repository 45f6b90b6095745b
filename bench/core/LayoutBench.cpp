#include "bench/PairedTimer.h"
#include "bench/core/LayoutCases.h"

#include <benchmark/benchmark.h>

// Layouts measured and placed: one change of the window's size.
namespace
{
using namespace vorn::bench;

/// What a node of a large tree costs, and how much more than one of ten small trees in turns with it.
void OneChangeOfSize(benchmark::State& state)
{
    constexpr int kSmallTrees = 10;
    ChangingTree large(10000);
    ChangingTree small(1000);
    Compare(
        state, 1,
        [&]
        {
            large.Change();
        },
        [&]
        {
            for (int i = 0; i < kSmallTrees; ++i)
            {
                small.Change();
            }
        });
    state.counters["nodes"] = large.Nodes();
    state.counters["node_ns"] = state.counters["call_ns"] / large.Nodes();
    state.counters["node_ratio"] = state.counters["ratio"] * kSmallTrees * small.Nodes() / large.Nodes();
}
BENCHMARK(OneChangeOfSize)->Name("Layout/10,000 leaves to ten times 1,000")->UseManualTime();

} // namespace
