#include "bench/PairedTimer.h"
#include "family/VornChart/core/ExternalProj.h"
#include "family/VornChart/core/ViewDefinition.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>
#include <vornplugin.h>

namespace
{
constexpr const char* kNames[] = {"Equidistant cylindrical", "Mercator",    "Lambert conformal", "Polar stereographic",
                                  "Transverse Mercator",     "Orthographic"};

struct Pair
{
    double first;
    double second;
};

std::unique_ptr<Projection> Made(int kind)
{
    std::unique_ptr<Projection> projection(Projection::CreateProjection(kind));
    projection->SetMapPole(kind == PROJECTION_MERCATOR ? 0 : 47, 8);
    return projection;
}

/// Positions that all six maps show.
std::vector<Pair> Positions()
{
    std::vector<Pair> positions;
    for (int i = 0; i < 1024; ++i)
    {
        positions.push_back({10 + (i * 37 % 1024) * 0.07, -30 + (i * 101 % 1024) * 0.07});
    }
    return positions;
}

std::vector<Pair> Points(const Projection& projection)
{
    std::vector<Pair> points = Positions();
    for (Pair& point : points)
    {
        const Pair position = point;
        projection.LLtoXY(position.first, position.second, point.first, point.second);
    }
    return points;
}

void Forward(benchmark::State& state, int kind)
{
    const auto projection = Made(kind);
    const std::vector<Pair> positions = Positions();
    std::size_t next = 0;
    for (auto _ : state)
    {
        const Pair& position = positions[next++ % positions.size()];
        Pair point{};
        benchmark::DoNotOptimize(projection->LLtoXY(position.first, position.second, point.first, point.second));
        benchmark::DoNotOptimize(point);
    }
}

void Inverse(benchmark::State& state, int kind)
{
    const auto projection = Made(kind);
    const std::vector<Pair> points = Points(*projection);
    std::size_t next = 0;
    for (auto _ : state)
    {
        const Pair& point = points[next++ % points.size()];
        Pair position{};
        benchmark::DoNotOptimize(projection->XYtoLL(point.first, point.second, position.first, position.second));
        benchmark::DoNotOptimize(position);
    }
}

[[maybe_unused]] const bool g_registered = []
{
    for (int kind = 0; kind < PROJECTION_BUILT_IN_COUNT; ++kind)
    {
        const std::string name = std::string("Projection/") + kNames[kind];
        benchmark::RegisterBenchmark((name + " forward").c_str(), Forward, kind);
        benchmark::RegisterBenchmark((name + " inverse").c_str(), Inverse, kind);
    }
    return true;
}();

/// What a plug-in around the same projection would do.
int PluginForward(VornProjection projection, double lat, double lon, double* x, double* y)
{
    return reinterpret_cast<const Projection*>(projection)->LLtoXY(lat, lon, *x, *y) ? 1 : 0;
}

/// What the way through a plug-in adds to a call.
void ThroughPlugin(benchmark::State& state)
{
    const auto direct = Made(PROJECTION_EQUIDISTANT_CYLINDRICAL); // the quickest: the difference shows
    ExternalProj external(reinterpret_cast<VornProjection>(direct.get()));
    constexpr int kForwardEntry = 10;
    external.Bind(kForwardEntry, reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(PluginForward)));
    const std::vector<Pair> positions = Positions();
    const auto calls = [&positions](const Projection& projection)
    {
        return [&positions, &projection]
        {
            for (const Pair& position : positions)
            {
                Pair point{};
                benchmark::DoNotOptimize(projection.LLtoXY(position.first, position.second, point.first, point.second));
                benchmark::DoNotOptimize(point);
            }
        };
    };
    vorn::bench::Compare(state, 1, calls(external), calls(*direct));
    const double points = static_cast<double>(positions.size());
    state.counters["beyond_ns"] = (state.counters["call_ns"] - state.counters["yardstick_ns"]) / points;
}
BENCHMARK(ThroughPlugin)->Name("Projection/through a plug-in and beyond the projection itself")->UseManualTime();

void ParseView(benchmark::State& state)
{
    ViewDefinition view;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(view.Parse("v1|2|2|33|45|640|512|-0.125|0.25|12000|180|-7.5|47.4647|8.5492|"));
    }
}
BENCHMARK(ParseView)->Name("Projection/a view parsed");
} // namespace
