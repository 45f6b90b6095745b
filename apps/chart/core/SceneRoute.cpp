#include "apps/chart/core/SceneDraft.h"

#include <utility>

namespace vorn::chart
{

namespace
{

// Pixels of a 96-dpi screen.
constexpr double kLegGap = 7;
constexpr double kWayHalf = 4;
constexpr double kDirectHalf = 2;

void AddMarks(SceneDraft& draft)
{
    ChartScene& scene = draft.scene;
    scene.markMiles = MarkSpacing(draft.view.PixelsPerMile() / scene.unit);
    for (const LatLon& mark : MarksAlong(draft.model.route, scene.markMiles))
    {
        if (const std::optional<PixelPoint> pixel = draft.WithinReach(mark))
            scene.marks.push_back(*pixel);
    }
}

void WishForLegLabel(SceneDraft& draft, int leg)
{
    const LatLon& from = draft.model.route[static_cast<std::size_t>(leg) - 1].position;
    const LatLon& to = draft.model.route[static_cast<std::size_t>(leg)].position;
    const std::optional<PixelPoint> at = draft.WithinReach(MiddleOf(from, to));
    LabelText text = {{LegText(from, to), TextStyle::Small, {}}};
    const PixelSize size = draft.labels.Measure(text);
    if (!at || from.Distance(to) * draft.view.PixelsPerMile() < 1.5 * size.width)
        return;
    std::vector<PixelBox> places = PlacesAround(*at, draft.Px(kLegGap), size.width, size.height);
    const std::vector<PixelBox> outer = PlacesAround(*at, draft.Px(2.5 * kLegGap), size.width, size.height);
    places.insert(places.end(), outer.begin(), outer.end());
    draft.labels.Wish({{kLegIds + leg, kLegPriority, std::move(places)}, std::move(text), Ink::Route, true});
}

} // namespace

void AddRoute(SceneDraft& draft)
{
    draft.scene.way = SmoothedWay(draft.view, draft.model.route);
    draft.scene.direct = DirectWay(draft.view, draft.model.route);
    AddMarks(draft);
    for (std::size_t leg = 1; leg < draft.model.route.size(); ++leg)
        WishForLegLabel(draft, static_cast<int>(leg));
    for (const PixelLine& way : draft.scene.way)
        draft.labels.AvoidLine(way, draft.Px(kWayHalf));
    for (const PixelLine& way : draft.scene.direct)
        draft.labels.AvoidLine(way, draft.Px(kDirectHalf));
}

} // namespace vorn::chart
