#include "aviation/Date.h"
#include "aviation/Formatting.h"
#include "bench/PairedTimer.h"
#include "config/AppRegMgr.h"
#include "config/PathMgr.h"
#include "frame/VornCommonApp.h"
#include "frame/core/CSortableStringArray.h"
#include "frame/core/Serialisation.h"
#include "frame/core/TextUtilities.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>
#include <vector>

namespace
{

using vorn::bench::Compare;

/// A host with stored settings, as a user has them; the same for every benchmark.
VornCommonApp& Host()
{
    static VornCommonApp host;
    if (VornCommonApp::Inst() == nullptr)
        VornCommonApp::Inst(&host);
    host.WriteSettingInt("General", "Show seconds", 0);
    host.WriteSettingInt("General", "LatLonPrecMinutes", 1);
    host.WriteSettingInt("Altitude", "Flight Level", 18000);
    return host;
}

/// The whole beside its part that is not text.
void Latitude(benchmark::State& state)
{
    VornCommonApp& host = Host();
    double degrees = 47.123456;
    Compare(
        state, 200,
        [&]
        {
            benchmark::DoNotOptimize(degrees);
            benchmark::DoNotOptimize(LatToString(degrees));
        },
        [&]
        {
            benchmark::DoNotOptimize(host.GetSettingInt("General", "Show seconds", 0));
            benchmark::DoNotOptimize(host.GetSettingInt("General", "LatLonPrecMinutes", 1));
        });
}
BENCHMARK(Latitude)->Name("Texts/LatToString to its two settings")->UseManualTime();

void FlightLevel(benchmark::State& state)
{
    Host();
    for (auto _ : state)
        benchmark::DoNotOptimize(FLAltToString(24000));
}
BENCHMARK(FlightLevel)->Name("Texts/FLAltToString");

void Duration(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(TimeToString(12.3456, false, true));
}
BENCHMARK(Duration)->Name("Texts/TimeToString hours");

void DaylightSaving(benchmark::State& state)
{
    const CTime now = CTime::GetCurrentTime();
    for (auto _ : state)
        benchmark::DoNotOptimize(Date::isDST(now));
}
BENCHMARK(DaylightSaving)->Name("Texts/Date::isDST");

void ExpiryText(benchmark::State& state)
{
    Date date(CTime::GetCurrentTime() + CTimeSpan(100000));
    for (auto _ : state)
        benchmark::DoNotOptimize(date.GetTermExpDate());
}
BENCHMARK(ExpiryText)->Name("Texts/GetTermExpDate");

std::vector<char> Record(CStringList& list)
{
    std::vector<char> record(3'000'000);
    char* cursor = record.data();
    unsigned long remaining = static_cast<unsigned long>(record.size());
    ReadWriteCStringList(cursor, remaining, list, false);
    record.resize(record.size() - remaining);
    return record;
}

void ReadList(benchmark::State& state)
{
    CStringList list;
    for (int i = 0; i < 100'000; ++i)
        list.AddTail("twenty characters ab");
    std::vector<char> record = Record(list);
    for (auto _ : state)
    {
        CStringList back;
        char* cursor = record.data();
        unsigned long remaining = static_cast<unsigned long>(record.size());
        benchmark::DoNotOptimize(ReadWriteCStringList(cursor, remaining, back, true));
        state.PauseTiming();
        back.RemoveAll();
        state.ResumeTiming();
    }
}
BENCHMARK(ReadList)->Name("Texts/read 100,000 texts")->Unit(benchmark::kMillisecond);

std::vector<std::string> Names()
{
    std::vector<std::string> names(100'000);
    unsigned seed = 3;
    for (std::string& name : names)
    {
        seed = seed * 1103515245U + 12345U;
        name = "waypoint " + std::to_string(seed % 1'000'003U);
    }
    return names;
}

void SortArray(benchmark::State& state)
{
    const std::vector<std::string> names = Names();
    CStringArray texts;
    for (const std::string& name : names)
        texts.Add(name.c_str());
    CSortableStringArray array;
    std::vector<std::string> standard;
    Compare(
        state, 1,
        [&]
        {
            array.Copy(texts);
            array.Sort(state.range(0) != 0);
        },
        [&]
        {
            standard = names;
            std::sort(standard.begin(), standard.end());
        });
}
BENCHMARK(SortArray)
    ->Name("Texts/Sort 100,000 names to std::sort")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

void EffectivePath(benchmark::State& state)
{
    PathMgr* const paths = PathMgr::Instance("Planner");
    for (auto _ : state)
        benchmark::DoNotOptimize(paths->GetPathInst(DP_CHARTS, 0));
}
BENCHMARK(EffectivePath)->Name("Paths/GetPathInst");

void PathList(benchmark::State& state)
{
    PathMgr* const paths = PathMgr::Instance("Planner");
    for (auto _ : state)
        benchmark::DoNotOptimize(paths->GetPathInstList(DP_CHARTS, "Planner"));
}
BENCHMARK(PathList)->Name("Paths/GetPathInstList");

void ComposedPath(benchmark::State& state)
{
    PathMgr* const paths = PathMgr::Instance("Planner");
    AppRegMgr::Instance()->AllowNetwork(state.range(0) != 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(paths->GetKnownPath(KP_USER, VP_APP, "x", 0));
    AppRegMgr::Instance()->AllowNetwork(false);
}
BENCHMARK(ComposedPath)->Name("Paths/GetKnownPath")->Arg(0)->Arg(1);

void FillLayout(benchmark::State& state)
{
    for (auto _ : state)
        AppPathData record(static_cast<PathCfgVer>(state.range(0)), "Planner");
}
BENCHMARK(FillLayout)->Name("Paths/fill a layout")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace
