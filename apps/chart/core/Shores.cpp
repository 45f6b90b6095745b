#include "apps/chart/core/Shores.h"

#include "apps/chart/core/Thinning.h"

#include <algorithm>

namespace vorn::chart
{

namespace
{

std::optional<ShoreKind> KindOf(const std::string& word)
{
    if (word == "land")
        return ShoreKind::Land;
    if (word == "water")
        return ShoreKind::Water;
    return word == "border" ? std::optional(ShoreKind::Border) : std::nullopt;
}

} // namespace

void AddShorePoint(std::vector<Shore>& shores, const FieldOf& field)
{
    const std::string part = field("PART");
    const std::optional<ShoreKind> kind = KindOf(field("KIND"));
    const std::optional<double> lat = NumberIn(field("LATITUDE"));
    const std::optional<double> lon = NumberIn(field("LONGITUDE"));
    if (part.empty() || !kind || !lat || !lon)
        return;
    if (shores.empty() || shores.back().part != part)
    {
        shores.emplace_back();
        shores.back().part = part;
        shores.back().kind = *kind;
    }
    shores.back().points.emplace_back(*lat, *lon);
}

void FinishShores(std::vector<Shore>& shores)
{
    for (Shore& shore : shores)
    {
        shore.points = Divided(shore.points, shore.kind != ShoreKind::Border);
        for (const LatLon& point : shore.points)
        {
            shore.south = std::min(shore.south, point.Lat());
            shore.north = std::max(shore.north, point.Lat());
            shore.west = std::min(shore.west, point.Lon());
            shore.east = std::max(shore.east, point.Lon());
        }
    }
}

} // namespace vorn::chart
