#include "apps/chart/core/ChartScene.h"
#include "apps/chart/core/SceneDraft.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace vorn::chart
{

namespace
{

constexpr int kMargin = 80;                      // pixels at 96 dpi: what lies beyond an edge and may still show
constexpr double kSmallSymbolsAbove = 4'000'000; // scale
constexpr double kSmallSymbol = 0.8;
constexpr double kTinySymbolsAbove = 9'000'000; // scale
constexpr double kTinySymbol = 0.55;

double SymbolSize(double scale)
{
    return scale > kTinySymbolsAbove ? kTinySymbol : scale > kSmallSymbolsAbove ? kSmallSymbol : 1;
}

} // namespace

SceneDraft::SceneDraft(const ChartModel& itsModel, const ChartView& itsView, LabelMeter& meter,
                       const std::vector<PixelBox>& closed)
    : model(itsModel), view(itsView), detail(DetailAt(itsView.Scale())), extent(ExtentOf(itsView)),
      labels(meter, {0, 0, itsView.Width(), itsView.Height()}, closed)
{
    scene.unit = view.DotsPerInch() / 96;
    scene.symbolUnit = scene.unit * SymbolSize(view.Scale());
    reach = Grown({0, 0, view.Width(), view.Height()}, static_cast<int>(Px(kMargin)));
}

double SceneDraft::Px(double at96) const
{
    return at96 * scene.unit;
}

std::optional<PixelPoint> SceneDraft::WithinReach(const LatLon& position) const
{
    const std::optional<PixelPoint> pixel = view.ToPixel(position);
    return pixel && reach.Contains(*pixel) ? pixel : std::nullopt;
}

bool SceneDraft::IsOnRoute(const std::string& ident, const LatLon& position) const
{
    return std::any_of(model.route.begin(), model.route.end(),
                       [&](const Waypoint& waypoint)
                       {
                           return waypoint.ident == ident && waypoint.position == position;
                       });
}

double NorthAt(const ChartView& view, const LatLon& position)
{
    const double there = position.Lat() < 89 ? 0.01 : -0.01; // degrees
    const std::optional<PixelPoint> here = view.ToPixel(position);
    const std::optional<PixelPoint> north = view.ToPixel(LatLon(position.Lat() + there, position.Lon()));
    if (!here || !north || (here->x == north->x && here->y == north->y))
        return 0;
    const double way = there > 0 ? 1 : -1;
    return std::atan2((north->x - here->x) * way, (here->y - north->y) * way) * 180 / std::numbers::pi;
}

ChartScene SceneOf(const ChartModel& model, const ChartView& view, LabelMeter& meter,
                   const std::vector<PixelBox>& closed, const LabelMemory& before)
{
    SceneDraft draft(model, view, meter, closed);
    AddGround(draft);
    AddGraticule(draft);
    AddRoute(draft);
    AddAids(draft);
    AddFields(draft);
    draft.labels.Place(before, draft.scene);
    return std::move(draft.scene);
}

} // namespace vorn::chart
