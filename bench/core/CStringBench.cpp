#include "framework/core/Array.h"
#include "framework/core/CString.h"
#include "framework/core/Map.h"

#include <atomic>
#include <benchmark/benchmark.h>
#include <string>
#include <unordered_map>

// Short texts are made and destroyed all the time; each case has its counterpart of the C++ library beside it.

namespace
{
constexpr char kText[] = "0123456789012345678901234567890123456789012345678901234567890123456789";

template <class Text>
void MakeAndDestroy(benchmark::State& state)
{
    const std::string source(kText, static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
    {
        Text text(source.c_str());
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(MakeAndDestroy<CString>)->Arg(1)->Arg(15)->Arg(30)->Arg(60);
BENCHMARK(MakeAndDestroy<std::string>)->Arg(1)->Arg(15)->Arg(30)->Arg(60);

template <class Text>
void CopyAndDestroy(benchmark::State& state)
{
    const Text source(kText);
    for (auto _ : state)
    {
        Text text(source);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(CopyAndDestroy<CString>);
BENCHMARK(CopyAndDestroy<std::string>);

// What thread-safe counting costs at least: one locked operation up, one down.
void CountUpAndDown(benchmark::State& state)
{
    std::atomic<int> count = 5;
    for (auto _ : state)
    {
        count.fetch_add(1, std::memory_order_relaxed);
        benchmark::DoNotOptimize(count.fetch_sub(1, std::memory_order_acq_rel) == 1);
    }
}
BENCHMARK(CountUpAndDown);

void MakeEmpty(benchmark::State& state)
{
    for (auto _ : state)
    {
        CString text;
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(MakeEmpty);

template <class Text>
void AppendCharacters(benchmark::State& state)
{
    for (auto _ : state)
    {
        Text text;
        for (int i = 0; i < 1000; ++i)
        {
            text += 'x';
        }
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(AppendCharacters<CString>);
BENCHMARK(AppendCharacters<std::string>);

void FormatNumber(benchmark::State& state)
{
    for (auto _ : state)
    {
        CString text;
        text.Format("%.1f %s", 123.456, "NM");
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(FormatNumber);

CString KeyOf(int number)
{
    CString key;
    key.Format("KEY%d", number);
    return key;
}

void LookUpInMap(benchmark::State& state)
{
    CMapStringToString map;
    map.InitHashTable(101);
    for (int i = 0; i < 90; ++i)
    {
        map.SetAt(KeyOf(i), "x");
    }
    const CString key = KeyOf(47);
    CString value;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(map.Lookup(key, value));
    }
}
BENCHMARK(LookUpInMap);

void LookUpInUnorderedMap(benchmark::State& state)
{
    std::unordered_map<std::string, char> map;
    for (int i = 0; i < 90; ++i)
    {
        map.emplace(KeyOf(i).GetString(), 'x');
    }
    const std::string key = KeyOf(47).GetString();
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(map.find(key));
    }
}
BENCHMARK(LookUpInUnorderedMap);

void AddToStringArray(benchmark::State& state)
{
    const CString text("element");
    for (auto _ : state)
    {
        CStringArray array;
        for (int i = 0; i < 1000; ++i)
        {
            array.Add(text);
        }
        benchmark::DoNotOptimize(array.GetData());
    }
}
BENCHMARK(AddToStringArray);
} // namespace
