#include "apps/chart/Chart.h"
#include "frame/VornCommonApp.h"

#include <benchmark/benchmark.h>

#include <array>
#include <string>

namespace
{

using vorn::chart::Chart;

constexpr int kWidth = 1000;
constexpr int kHeight = 700;

std::string OwnData()
{
    std::array<char, MAX_PATH> program{};
    GetModuleFileName(nullptr, program.data(), MAX_PATH);
    const std::string path = program.data();
    return path.substr(0, path.find_last_of('\\') + 1) + "data\\";
}

/// Frames of a chart that a hand moves to and fro, of the sample's whole data, drawn as its window does. The argument
/// is the scale's denominator in thousands; 0 the whole region.
void Frames(benchmark::State& state, Chart::Quality quality)
{
    static VornCommonApp host;
    if (VornCommonApp::Inst() == nullptr)
        VornCommonApp::Inst(&host);
    Chart chart;
    if (!chart.Load(OwnData()).empty())
        return state.SkipWithError("the sample's tables are not there");
    chart.View().SetSize(kWidth, kHeight, 96);
    chart.ShowRegion();
    if (state.range(0) > 0)
    {
        chart.View().SetCentre(LatLon(47.5, -121.5));
        chart.View().SetScale(static_cast<double>(state.range(0)) * 1000);
    }
    CDC screen;
    screen.CreateDC("DISPLAY", nullptr, nullptr, nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, kWidth, kHeight);
    CBitmap* const before = memory.SelectObject(&bitmap);
    int turn = 0;
    for (auto _ : state)
    {
        chart.View().Pan(turn % 20 < 10 ? 5 : -5, 2 * (turn % 3 - 1));
        ++turn;
        chart.Draw(memory, 0, 0, quality);
        GdiFlush();
    }
    memory.SelectObject(before);
}

void Moving(benchmark::State& state)
{
    Frames(state, Chart::Quality::Fast);
}
BENCHMARK(Moving)->Name("Chart/a frame while it moves")->Arg(0)->Arg(2500)->Arg(1000)->Unit(benchmark::kMillisecond);

void AtRest(benchmark::State& state)
{
    Frames(state, Chart::Quality::Smooth);
}
BENCHMARK(AtRest)->Name("Chart/a frame at rest")->Arg(0)->Arg(2500)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
