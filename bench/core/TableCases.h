#pragma once

#include "bench/PairedTimer.h"
#include "bench/core/BenchTable.h"
#include "files/core/CDBFFile.h"

namespace vorn::bench
{

/// The table of all cases, made when it is first asked for.
inline const BenchTable& SharedTable()
{
    static const BenchTable table(200000);
    return table;
}

inline constexpr int kReadAhead = 500;
inline constexpr int kPasses = 3;

/// Times a pass over the table against another way's. Each gives what it saw, records or characters, and both must have
/// seen the same. "times" is how many times faster the first is.
template <class Pass, class Peer>
void ComparePasses(benchmark::State& state, Pass pass, Peer peer)
{
    long long mine = 0;
    long long theirs = peer(); // the file is in the page cache from here on
    Compare(
        state, 1,
        [&]
        {
            mine = pass();
        },
        [&]
        {
            theirs = peer();
        });
    state.counters["times"] = 1 / state.counters["ratio"];
    if (mine == 0 || mine != theirs)
    {
        state.SkipWithError("the two did not see the same");
    }
}

/// Reads all records and no field; returns their number.
inline long long ReadRecords(int readAhead)
{
    CDBFFile table(readAhead);
    table.Open(SharedTable().Path(), CFile::modeRead);
    long long records = 0;
    while (table.ReadRecord(-1) == 1)
    {
        ++records;
    }
    return records;
}

} // namespace vorn::bench

/// Registers a comparison of passes.
#define VORN_BENCH_PASSES(function, name)                                                                              \
    BENCHMARK(function)->Name(name)->UseManualTime()->Iterations(vorn::bench::kPasses)->Unit(benchmark::kMillisecond)
