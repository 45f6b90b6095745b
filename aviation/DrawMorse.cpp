#include "aviation/Drawing.h"
#include "framework/gdi/CDC.h"

#include <algorithm>
#include <climits>
#include <cstddef>

namespace
{

/// The colour that a single pixel would get, so that no device mixes it of others.
COLORREF PureColor(HDC dc, COLORREF color)
{
    const COLORREF nearest = ::GetNearestColor(dc, color);
    return nearest != CLR_INVALID ? nearest : color; // metafiles have no pixels
}

/// Fills rectangles with one colour, on any device and with any mapping.
class SolidFill
{
public:
    SolidFill(HDC dc, COLORREF color)
        : m_dc(dc), m_brush(::CreateSolidBrush(PureColor(dc, color))), m_former(::SelectObject(dc, m_brush))
    {
    }
    ~SolidFill()
    {
        ::SelectObject(m_dc, m_former);
        ::DeleteObject(m_brush);
    }
    SolidFill(const SolidFill&) = delete;
    SolidFill& operator=(const SolidFill&) = delete;

    void Fill(LONG left, LONG top, LONG right, LONG bottom) const
    {
        if (left < right && top < bottom)
        {
            ::PatBlt(m_dc, left, top, right - left, bottom - top, PATCOPY);
        }
    }

private:
    HDC m_dc;
    HBRUSH m_brush;
    HGDIOBJ m_former;
};

/// Fills rectangles that come from left to right, many with one call: for most devices that call is dearer than what it
/// paints.
class GatheredFill
{
public:
    GatheredFill(HDC dc, COLORREF color) : m_dc(dc), m_former(::SetDCBrushColor(dc, PureColor(dc, color)))
    {
    }
    ~GatheredFill()
    {
        Flush();
        ::SetDCBrushColor(m_dc, m_former);
    }
    GatheredFill(const GatheredFill&) = delete;
    GatheredFill& operator=(const GatheredFill&) = delete;

    /// Where such a fill gives the same pixels as single ones do.
    static bool IsPossible(HDC dc)
    {
        const DWORD type = ::GetObjectType(dc);
        return (type == OBJ_MEMDC || type == OBJ_DC) && ::GetMapMode(dc) == MM_TEXT &&
               ::GetGraphicsMode(dc) == GM_COMPATIBLE && ::GetROP2(dc) == R2_COPYPEN;
    }

    void Fill(LONG left, LONG top, LONG right, LONG bottom)
    {
        if (left >= right || top >= bottom)
        {
            return;
        }
        m_data.rects[m_data.head.nCount++] = {left, top, right, bottom};
        if (m_data.head.nCount == kMost)
        {
            Flush();
        }
    }

private:
    static constexpr DWORD kMost = 24; // an ident of letters has no more

    /// RGNDATA with room.
    struct Data
    {
        RGNDATAHEADER head{};
        RECT rects[kMost]; // as many as the head counts
    };
    static_assert(offsetof(Data, rects) == offsetof(RGNDATA, Buffer));

    void Flush()
    {
        RGNDATAHEADER& head = m_data.head;
        if (head.nCount == 0)
        {
            return;
        }
        const RECT& first = m_data.rects[0];
        head.dwSize = sizeof head;
        head.iType = RDH_RECTANGLES;
        head.nRgnSize = head.nCount * static_cast<DWORD>(sizeof(RECT));
        head.rcBound = {first.left, first.top, m_data.rects[head.nCount - 1].right, first.bottom};
        const HRGN region =
            ::ExtCreateRegion(nullptr, head.dwSize + head.nRgnSize, reinterpret_cast<const RGNDATA*>(&m_data));
        ::FillRgn(m_dc, region, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
        ::DeleteObject(region);
        head.nCount = 0;
    }

    HDC m_dc;
    COLORREF m_former;
    Data m_data;
};

constexpr LONG kFar = 1 << 14;          // from here on the system's own arithmetic is not trusted
constexpr LONG kFarthest = INT_MAX / 2; // the width between two such places can still be said

constexpr RECT Around(LONG reach)
{
    return {-reach, -reach, reach, reach};
}

bool IsNear(int coordinate)
{
    return coordinate > -kFar && coordinate < kFar;
}

LONG Within(long long value, LONG least, LONG largest)
{
    return static_cast<LONG>(std::clamp<long long>(value, least, largest));
}

/// What may be drawn on, in logical coordinates; everything when the context cannot say.
RECT VisiblePart(HDC dc)
{
    RECT box = {};
    if (::GetClipBox(dc, &box) == ERROR)
    {
        return Around(kFarthest);
    }
    const auto [left, right] = std::minmax(box.left, box.right);
    const auto [top, bottom] = std::minmax(box.top, box.bottom);
    const auto held = [](LONG value)
    {
        return Within(value, -kFarthest, kFarthest);
    };
    return {held(left), held(top), held(right), held(bottom)};
}

/// An ident as it is asked for.
struct Ident
{
    int x;
    int y;
    int unit;
    int align;
    const char* text;
};

/// Fills the blocks of an ident, cut to the bounds.
template <class Fill>
void FillBlocks(Fill&& fill, const Ident& ident, const RECT& bounds)
{
    const LONG top = Within(ident.y, bounds.top, bounds.bottom);
    const LONG bottom = Within(static_cast<long long>(ident.y) + ident.unit, bounds.top, bounds.bottom);
    vorn::VisitMorse(ident.x, ident.unit, ident.align, ident.text,
                     [&](const vorn::MorseBlock& block)
                     {
                         const LONG left = Within(block.left, bounds.left, bounds.right);
                         const LONG right = Within(block.right, bounds.left, bounds.right);
                         fill.Fill(left, top, right, bottom);
                     });
}

} // namespace

void DrawMorse(CDC* dc, COLORREF color, int x, int y, int unit, int align, const char* text)
{
    const HDC output = dc != nullptr ? dc->GetSafeHdc() : nullptr;
    const int width = MorseWidth(unit, text);
    if (output == nullptr || unit < 1 || width < 1)
    {
        return;
    }
    const Ident ident = {x, y, unit, align, text};
    const bool isNear = IsNear(x) && IsNear(y) && IsNear(unit) && IsNear(width);
    if (isNear && GatheredFill::IsPossible(output))
    {
        FillBlocks(GatheredFill(output, color), ident, Around(4 * kFar));
    }
    else
    {
        FillBlocks(SolidFill(output, color), ident, isNear ? Around(4 * kFar) : VisiblePart(output));
    }
}
