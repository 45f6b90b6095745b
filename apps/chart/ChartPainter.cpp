#include "apps/chart/ChartPainter.h"

#include "apps/chart/ChartColors.h"
#include "apps/chart/ChartText.h"
#include "apps/chart/core/SymbolOutlines.h"

#include <algorithm>
#include <cmath>

namespace vorn::chart
{

namespace
{

// Widths and distances in pixels at 96 dpi.
constexpr double kSymbolStroke = 1.3;
constexpr double kRoseStroke = 0.8;
constexpr double kRouteWidth = 3;
constexpr double kCasing = 1.4; // on either side of the route
constexpr double kMarkRadius = 2.6;
constexpr double kPerfSpacing = 5;

COLORREF AppColor(AppColorsType type)
{
    return ColorContext::Instance()->GetColor(type);
}

class ScenePainter
{
public:
    ScenePainter(CDC& dc, const ChartScene& scene, int magnified)
        : m_dc(dc), m_scene(scene), m_magnified(magnified), m_unit(scene.unit * magnified)
    {
    }

    void PaintGround(const TerrainColorMap& terrain)
    {
        Fill(m_scene.sheet, BandColor(terrain, 0), ALTERNATE);
        for (std::size_t band = 0; band < m_scene.bands.size(); ++band)
            Fill(m_scene.bands[band], BandColor(terrain, static_cast<int>(band) + 1), ALTERNATE);
        // Water is what of the sheet no land covers.
        std::vector<PixelLine> water = m_scene.sheet;
        if (!water.empty())
        {
            water.insert(water.end(), m_scene.land.begin(), m_scene.land.end());
            Fill(water, AppColor(APPCOLOR_WATER), ALTERNATE);
        }
        Stroke(m_scene.coasts, FinePen(APPCOLOR_SELECTION, m_scene.unit));
    }

    void PaintLines()
    {
        std::vector<PixelLine> fine;
        std::vector<PixelLine> strong;
        for (const GridLine& line : m_scene.graticule.lines)
            (line.whole ? strong : fine)
                .insert((line.whole ? strong : fine).end(), line.pieces.begin(), line.pieces.end());
        strong.insert(strong.end(), m_scene.limb.begin(), m_scene.limb.end());
        Stroke(fine, FinePen(APPCOLOR_GRID, m_scene.unit));
        FillLines(strong, 1, AppColor(APPCOLOR_GRID));
        PaintBorders();
        PaintRoses();
        PaintRoute();
    }

    void PaintSymbols()
    {
        Outlines fields;
        fields.ink = m_scene.runways;
        for (PixelLine& outline : fields.ink)
            Magnify(outline);
        Outlines aids;
        Outlines beacons;
        for (const SceneSymbol& symbol : m_scene.symbols)
        {
            Outlines& outlines = symbol.ink == Ink::Field ? fields : symbol.ink == Ink::Aid ? aids : beacons;
            AddOutlines(symbol.shape, Magnified(symbol.at), m_scene.symbolUnit * m_magnified, kSymbolStroke * m_unit,
                        outlines);
        }
        FillOutlines(fields, Ink::Field);
        FillOutlines(beacons, Ink::Beacon);
        FillOutlines(aids, Ink::Aid);
    }

private:
    PixelPoint Magnified(PixelPoint point) const
    {
        return {point.x * m_magnified, point.y * m_magnified};
    }

    void Magnify(PixelLine& line) const
    {
        for (PixelPoint& point : line)
            point = Magnified(point);
    }

    static POINT Whole(PixelPoint point)
    {
        return {static_cast<LONG>(std::lround(point.x)), static_cast<LONG>(std::lround(point.y))};
    }

    void Collect(const std::vector<PixelLine>& lines, double factor)
    {
        m_points.clear();
        m_counts.clear();
        for (const PixelLine& line : lines)
        {
            if (line.size() < 2)
                continue;
            for (const PixelPoint& point : line)
                m_points.push_back(Whole({point.x * factor, point.y * factor}));
            m_counts.push_back(static_cast<INT>(line.size()));
        }
    }

    void FillCollected(COLORREF color, int mode)
    {
        if (m_counts.empty())
            return;
        const HGDIOBJ brush = SelectObject(&m_dc, ResMgr::Inst()->GetBrush(color));
        const HGDIOBJ pen = SelectObject(&m_dc, ResMgr::Inst()->GetNullPen());
        const int before = m_dc.SetPolyFillMode(mode);
        m_dc.PolyPolygon(m_points.data(), m_counts.data(), static_cast<int>(m_counts.size()));
        m_dc.SetPolyFillMode(before);
        SelectObject(&m_dc, pen);
        SelectObject(&m_dc, brush);
    }

    void Fill(const std::vector<PixelLine>& areas, COLORREF color, int mode)
    {
        Collect(areas, m_magnified);
        FillCollected(color, mode);
    }

    void FillOutlines(const Outlines& outlines, Ink ink)
    {
        Collect(outlines.ink, 1);
        FillCollected(InkColor(ink), WINDING);
        Collect(outlines.windows, 1);
        FillCollected(AppColor(APPCOLOR_TEXTHALO), WINDING);
    }

    void Stroke(const std::vector<PixelLine>& lines, HPEN pen)
    {
        Collect(lines, m_magnified);
        if (m_counts.empty())
            return;
        const HGDIOBJ before = SelectObject(&m_dc, pen);
        m_dc.PolyPolyline(m_points.data(), reinterpret_cast<const DWORD*>(m_counts.data()),
                          static_cast<int>(m_counts.size()));
        SelectObject(&m_dc, before);
    }

    /// Lines of any width as areas.
    void FillLines(const std::vector<PixelLine>& lines, double width, COLORREF color)
    {
        std::vector<PixelLine> outlines;
        for (PixelLine line : lines)
        {
            Magnify(line);
            outlines.push_back(Stroked(line, width * m_unit));
        }
        Collect(outlines, 1);
        FillCollected(color, WINDING);
    }

    void PaintBorders()
    {
        FillLines(m_scene.borders, 1.5, AppColor(APPCOLOR_AIRWAY));
    }

    void PaintRoses()
    {
        Outlines roses;
        for (const SceneSymbol& rose : m_scene.roses)
            AddOutlines(rose.shape, Magnified(rose.at), m_unit, kRoseStroke * m_unit, roses);
        FillOutlines(roses, Ink::Aid);
    }

    void PaintRoute()
    {
        PaintDirect();
        const std::vector<PixelLine>& way = m_scene.way;
        FillLines(way, kRouteWidth + 2 * kCasing, AppColor(APPCOLOR_TEXTHALO));
        FillLines(way, kRouteWidth, InkColor(Ink::Route));
        Outlines marks;
        Outlines hearts;
        SymbolShape dot;
        dot.parts.push_back({ShapePart::Form::Disc, {{0, 0}}, kMarkRadius});
        SymbolShape heart;
        heart.parts.push_back({ShapePart::Form::Disc, {{0, 0}}, kMarkRadius - 1.2});
        for (const PixelPoint& mark : m_scene.marks)
        {
            AddOutlines(dot, Magnified(mark), m_unit, 1, marks);
            AddOutlines(heart, Magnified(mark), m_unit, 1, hearts);
        }
        hearts.windows.swap(hearts.ink);
        FillOutlines(marks, Ink::Route);
        FillOutlines(hearts, Ink::Route);
    }

    /// The performance line: a long dash, a gap, a short dash, a gap.
    void PaintDirect()
    {
        const int width = std::max(1, static_cast<int>(std::lround(m_unit * 1.4)));
        const HGDIOBJ before = SelectObject(&m_dc, ResMgr::Inst()->GetPen(PS_SOLID, width, InkColor(Ink::Direct)));
        for (const PixelLine& way : m_scene.direct)
        {
            std::vector<CPoint> points;
            for (const PixelPoint& point : way)
                points.emplace_back(Whole(Magnified(point)));
            DrawPerfLine(&m_dc, points.data(), static_cast<int>(points.size()), kPerfSpacing * m_unit, 3, 1, 1, 1);
        }
        SelectObject(&m_dc, before);
    }

    CDC& m_dc;
    const ChartScene& m_scene;
    int m_magnified;
    double m_unit;
    std::vector<POINT> m_points;
    std::vector<INT> m_counts;
};

} // namespace

void PaintScene(CDC& dc, const ChartScene& scene, const TerrainColorMap& terrain, int magnified)
{
    ScenePainter painter(dc, scene, magnified);
    painter.PaintGround(terrain);
    painter.PaintLines();
    painter.PaintSymbols();
}

void PaintLabels(CDC& dc, const ChartScene& scene, bool quick)
{
    TextMeter meter(dc, scene.unit);
    const int mode = dc.SetBkMode(TRANSPARENT);
    for (const SceneLabel& label : scene.labels)
        DrawLabel(dc, label, meter, scene.unit, quick);
    dc.SetBkMode(mode);
}

} // namespace vorn::chart
