#include "aviation/Drawing.h"
#include "framework/gdi/CDC.h"

#include <algorithm>
#include <climits>

namespace
{

/// Fills rectangles with one colour, the one that a single pixel would get: no device mixes it of others.
class SolidFill
{
public:
    SolidFill(HDC dc, COLORREF color)
        : m_dc(dc), m_brush(::CreateSolidBrush(::GetNearestColor(dc, color))), m_former(::SelectObject(dc, m_brush))
    {
    }
    ~SolidFill()
    {
        ::SelectObject(m_dc, m_former);
        ::DeleteObject(m_brush);
    }
    SolidFill(const SolidFill&) = delete;
    SolidFill& operator=(const SolidFill&) = delete;

    void Fill(int x, int y, int width, int height) const
    {
        if (width > 0 && height > 0)
        {
            ::PatBlt(m_dc, x, y, width, height, PATCOPY);
        }
    }

private:
    HDC m_dc;
    HBRUSH m_brush;
    HGDIOBJ m_former;
};

constexpr int kFar = 1 << 14;          // from here on the system's own arithmetic is not trusted
constexpr int kFarthest = INT_MAX / 2; // the width between two such places can still be said

bool IsNear(int coordinate)
{
    return coordinate > -kFar && coordinate < kFar;
}

/// What may be drawn on, in logical coordinates.
CRect VisiblePart(HDC dc)
{
    const CRect all(-kFarthest, -kFarthest, kFarthest, kFarthest);
    CRect box;
    if (::GetClipBox(dc, &box) == ERROR)
    {
        return all;
    }
    box.NormalizeRect();
    box.IntersectRect(&box, &all);
    return box;
}

int Within(long long value, LONG least, LONG largest)
{
    return static_cast<int>(std::clamp<long long>(value, least, largest));
}

void FillCode(HDC dc, COLORREF color, int x, int y, int unit, int align, const char* text, const CRect& bounds)
{
    const int top = Within(y, bounds.top, bounds.bottom);
    const int height = Within(static_cast<long long>(y) + unit, bounds.top, bounds.bottom) - top;
    const SolidFill fill(dc, color);
    vorn::VisitMorse(x, unit, align, text,
                     [&](const vorn::MorseBlock& block)
                     {
                         const int left = Within(block.left, bounds.left, bounds.right);
                         const int right = Within(block.right, bounds.left, bounds.right);
                         fill.Fill(left, top, right - left, height);
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
    const bool isNear = IsNear(x) && IsNear(y) && IsNear(unit) && IsNear(width);
    FillCode(output, color, x, y, unit, align, text,
             isNear ? CRect(-2 * kFar, -2 * kFar, 2 * kFar, 2 * kFar) : VisiblePart(output));
}
