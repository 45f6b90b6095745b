#include "apps/chart/core/SceneDraft.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace vorn::chart
{

namespace
{

// Pixels of a 96-dpi screen.
constexpr double kLabelGap = 2.5;
constexpr double kRouteStandOff = 16;
constexpr double kRoseRadius = 46;
constexpr double kTrueRunway = 22; // a runway of this length is drawn to scale
constexpr double kRunwayHalf = 1.6;
constexpr double kMayOverlap = 0.85; // of both symbols' reaches

constexpr double kRosesBelow = 1'200'000; // scale
constexpr double kFeetPerMile = 6076.115;

SymbolShape Turned(SymbolShape shape, double degrees)
{
    const double sine = std::sin(degrees * std::numbers::pi / 180);
    const double cosine = std::cos(degrees * std::numbers::pi / 180);
    for (ShapePart& part : shape.parts)
    {
        for (PixelPoint& point : part.points)
            point = {point.x * cosine - point.y * sine, point.x * sine + point.y * cosine};
    }
    return shape;
}

void AddSymbol(SceneDraft& draft, SceneSymbol symbol)
{
    draft.labels.AvoidSymbol(symbol.at, symbol.shape.reach * draft.scene.symbolUnit * 0.9);
    draft.scene.symbols.push_back(std::move(symbol));
}

/// A label beside a symbol.
struct SymbolLabel
{
    int id;
    int priority;
    LabelText text;
    Ink ink;
    double reach;    ///< of the symbol
    double standOff; ///< it may also stand so far from the place; 0: it may not
};

void WishForLabel(SceneDraft& draft, SymbolLabel label, PixelPoint at)
{
    if (label.text.empty() || draft.labels.IsUnderPanel(at))
        return;
    const PixelSize size = draft.labels.Measure(label.text);
    std::vector<PixelBox> places =
        PlacesAround(at, label.reach * draft.scene.symbolUnit + draft.Px(kLabelGap), size.width, size.height);
    if (label.standOff > 0)
    {
        const std::vector<PixelBox> outer = PlacesAround(at, label.standOff, size.width, size.height);
        places.insert(places.end(), outer.begin(), outer.end());
    }
    draft.labels.Wish({{label.id, label.priority, std::move(places)}, std::move(label.text), label.ink, false});
}

Ink InkOf(AidKind kind)
{
    return HasRadials(kind) || kind == AidKind::Dme || kind == AidKind::Tacan ? Ink::Aid : Ink::Beacon;
}

/// Outside the rose. What lies on the route has a name even where it is crowded.
double StandOff(const SceneDraft& draft, double reach, bool hasRose, bool onRoute)
{
    if (hasRose)
        return draft.Px(kRoseRadius + 2 * kLabelGap);
    return onRoute ? reach * draft.scene.symbolUnit + draft.Px(kRouteStandOff) : 0;
}

/// What is said of a place: at least its ident on the route.
Detail DetailOf(const SceneDraft& draft, bool onRoute)
{
    return onRoute ? std::max(draft.detail, Detail::Idents) : draft.detail;
}

void AddRose(SceneDraft& draft, const Aid& aid, PixelPoint at)
{
    const double north = NorthAt(draft.view, aid.position) + aid.variation;
    draft.scene.roses.push_back({at, CompassRose(kRoseRadius, north), Ink::Aid});
    const double radius = draft.Px(kRoseRadius);
    for (int degrees = 0; degrees < 360; degrees += 5)
    {
        const double angle = degrees * std::numbers::pi / 180;
        draft.labels.AvoidPlace({at.x + radius * std::sin(angle), at.y - radius * std::cos(angle)}, draft.Px(3));
    }
}

/// Whether a symbol would lie over another one.
bool IsTaken(const SceneDraft& draft, PixelPoint at, double reach)
{
    return std::any_of(draft.scene.symbols.begin(), draft.scene.symbols.end(),
                       [&](const SceneSymbol& other)
                       {
                           const double apart = (reach + other.shape.reach) * draft.scene.symbolUnit * kMayOverlap;
                           return std::hypot(other.at.x - at.x, other.at.y - at.y) < apart;
                       });
}

void AddAid(SceneDraft& draft, int id, const Aid& aid, bool onRoute)
{
    if (!IsShown(aid, draft.detail) && !onRoute)
        return;
    const std::optional<PixelPoint> at = draft.WithinReach(aid.position);
    if (!at || (draft.detail == Detail::Marks && IsTaken(draft, *at, ShapeOf(aid.kind).reach)))
        return;
    const Ink ink = InkOf(aid.kind);
    const bool hasRose = HasRadials(aid.kind) && draft.view.Scale() <= kRosesBelow;
    if (hasRose)
        AddRose(draft, aid, *at);
    const SymbolShape& shape = ShapeOf(aid.kind);
    WishForLabel(draft,
                 {id, onRoute ? kRoutePriority : PriorityOf(aid), LabelOf(aid, DetailOf(draft, onRoute)), ink,
                  shape.reach, StandOff(draft, shape.reach, hasRose, onRoute)},
                 *at);
    AddSymbol(draft, {*at, shape, ink});
}

/// Draws the runways to scale when they are large enough. @return how far they reach; 0 when they are not.
double AddTrueRunways(SceneDraft& draft, const Aerodrome& field, PixelPoint at)
{
    const double length = field.Longest().length / kFeetPerMile * draft.view.PixelsPerMile();
    if (length < draft.Px(kTrueRunway))
        return 0;
    double reach = draft.Px(4);
    for (const Runway& runway : field.runways)
    {
        const std::optional<PixelPoint> low = draft.view.ToPixel(runway.low);
        const std::optional<PixelPoint> high = draft.view.ToPixel(runway.high);
        if (!low || !high)
            continue;
        draft.scene.runways.push_back(BarBetween(*low, *high, draft.Px(kRunwayHalf)));
        for (const PixelPoint& end : {*low, *high})
            reach = std::max({reach, std::abs(end.x - at.x), std::abs(end.y - at.y)});
    }
    return (reach + draft.Px(kRunwayHalf)) / draft.scene.symbolUnit;
}

void AddField(SceneDraft& draft, std::size_t index)
{
    const Aerodrome& field = draft.model.data.aerodromes[index];
    const bool onRoute = draft.IsOnRoute(field.ident, field.position);
    const std::optional<PixelPoint> at = draft.WithinReach(field.position);
    if (!at || (!IsShown(field, draft.detail) && !onRoute))
        return;
    SymbolShape shape = Turned(draft.model.fields[index], NorthAt(draft.view, field.position));
    if (const double reach = AddTrueRunways(draft, field, *at); reach > 0)
    {
        shape = SymbolShape();
        shape.reach = reach;
    }
    WishForLabel(draft,
                 {kFieldIds + static_cast<int>(index), onRoute ? kRoutePriority : PriorityOf(field),
                  LabelOf(field, DetailOf(draft, onRoute)), Ink::Field, shape.reach,
                  StandOff(draft, shape.reach, onRoute && draft.view.Scale() <= kRosesBelow, onRoute)},
                 *at);
    AddSymbol(draft, {*at, std::move(shape), Ink::Field});
}

} // namespace

/// Those on the route first: on the smallest charts the others have what room is left.
void AddAids(SceneDraft& draft)
{
    for (const bool onRoute : {true, false})
    {
        int id = kAidIds;
        for (const Aid& aid : draft.model.data.aids)
        {
            ++id;
            if (draft.IsOnRoute(aid.ident, aid.position) == onRoute)
                AddAid(draft, id, aid, onRoute);
        }
    }
}

void AddFields(SceneDraft& draft)
{
    for (std::size_t i = 0; i < draft.model.data.aerodromes.size(); ++i)
        AddField(draft, i);
}

} // namespace vorn::chart
