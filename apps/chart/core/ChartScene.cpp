#include "apps/chart/core/ChartScene.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace vorn::chart
{

namespace
{

// Pixels of a 96-dpi screen.
constexpr double kGridSpacing = 96;
constexpr int kMargin = 80; // symbols and labels beyond an edge that may still show
constexpr double kLabelGap = 2.5;
constexpr double kLegGap = 7;
constexpr double kRoseRadius = 46;
constexpr double kRosesBelow = 1'200'000; // scale
constexpr double kTrueRunway = 22;        // a runway of this length is drawn to scale
constexpr double kRunwayHalf = 1.6;
constexpr int kEdgeInset = 4;
constexpr double kSmallSymbolsAbove = 4'000'000; // scale
constexpr double kSmallSymbol = 0.8;
constexpr double kOnEdge = 1e-6;           // degrees
constexpr double kCoarseAbove = 4'500'000; // scale
constexpr double kAside = 0.3;             // degrees beside the view
constexpr double kLongestJump = 1.5;       // degrees

// Numbers of labels: what they belong to.
constexpr int kFieldIds = 100'000;
constexpr int kParallelIds = 300'000;
constexpr int kMeridianIds = 500'000;

constexpr int kLegIds = 700'000;

constexpr int kLegPriority = 700;
constexpr int kGridPriority = 1000;
constexpr int kRoutePriority = 800;

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

TextSide SideOf(int candidate)
{
    constexpr std::array kSides = {TextSide::Left, TextSide::Right, TextSide::Centre, TextSide::Centre,
                                   TextSide::Left, TextSide::Right, TextSide::Left,   TextSide::Right};
    return kSides[static_cast<std::size_t>(candidate % 8)];
}

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

class SceneMaker
{
public:
    SceneMaker(const ChartModel& model, const ChartView& view, LabelMeter& meter, const std::vector<PixelBox>& closed)
        : m_model(model), m_view(view), m_meter(meter), m_detail(DetailAt(view.Scale()))
    {
        m_scene.unit = view.DotsPerInch() / 96;
        m_scene.symbolUnit = m_scene.unit * (view.Scale() > kSmallSymbolsAbove ? kSmallSymbol : 1);
        m_obstacles.closed = closed;
        m_reach = Grown({0, 0, view.Width(), view.Height()}, static_cast<int>(kMargin * m_scene.unit));
    }

    ChartScene Run(const LabelMemory& before)
    {
        AddGround();
        AddGraticule();
        AddRoute();
        AddAids();
        AddFields();
        KeepInside();
        Place(before);
        return std::move(m_scene);
    }

private:
    struct Wish
    {
        LabelRequest request;
        LabelText text;
        Ink ink;
        bool centred; // whatever its place
    };

    double Px(double at96) const
    {
        return at96 * m_scene.unit;
    }

    /// An outline within reach of the view. Outlines of which a part lies behind the map's edge lose that part.
    PixelLine AreaOf(const std::vector<LatLon>& outline) const
    {
        PixelLine line;
        line.reserve(outline.size());
        Passing passing(m_extent);
        for (std::size_t i = 0; i < outline.size(); ++i)
        {
            if (!passing.Needs(outline, i))
                continue;
            if (const std::optional<PixelPoint> pixel = m_view.ToPixel(outline[i]))
                line.push_back(*pixel);
        }
        return ClippedArea(line, m_reach);
    }

    /// True where the region's own edge cuts the land: no coast.
    bool IsCut(const LatLon& first, const LatLon& second) const
    {
        const auto both = [](double one, double other, double edge)
        {
            return std::abs(one - edge) < kOnEdge && std::abs(other - edge) < kOnEdge;
        };
        const Extent& region = m_model.region;
        return both(first.Lat(), second.Lat(), region.south) || both(first.Lat(), second.Lat(), region.north) ||
               both(first.Lon(), second.Lon(), region.west) || both(first.Lon(), second.Lon(), region.east);
    }

    void AddLineOf(const std::vector<LatLon>& points, bool closed, std::vector<PixelLine>& lines) const
    {
        PixelLine line;
        const auto flush = [&]
        {
            for (PixelLine& piece : ClippedLine(line, m_reach))
                lines.push_back(std::move(piece));
            line.clear();
        };
        Passing passing(m_extent);
        for (std::size_t i = 0; i < points.size() + (closed ? 1 : 0); ++i)
        {
            const LatLon& point = points[i % points.size()];
            if (i < points.size() && !passing.Needs(points, i))
                continue;
            if (closed && i > 0 && IsCut(points[i - 1], point))
                flush();
            if (const std::optional<PixelPoint> pixel = m_view.ToPixel(point))
                line.push_back(*pixel);
            else
                flush();
        }
        flush();
    }

    bool MayShow(const Shore& shore) const
    {
        return shore.south <= m_extent.north && shore.north >= m_extent.south && shore.west <= m_extent.east &&
               shore.east >= m_extent.west;
    }

    void AddGround()
    {
        m_extent = ExtentOf(m_view);
        if (PixelLine sheet = AreaOf(m_model.sheet); !sheet.empty())
            m_scene.sheet.push_back(std::move(sheet));
        for (const auto& band : m_model.bands)
        {
            m_scene.bands.emplace_back();
            for (const std::vector<LatLon>& outline : band)
            {
                if (PixelLine area = AreaOf(outline); !area.empty())
                    m_scene.bands.back().push_back(std::move(area));
            }
        }
        const bool small = m_view.Scale() > kCoarseAbove;
        for (const Shore& shore : small ? m_model.coarse : m_model.data.shores)
        {
            if (!MayShow(shore))
                continue;
            if (shore.kind == ShoreKind::Border)
            {
                AddLineOf(shore.points, false, m_scene.borders);
                continue;
            }
            AddLineOf(shore.points, true, m_scene.coasts);
            if (PixelLine area = AreaOf(shore.points); !area.empty())
                m_scene.land.push_back(std::move(area));
        }
    }

    void AddGraticule()
    {
        m_scene.graticule = GraticuleOf(m_view, Px(kGridSpacing));
        for (const GridLine& line : m_scene.graticule.lines)
            WishForGridLabel(line);
    }

    void WishForGridLabel(const GridLine& line)
    {
        const std::string words = line.parallel ? ParallelText(line.minutes, m_scene.graticule.latitudeStep)
                                                : MeridianText(line.minutes, m_scene.graticule.longitudeStep);
        Wish wish{{(line.parallel ? kParallelIds : kMeridianIds) + line.minutes, kGridPriority, {}},
                  {{words, TextStyle::Grid, {}}},
                  Ink::Grid,
                  true};
        const PixelSize size = m_meter.Measure(wish.text);
        const int inset = static_cast<int>(Px(kEdgeInset));
        if (line.parallel)
        {
            AddEdgePlace(wish, CrossingAtX(line, inset + size.width / 2.0), size);
            AddEdgePlace(wish, CrossingAtX(line, m_view.Width() - inset - size.width / 2.0), size);
        }
        else
        {
            AddEdgePlace(wish, CrossingAtY(line, inset + size.height / 2.0), size);
            AddEdgePlace(wish, CrossingAtY(line, m_view.Height() - inset - size.height / 2.0), size);
        }
        m_wishes.push_back(std::move(wish));
    }

    void AddEdgePlace(Wish& wish, const std::optional<PixelPoint>& middle, PixelSize size) const
    {
        if (!middle)
            return;
        const int left = static_cast<int>(std::lround(middle->x - size.width / 2.0));
        const int top = static_cast<int>(std::lround(middle->y - size.height / 2.0));
        const PixelBox box{left, top, left + size.width, top + size.height};
        if (box.left >= 0 && box.top >= 0 && box.right <= m_view.Width() && box.bottom <= m_view.Height())
            wish.request.candidates.push_back(box);
    }

    void AddRoute()
    {
        m_scene.way = SmoothedWay(m_view, m_model.route);
        m_scene.direct = DirectWay(m_view, m_model.route);
        m_scene.markMiles = MarkSpacing(m_view.PixelsPerMile() / m_scene.unit);
        for (const LatLon& mark : MarksAlong(m_model.route, m_scene.markMiles))
        {
            const std::optional<PixelPoint> pixel = m_view.ToPixel(mark);
            if (pixel && m_reach.Contains(*pixel))
                m_scene.marks.push_back(*pixel);
        }
        for (std::size_t leg = 1; leg < m_model.route.size(); ++leg)
            WishForLegLabel(static_cast<int>(leg));
        for (const PixelLine& way : m_scene.way)
            AddLineObstacles(way, Px(4));
        for (const PixelLine& way : m_scene.direct)
            AddLineObstacles(way, Px(2));
    }

    void WishForLegLabel(int leg)
    {
        const LatLon& from = m_model.route[static_cast<std::size_t>(leg) - 1].position;
        const LatLon& to = m_model.route[static_cast<std::size_t>(leg)].position;
        const std::optional<PixelPoint> at = WithinReach(MiddleOf(from, to));
        LabelText text = {{LegText(from, to), TextStyle::Small, {}}};
        const PixelSize size = m_meter.Measure(text);
        if (!at || from.Distance(to) * m_view.PixelsPerMile() < 1.5 * size.width)
            return;
        std::vector<PixelBox> places = PlacesAround(*at, Px(kLegGap), size.width, size.height);
        const std::vector<PixelBox> outer = PlacesAround(*at, Px(2.5 * kLegGap), size.width, size.height);
        places.insert(places.end(), outer.begin(), outer.end());
        m_wishes.push_back({{kLegIds + leg, kLegPriority, std::move(places)}, std::move(text), Ink::Route, true});
    }

    /// Small boxes along a line, near enough to one another that no label fits between two.
    void AddLineObstacles(const PixelLine& way, double half)
    {
        for (std::size_t i = 1; i < way.size(); ++i)
        {
            const double dx = way[i].x - way[i - 1].x;
            const double dy = way[i].y - way[i - 1].y;
            const int steps = std::max(1, static_cast<int>(std::hypot(dx, dy) / (2 * half)));
            for (int step = 0; step < steps; ++step)
                AddLineObstacle({way[i - 1].x + dx * step / steps, way[i - 1].y + dy * step / steps}, half);
        }
    }

    void AddLineObstacle(PixelPoint at, double half)
    {
        m_obstacles.lines.push_back(BoxAround(at, half));
    }

    static PixelBox BoxAround(PixelPoint at, double half)
    {
        return {static_cast<int>(std::floor(at.x - half)), static_cast<int>(std::floor(at.y - half)),
                static_cast<int>(std::ceil(at.x + half)), static_cast<int>(std::ceil(at.y + half))};
    }

    std::optional<PixelPoint> WithinReach(const LatLon& position) const
    {
        const std::optional<PixelPoint> pixel = m_view.ToPixel(position);
        return pixel && m_reach.Contains(*pixel) ? pixel : std::nullopt;
    }

    bool IsOnRoute(const std::string& ident, const LatLon& position) const
    {
        return std::any_of(m_model.route.begin(), m_model.route.end(),
                           [&](const Waypoint& waypoint)
                           {
                               return waypoint.ident == ident && waypoint.position == position;
                           });
    }

    void AddAids()
    {
        int id = 0;
        for (const Aid& aid : m_model.data.aids)
        {
            ++id;
            const bool onRoute = IsOnRoute(aid.ident, aid.position);
            if (!IsShown(aid, m_detail) && !onRoute)
                continue;
            const std::optional<PixelPoint> at = WithinReach(aid.position);
            if (!at)
                continue;
            const Ink ink =
                HasRadials(aid.kind) || aid.kind == AidKind::Dme || aid.kind == AidKind::Tacan ? Ink::Aid : Ink::Beacon;
            const bool rose = HasRadials(aid.kind) && m_view.Scale() <= kRosesBelow;
            if (rose)
                AddRose(aid, *at);
            const SymbolShape& shape = ShapeOf(aid.kind);
            const Detail detail = onRoute ? std::max(m_detail, Detail::Idents) : m_detail;
            WishForLabel(id, onRoute ? kRoutePriority : PriorityOf(aid), LabelOf(aid, detail), ink, *at, shape.reach,
                         rose);
            AddSymbol({*at, shape, ink});
        }
    }

    void AddRose(const Aid& aid, PixelPoint at)
    {
        const double north = NorthAt(m_view, aid.position) + aid.variation;
        m_scene.roses.push_back({at, CompassRose(kRoseRadius, north), Ink::Aid});
        for (int degrees = 0; degrees < 360; degrees += 5)
        {
            const double angle = degrees * std::numbers::pi / 180;
            AddLineObstacle({at.x + Px(kRoseRadius) * std::sin(angle), at.y - Px(kRoseRadius) * std::cos(angle)},
                            Px(3));
        }
    }

    void AddSymbol(SceneSymbol symbol)
    {
        m_obstacles.symbols.push_back(BoxAround(symbol.at, symbol.shape.reach * m_scene.symbolUnit * 0.9));
        m_scene.symbols.push_back(std::move(symbol));
    }

    void AddFields()
    {
        for (std::size_t i = 0; i < m_model.data.aerodromes.size(); ++i)
        {
            const Aerodrome& field = m_model.data.aerodromes[i];
            const bool onRoute = IsOnRoute(field.ident, field.position);
            const std::optional<PixelPoint> at = WithinReach(field.position);
            if (!at || (!IsShown(field, m_detail) && !onRoute))
                continue;
            SymbolShape shape = Turned(m_model.fields[i], NorthAt(m_view, field.position));
            if (const double reach = TrueRunways(field, *at); reach > 0)
            {
                shape = SymbolShape();
                shape.reach = reach;
            }
            const Detail detail = onRoute ? std::max(m_detail, Detail::Idents) : m_detail;
            WishForLabel(kFieldIds + static_cast<int>(i), onRoute ? kRoutePriority : PriorityOf(field),
                         LabelOf(field, detail), Ink::Field, *at, shape.reach, false);
            AddSymbol({*at, std::move(shape), Ink::Field});
        }
    }

    /// Draws the runways to scale when they are large enough. @return how far they reach; 0 when they are not.
    double TrueRunways(const Aerodrome& field, PixelPoint at)
    {
        const double length = field.Longest().length / 6076.115 * m_view.PixelsPerMile();
        if (length < Px(kTrueRunway))
            return 0;
        double reach = Px(4);
        for (const Runway& runway : field.runways)
        {
            const std::optional<PixelPoint> low = m_view.ToPixel(runway.low);
            const std::optional<PixelPoint> high = m_view.ToPixel(runway.high);
            if (!low || !high)
                continue;
            m_scene.runways.push_back(BarBetween(*low, *high, Px(kRunwayHalf)));
            for (const PixelPoint& end : {*low, *high})
                reach = std::max({reach, std::abs(end.x - at.x), std::abs(end.y - at.y)});
        }
        return (reach + Px(kRunwayHalf)) / m_scene.symbolUnit;
    }

    void WishForLabel(int id, int priority, LabelText text, Ink ink, PixelPoint at, double reach, bool rose)
    {
        if (text.empty())
            return;
        const PixelSize size = m_meter.Measure(text);
        std::vector<PixelBox> places =
            PlacesAround(at, reach * m_scene.symbolUnit + Px(kLabelGap), size.width, size.height);
        if (rose)
        {
            const std::vector<PixelBox> outer =
                PlacesAround(at, Px(kRoseRadius + 2 * kLabelGap), size.width, size.height);
            places.insert(places.end(), outer.begin(), outer.end());
        }
        m_wishes.push_back({{id, priority, std::move(places)}, std::move(text), ink, false});
    }

    /// Labels stand within the drawing where they can.
    void KeepInside()
    {
        const int width = m_view.Width();
        const int height = m_view.Height();
        for (const PixelBox& outside :
             {PixelBox{m_reach.left, m_reach.top, m_reach.right, 0},
              PixelBox{m_reach.left, height, m_reach.right, m_reach.bottom}, PixelBox{m_reach.left, 0, 0, height},
              PixelBox{width, 0, m_reach.right, height}})
            m_obstacles.lines.push_back(outside);
    }

    void Place(const LabelMemory& before)
    {
        std::vector<LabelRequest> requests;
        std::map<int, Wish*> byId;
        for (Wish& wish : m_wishes)
        {
            byId[wish.request.id] = &wish;
            requests.push_back(wish.request);
        }
        const std::vector<PlacedLabel> placed = PlaceLabels(requests, m_obstacles, before);
        for (const PlacedLabel& label : placed)
        {
            Wish& wish = *byId[label.id];
            m_scene.labels.push_back(
                {std::move(wish.text), label.box, wish.centred ? TextSide::Centre : SideOf(label.candidate), wish.ink});
        }
        m_scene.memory = MemoryOf(placed);
    }

    const ChartModel& m_model;
    const ChartView& m_view;
    LabelMeter& m_meter;
    Detail m_detail;
    PixelBox m_reach;
    Extent m_extent;
    ChartScene m_scene;
    LabelObstacles m_obstacles;
    std::vector<Wish> m_wishes;
};

} // namespace

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
    return SceneMaker(model, view, meter, closed).Run(before);
}

} // namespace vorn::chart
