#include "apps/chart/core/ChartScene.h"
#include "apps/chart/core/ElevationBands.h"
#include "apps/chart/core/Thinning.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vorn::chart
{

namespace
{

constexpr double kGridStep = 0.25;        // degrees between the heights
constexpr double kBandTolerance = 0.02;   // degrees: as fine as anybody sees
constexpr double kCoarseTolerance = 0.01; // half a pixel at 1:5,000,000
constexpr double kSheetStep = 1;          // degrees between the points of the sheet's outline

bool IsEmpty(const Extent& region)
{
    return region.south >= region.north || region.west >= region.east;
}

Extent RegionOf(const std::vector<Shore>& shores)
{
    Extent region{90, -90, 180, -180};
    for (const Shore& shore : shores)
    {
        if (shore.kind != ShoreKind::Land)
            continue;
        region.south = std::min(region.south, shore.south);
        region.north = std::max(region.north, shore.north);
        region.east = std::max(region.east, shore.east);
        region.west = std::min(region.west, shore.west);
    }
    return region;
}

std::vector<LatLon> Outline(const Extent& region)
{
    std::vector<LatLon> outline;
    if (IsEmpty(region))
        return outline;
    const int across = std::max(1, static_cast<int>((region.east - region.west) / kSheetStep));
    const int up = std::max(1, static_cast<int>((region.north - region.south) / kSheetStep));
    const auto lon = [&](int step)
    {
        return region.west + (region.east - region.west) * step / across;
    };
    const auto lat = [&](int step)
    {
        return region.south + (region.north - region.south) * step / up;
    };
    for (int step = 0; step < across; ++step)
        outline.emplace_back(region.south, lon(step));
    for (int step = 0; step < up; ++step)
        outline.emplace_back(lat(step), region.east);
    for (int step = across; step > 0; --step)
        outline.emplace_back(region.north, lon(step));
    for (int step = up; step > 0; --step)
        outline.emplace_back(lat(step), region.west);
    return outline;
}

std::vector<std::vector<std::vector<LatLon>>> BandsOf(const ChartData& data, const Extent& region)
{
    std::vector<std::vector<std::vector<LatLon>>> bands;
    if (IsEmpty(region))
        return bands;
    const int rows = static_cast<int>(std::ceil((region.north - region.south) / kGridStep)) + 1;
    const int columns = static_cast<int>(std::ceil((region.east - region.west) / kGridStep)) + 1;
    HeightGrid grid(region, rows, columns);
    grid.Blend(KnownHeights(data.aids, data.aerodromes));
    for (int band = 1; band < kBands; ++band)
    {
        bands.push_back(grid.OutlinesOf(kBandHeights[band]));
        for (std::vector<LatLon>& outline : bands.back())
            outline = Divided(Thinned(outline, kBandTolerance, true), true);
    }
    return bands;
}

std::vector<Shore> CoarseOf(std::vector<Shore> shores)
{
    for (Shore& shore : shores)
        shore.points = Thinned(shore.points, kCoarseTolerance, shore.kind != ShoreKind::Border);
    FinishShores(shores);
    return shores;
}

} // namespace

ChartModel ModelOf(ChartData data, std::string_view route)
{
    ChartModel model;
    model.data = std::move(data);
    model.route = RouteFrom(model.data, route);
    model.region = RegionOf(model.data.shores);
    model.sheet = Outline(model.region);
    model.bands = BandsOf(model.data, model.region);
    model.coarse = CoarseOf(model.data.shores);
    for (const Aerodrome& aerodrome : model.data.aerodromes)
        model.fields.push_back(ShapeOf(aerodrome, 0));
    return model;
}

std::vector<LatLon> PlacesOf(const ChartModel& model)
{
    std::vector<LatLon> places;
    for (const Aid& aid : model.data.aids)
        places.push_back(aid.position);
    for (const Aerodrome& aerodrome : model.data.aerodromes)
        places.push_back(aerodrome.position);
    return places;
}

} // namespace vorn::chart
