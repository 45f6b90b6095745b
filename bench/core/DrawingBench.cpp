#include "aviation/core/DistributePoints.h"
#include "aviation/core/NightColors.h"
#include "aviation/core/SmoothLine.h"
#include "files/core/PaletteCells.h"

#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/GeodesicLine.hpp>
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <vector>

namespace
{

constexpr double kMetresPerMile = 1852;

/// A winding line of the size of a large window.
std::vector<CPoint> ScreenLine(std::size_t count)
{
    std::vector<CPoint> line;
    for (std::size_t i = 0; i < count; ++i)
    {
        const double turn = static_cast<double>(i) * 0.37;
        line.emplace_back(static_cast<int>(960 + 900 * std::cos(turn)),
                          static_cast<int>(600 + 500 * std::sin(turn * 1.7)));
    }
    return line;
}

std::vector<LatLon> Route(std::size_t count)
{
    std::vector<LatLon> route;
    for (std::size_t i = 0; i < count; ++i)
    {
        const double turn = static_cast<double>(i) * 0.37;
        route.emplace_back(50 + 12 * std::sin(turn), 10 + 15 * std::cos(turn * 1.7));
    }
    return route;
}

void Smooth(benchmark::State& state)
{
    std::vector<CPoint> line = ScreenLine(1001);
    line.push_back(line.front());
    for (auto _ : state)
    {
        CPoint* out = nullptr;
        state.SetItemsProcessed(state.items_processed() + BezierSmoothLine(line.data(), 1002, &out));
        delete[] out;
    }
}
BENCHMARK(Smooth)->Name("Drawing/BezierSmoothLine to 10,010 points");

void DistributeScreen(benchmark::State& state)
{
    std::vector<CPoint> line = ScreenLine(100);
    for (auto _ : state)
    {
        CPoint* out = nullptr;
        state.SetItemsProcessed(state.items_processed() + DistributePoints(line.data(), 100, 6.5, &out));
        delete[] out;
    }
}
BENCHMARK(DistributeScreen)->Name("Drawing/DistributePoints on the screen");

void DistributeRoute(benchmark::State& state)
{
    std::vector<LatLon> route = Route(100);
    for (auto _ : state)
    {
        LatLon* out = nullptr;
        state.SetItemsProcessed(state.items_processed() + DistributePoints(route.data(), 100, 10, &out));
        delete[] out;
    }
}
BENCHMARK(DistributeRoute)->Name("Drawing/DistributePoints on the earth");

/// The same steps by the geodesic library's line objects alone.
int DistributeByLines(const std::vector<LatLon>& route, double spacing, std::unique_ptr<double[]>& out)
{
    using GeographicLib::Geodesic;
    std::vector<GeographicLib::GeodesicLine> lines;
    double length = 0;
    for (std::size_t i = 1; i < route.size(); ++i)
    {
        lines.push_back(
            Geodesic::WGS84().InverseLine(route[i - 1].Lat(), route[i - 1].Lon(), route[i].Lat(), route[i].Lon(),
                                          Geodesic::LATITUDE | Geodesic::LONGITUDE | Geodesic::DISTANCE_IN));
        length += lines.back().Distance();
    }
    const int steps = static_cast<int>(length / (spacing * kMetresPerMile));
    const double step = length / steps;
    out.reset(new double[2 * static_cast<std::size_t>(steps) + 2]);
    double* next = out.get();
    double carry = 0;
    for (const GeographicLib::GeodesicLine& line : lines)
    {
        const int points = static_cast<int>((line.Distance() + carry) / step);
        for (int j = 1; j <= points; ++j, next += 2)
        {
            line.Position(j * step - carry, next[0], next[1]);
        }
        carry = line.Distance() - (points * step - carry);
    }
    return steps + 1;
}

void DistributeRouteByLines(benchmark::State& state)
{
    const std::vector<LatLon> route = Route(100);
    std::unique_ptr<double[]> out;
    for (auto _ : state)
    {
        state.SetItemsProcessed(state.items_processed() + DistributeByLines(route, 10, out));
        benchmark::DoNotOptimize(out.get());
    }
}
BENCHMARK(DistributeRouteByLines)->Name("Drawing/the same by GeographicLib's lines");

void Dim(benchmark::State& state)
{
    const vorn::NightTables tables({0.4, 0.5, 0.6});
    COLORREF color = 0x00C86432;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(color);
        benchmark::DoNotOptimize(tables.Dimmed(color));
    }
}
BENCHMARK(Dim)->Name("Drawing/a colour dimmed");

void PaletteHit(benchmark::State& state)
{
    vorn::PaletteCells cells(32);
    const auto nearest = [](BYTE red, BYTE, BYTE)
    {
        return static_cast<BYTE>(red / 2);
    };
    std::uint32_t color = 1;
    for (auto _ : state)
    {
        color = color * 1664525U + 1013904223U;
        benchmark::DoNotOptimize(cells.IndexOf(static_cast<BYTE>(color >> 24), static_cast<BYTE>(color >> 16),
                                               static_cast<BYTE>(color >> 8), nearest));
    }
}
BENCHMARK(PaletteHit)->Name("Drawing/a palette index found");

} // namespace
