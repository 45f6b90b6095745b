#include "bench/PairedTimer.h"
#include "toolkit/ResMgr.h"

#include <cstdio>
#include <vector>

namespace
{

using vorn::bench::Compare;

/// A manager without objects before and after the benchmark.
class FreshManager
{
public:
    FreshManager()
    {
        ResMgr::FreeInst();
    }
    ~FreshManager()
    {
        ResMgr::FreeInst();
    }
    FreshManager(const FreshManager&) = delete;
    FreshManager& operator=(const FreshManager&) = delete;

    ResMgr* operator->() const
    {
        return ResMgr::Inst();
    }
};

COLORREF ColorOf(unsigned index)
{
    return index * 2654435761U & 0x00FFFFFF;
}

/// Pens that are there, asked for in turn.
void PenHit(benchmark::State& state)
{
    const FreshManager manager;
    const auto count = static_cast<unsigned>(state.range(0));
    ResMgr* const shared = ResMgr::Inst();
    unsigned i = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(shared->GetPen(PS_SOLID, 1, ColorOf(i)));
        i = i + 1 == count ? 0 : i + 1;
    }
    state.counters["pens"] = manager->GetResourceCount();
}
BENCHMARK(PenHit)->Name("Resources/a pen that is there")->Arg(64)->Arg(1000);

void BrushHit(benchmark::State& state)
{
    const FreshManager manager;
    ResMgr* const shared = ResMgr::Inst();
    unsigned i = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(shared->GetBrush(ColorOf(i)));
        i = (i + 1) % 1000;
    }
}
BENCHMARK(BrushHit)->Name("Resources/a brush that is there/1000");

std::vector<LOGFONTA> Descriptions()
{
    std::vector<LOGFONTA> descriptions(60);
    for (std::size_t i = 0; i < descriptions.size(); ++i)
    {
        LOGFONTA& one = descriptions[i];
        one.lfHeight = -8 - static_cast<LONG>(i % 20);
        one.lfWeight = i % 3 == 0 ? FW_BOLD : FW_NORMAL;
        std::snprintf(one.lfFaceName, LF_FACESIZE, "Chart Face %u", static_cast<unsigned>(i % 7));
        one.lfItalic = static_cast<BYTE>(i % 2);
        one.lfQuality = static_cast<BYTE>(i % 5);
    }
    return descriptions;
}

void FontHit(benchmark::State& state)
{
    const FreshManager manager;
    const std::vector<LOGFONTA> descriptions = Descriptions();
    ResMgr* const shared = ResMgr::Inst();
    std::size_t i = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(shared->GetFont(&descriptions[i]));
        i = i + 1 == descriptions.size() ? 0 : i + 1;
    }
    state.counters["fonts"] = manager->GetResourceCount();
}
BENCHMARK(FontHit)->Name("Resources/a font among 60");

void PenAgainstMaking(benchmark::State& state)
{
    const FreshManager manager;
    ResMgr* const shared = ResMgr::Inst();
    for (unsigned i = 0; i < 2000; ++i)
    {
        shared->GetPen(PS_SOLID, 1, ColorOf(i));
    }
    unsigned i = 0;
    unsigned made = 0;
    Compare(
        state, 2000,
        [&]
        {
            benchmark::DoNotOptimize(shared->GetPen(PS_SOLID, 1, ColorOf(i++ % 2000)));
        },
        [&]
        {
            ::DeleteObject(::CreatePen(PS_SOLID, 1, ColorOf(made++ % 2000)));
        });
}
BENCHMARK(PenAgainstMaking)->Name("Resources/a pen of 2,000 to making and deleting it")->UseManualTime();

void FontAgainstMaking(benchmark::State& state)
{
    const FreshManager manager;
    const std::vector<LOGFONTA> descriptions = Descriptions();
    ResMgr* const shared = ResMgr::Inst();
    std::size_t i = 0;
    std::size_t made = 0;
    Compare(
        state, 600,
        [&]
        {
            benchmark::DoNotOptimize(shared->GetFont(&descriptions[i++ % 60]));
        },
        [&]
        {
            ::DeleteObject(::CreateFontIndirectA(&descriptions[made++ % 60]));
        });
}
BENCHMARK(FontAgainstMaking)->Name("Resources/a font of 60 to making and deleting it")->UseManualTime();

} // namespace
