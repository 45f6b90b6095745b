#include "apps/chart/core/SceneDraft.h"

#include <cmath>
#include <utility>

namespace vorn::chart
{

namespace
{

constexpr double kOnEdge = 1e-6;           // degrees
constexpr double kCoarseAbove = 4'500'000; // scale
constexpr double kAside = 0.3;             // degrees beside the view
constexpr double kLongestJump = 1.5;       // degrees

/// Leaves out the points of an outline that run along beside the view: a few of them do as well there.
class Passing
{
public:
    explicit Passing(const Extent& extent) : m_extent(extent), m_whole(extent.east - extent.west > 180)
    {
    }

    /// To be asked of all points in turn.
    bool Needs(const std::vector<LatLon>& points, std::size_t at)
    {
        const LatLon& point = points[at];
        const unsigned here = SidesOf(point);
        const bool aside = at > 0 && at + 1 < points.size() && (m_before & here & SidesOf(points[at + 1])) != 0;
        m_before = here;
        if (aside && !m_whole && std::abs(point.Lat() - m_kept.Lat()) < kLongestJump &&
            std::abs(point.Lon() - m_kept.Lon()) < kLongestJump)
            return false;
        m_kept = point;
        return true;
    }

private:
    unsigned SidesOf(const LatLon& point) const
    {
        return (point.Lat() > m_extent.north + kAside ? 1u : 0u) | (point.Lat() < m_extent.south - kAside ? 2u : 0u) |
               (point.Lon() > m_extent.east + kAside ? 4u : 0u) | (point.Lon() < m_extent.west - kAside ? 8u : 0u);
    }

    Extent m_extent;
    bool m_whole;
    unsigned m_before = 0;
    LatLon m_kept;
};

/// An outline within reach of the view. Outlines of which a part lies behind the map's edge lose that part.
PixelLine AreaOf(const SceneDraft& draft, const std::vector<LatLon>& outline)
{
    PixelLine line;
    line.reserve(outline.size());
    Passing passing(draft.extent);
    for (std::size_t i = 0; i < outline.size(); ++i)
    {
        if (!passing.Needs(outline, i))
            continue;
        if (const std::optional<PixelPoint> pixel = draft.view.ToPixel(outline[i]))
            line.push_back(*pixel);
    }
    return ClippedArea(line, draft.reach);
}

void AddArea(const SceneDraft& draft, const std::vector<LatLon>& outline, std::vector<PixelLine>& areas)
{
    if (PixelLine area = AreaOf(draft, outline); !area.empty())
        areas.push_back(std::move(area));
}

/// True where the region's own edge cuts the land: no coast.
bool IsCut(const Extent& region, const LatLon& first, const LatLon& second)
{
    const auto both = [](double one, double other, double edge)
    {
        return std::abs(one - edge) < kOnEdge && std::abs(other - edge) < kOnEdge;
    };
    return both(first.Lat(), second.Lat(), region.south) || both(first.Lat(), second.Lat(), region.north) ||
           both(first.Lon(), second.Lon(), region.west) || both(first.Lon(), second.Lon(), region.east);
}

void AddLineOf(const SceneDraft& draft, const std::vector<LatLon>& points, bool closed, std::vector<PixelLine>& lines)
{
    PixelLine line;
    const auto flush = [&]
    {
        for (PixelLine& piece : ClippedLine(line, draft.reach))
            lines.push_back(std::move(piece));
        line.clear();
    };
    Passing passing(draft.extent);
    for (std::size_t i = 0; i < points.size() + (closed ? 1 : 0); ++i)
    {
        const LatLon& point = points[i % points.size()];
        if (i < points.size() && !passing.Needs(points, i))
            continue;
        if (closed && i > 0 && IsCut(draft.model.region, points[i - 1], point))
            flush();
        if (const std::optional<PixelPoint> pixel = draft.view.ToPixel(point))
            line.push_back(*pixel);
        else
            flush();
    }
    flush();
}

bool MayShow(const Extent& extent, const Shore& shore)
{
    return shore.south <= extent.north && shore.north >= extent.south && shore.west <= extent.east &&
           shore.east >= extent.west;
}

void AddShore(SceneDraft& draft, const Shore& shore)
{
    if (shore.kind == ShoreKind::Border)
    {
        AddLineOf(draft, shore.points, false, draft.scene.borders);
        return;
    }
    AddLineOf(draft, shore.points, true, draft.scene.coasts);
    AddArea(draft, shore.points, draft.scene.land);
}

} // namespace

void AddGround(SceneDraft& draft)
{
    const ChartModel& model = draft.model;
    ChartScene& scene = draft.scene;
    AddArea(draft, model.sheet, scene.sheet);
    for (const auto& band : model.bands)
    {
        scene.bands.emplace_back();
        for (const std::vector<LatLon>& outline : band)
            AddArea(draft, outline, scene.bands.back());
    }
    for (const Shore& shore : draft.view.Scale() > kCoarseAbove ? model.coarse : model.data.shores)
    {
        if (MayShow(draft.extent, shore))
            AddShore(draft, shore);
    }
}

} // namespace vorn::chart
