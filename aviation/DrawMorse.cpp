#include "aviation/Drawing.h"
#include "framework/gdi/CDC.h"

#include <algorithm>
#include <climits>

namespace
{

/// The colour that a single pixel would get, so that no device mixes it of others.
COLORREF PureColor(HDC dc, COLORREF color)
{
    const COLORREF nearest = ::GetNearestColor(dc, color);
    return nearest != CLR_INVALID ? nearest : color; // metafiles have no pixels
}

/// Fills rectangles with one colour.
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

} // namespace

void DrawMorse(CDC* dc, COLORREF color, int x, int y, int unit, int align, const char* text)
{
    const HDC output = dc != nullptr ? dc->GetSafeHdc() : nullptr;
    const int width = MorseWidth(unit, text);
    if (output == nullptr || unit < 1 || width < 1)
    {
        return;
    }
    const bool isNear = IsNear(x) && IsNear(y) && IsNear(unit) && IsNear(width);
    const RECT bounds = isNear ? Around(4 * kFar) : VisiblePart(output);
    const LONG top = Within(y, bounds.top, bounds.bottom);
    const LONG bottom = Within(static_cast<long long>(y) + unit, bounds.top, bounds.bottom);
    const SolidFill fill(output, color);
    vorn::VisitMorse(x, unit, align, text,
                     [&](const vorn::MorseBlock& block)
                     {
                         const LONG left = Within(block.left, bounds.left, bounds.right);
                         const LONG right = Within(block.right, bounds.left, bounds.right);
                         fill.Fill(left, top, right, bottom);
                     });
}
