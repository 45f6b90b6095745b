#include "apps/planner/CgGraph.h"

#include <algorithm>
#include <cmath>

namespace vorn::planner
{

namespace
{

// What the graph shows: inches and pounds.
constexpr double kLeastArm = 33;
constexpr double kMostArm = 49;
constexpr double kLeastWeight = 1400;
constexpr double kMostWeight = 2700;
constexpr double kArmStep = 4;
constexpr double kWeightStep = 400;

constexpr COLORREF kPaper = RGB(0xFF, 0xFF, 0xFF);
constexpr COLORREF kAllowed = RGB(0xE3, 0xF1, 0xE6);
constexpr COLORREF kEdge = RGB(0x1B, 0x7A, 0x43);
constexpr COLORREF kGrid = RGB(0xE0, 0xE4, 0xEA);
constexpr COLORREF kText = RGB(0x5A, 0x66, 0x74);
constexpr COLORREF kGood = RGB(0x0B, 0x62, 0xB5);
constexpr COLORREF kBad = RGB(0xB3, 0x26, 0x1E);

/// Draws into memory and copies all at once.
class Canvas
{
public:
    Canvas(CDC& target, const CRect& area) : m_target(target), m_area(area)
    {
        dc.CreateCompatibleDC(&target);
        m_bitmap.CreateCompatibleBitmap(&target, std::max<int>(area.Width(), 1), std::max<int>(area.Height(), 1));
        m_former = dc.SelectObject(&m_bitmap);
    }
    ~Canvas()
    {
        m_target.BitBlt(m_area.left, m_area.top, m_area.Width(), m_area.Height(), &dc, 0, 0, SRCCOPY);
        dc.SelectObject(m_former);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC dc;

private:
    CDC& m_target;
    CRect m_area;
    CBitmap m_bitmap;
    CBitmap* m_former;
};

int Interpolated(double value, double least, double most, int from, int to)
{
    const double share = std::clamp((value - least) / (most - least), 0.0, 1.0);
    return from + static_cast<int>(std::lround(share * (to - from)));
}

} // namespace

void CgGraph::Show(const LoadingSums& sums)
{
    m_sums = sums;
    if (m_hWnd != nullptr)
        Invalidate(FALSE);
}

CPoint CgGraph::At(const CRect& area, double arm, double weight) const
{
    return {Interpolated(arm, kLeastArm, kMostArm, area.left, area.right),
            Interpolated(weight, kLeastWeight, kMostWeight, area.bottom, area.top)};
}

void CgGraph::DrawItem(LPDRAWITEMSTRUCT item)
{
    CRect whole(item->rcItem);
    Canvas canvas(*CDC::FromHandle(item->hDC), whole);
    CDC& dc = canvas.dc;
    whole.OffsetRect(-whole.left, -whole.top);
    dc.FillSolidRect(&whole, kPaper);
    dc.Draw3dRect(&whole, kGrid, kGrid);
    dc.SetBkMode(TRANSPARENT);
    CFont* const formerFont = dc.SelectObject(GetFont());
    TEXTMETRIC metric{};
    dc.GetTextMetrics(&metric);
    CRect area(whole.left + 5 * metric.tmAveCharWidth + 4, whole.top + metric.tmHeight / 2 + 4, whole.right - 10,
               whole.bottom - metric.tmHeight - 6);
    if (area.Width() > 20 && area.Height() > 20)
    {
        DrawScale(dc, area);
        DrawEnvelope(dc, area);
        DrawLoad(dc, area, m_sums.landing, false);
        DrawLoad(dc, area, m_sums.takeoff, true);
    }
    dc.SelectObject(formerFont);
}

void CgGraph::DrawScale(CDC& dc, const CRect& area) const
{
    const HGDIOBJ former = ::SelectObject(dc, ResMgr::Inst()->GetStdPen(kGrid));
    dc.SetTextColor(kText);
    for (double arm = kLeastArm + 3; arm < kMostArm; arm += kArmStep)
    {
        const CPoint foot = At(area, arm, kLeastWeight);
        dc.MoveTo(foot.x, area.top);
        dc.LineTo(foot.x, area.bottom);
        const std::string text = NumberText(arm, 0);
        dc.SetTextAlign(TA_CENTER | TA_TOP);
        dc.TextOut(foot.x, area.bottom + 3, text.c_str(), static_cast<int>(text.size()));
    }
    const int lineHeight = dc.GetTextExtent("0", 1).cy;
    for (double weight = kLeastWeight + 200; weight < kMostWeight; weight += kWeightStep)
    {
        const CPoint side = At(area, kLeastArm, weight);
        dc.MoveTo(area.left, side.y);
        dc.LineTo(area.right, side.y);
        const std::string text = NumberText(weight, 0);
        dc.SetTextAlign(TA_RIGHT | TA_TOP);
        dc.TextOut(area.left - 3, side.y - lineHeight / 2, text.c_str(), static_cast<int>(text.size()));
    }
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    ::SelectObject(dc, former);
}

void CgGraph::DrawEnvelope(CDC& dc, const CRect& area) const
{
    std::vector<POINT> corners;
    for (const EnvelopePoint& corner : Envelope())
        corners.push_back(At(area, corner.arm, corner.weight));
    const HGDIOBJ formerPen = ::SelectObject(dc, ResMgr::Inst()->GetPen(PS_SOLID, 2, kEdge));
    const HGDIOBJ formerBrush = ::SelectObject(dc, ResMgr::Inst()->GetBrush(kAllowed));
    dc.SetROP2(R2_MASKPEN); // the scale shows through
    dc.Polygon(corners.data(), static_cast<int>(corners.size()));
    dc.SetROP2(R2_COPYPEN);
    ::SelectObject(dc, formerBrush);
    ::SelectObject(dc, formerPen);
}

void CgGraph::DrawLoad(CDC& dc, const CRect& area, const Load& load, bool isTakeoff) const
{
    const COLORREF color = IsInEnvelope(load) ? kGood : kBad;
    const CPoint at = At(area, load.Arm(), load.weight);
    const HGDIOBJ formerPen = ::SelectObject(dc, ResMgr::Inst()->GetPen(PS_SOLID, 2, color));
    const HGDIOBJ formerBrush = ::SelectObject(dc, ResMgr::Inst()->GetBrush(isTakeoff ? color : kPaper));
    const int radius = 4;
    dc.Ellipse(at.x - radius, at.y - radius, at.x + radius + 1, at.y + radius + 1);
    ::SelectObject(dc, formerBrush);
    ::SelectObject(dc, formerPen);
}

} // namespace vorn::planner
