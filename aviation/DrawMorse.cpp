#include "aviation/Drawing.h"
#include "framework/gdi/CDC.h"

#include <algorithm>
#include <array>
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

/// An ident as it is asked for, and its width.
struct Ident
{
    int x;
    int y;
    int unit;
    int align;
    const char* text;
    int width;
};

/// Fills the blocks of an ident one by one, cut to the bounds: on any device, with any mapping.
void FillBlocks(const SolidFill& fill, const Ident& ident, const RECT& bounds)
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

/// A bitmap of true colours, a pixel a unit: what is combined with its pixels bit by bit is what one expects.
bool HasPlainPixels(HDC dc)
{
    BITMAP bitmap = {};
    return ::GetObjectType(dc) == OBJ_MEMDC && ::GetMapMode(dc) == MM_TEXT && ::GetGraphicsMode(dc) == GM_COMPATIBLE &&
           ::GetLayout(dc) == 0 && ::GetObject(::GetCurrentObject(dc, OBJ_BITMAP), sizeof bitmap, &bitmap) != 0 &&
           bitmap.bmBitsPixel >= 24;
}

/// Fills all blocks with one call, through a mask: there a call costs more than its pixels.
class MaskedFill
{
public:
    static bool IsPossible(HDC dc, const Ident& ident)
    {
        return ident.width <= kMostPixels / ident.unit && HasPlainPixels(dc);
    }

    /// @return false when nothing was drawn.
    bool Fill(HDC dc, const Ident& ident)
    {
        const int left = static_cast<int>(vorn::MorseStart(ident.x, ident.width, ident.align));
        MakeFirstRow(ident, left);
        for (int row = 1; row < ident.unit; ++row)
        {
            std::copy_n(m_mask.begin(), ident.width, m_mask.begin() + std::ptrdiff_t{row} * ident.width);
        }
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, ident.width, -ident.unit, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        const int rows = ::StretchDIBits(dc, left, ident.y, ident.width, ident.unit, 0, 0, ident.width, ident.unit,
                                         m_mask.data(), &info, DIB_RGB_COLORS, kPatternOrTarget);
        return rows != 0 && rows != static_cast<int>(GDI_ERROR);
    }

private:
    static constexpr int kMostPixels = 1024;
    static constexpr DWORD kPatternOrTarget = 0x00B8074A; // the brush where the mask is 0, what is there where it is 1

    void MakeFirstRow(const Ident& ident, long long begin)
    {
        std::fill_n(m_mask.begin(), ident.width, ~DWORD{0});
        vorn::VisitMorse(ident.x, ident.unit, ident.align, ident.text,
                         [&](const vorn::MorseBlock& block)
                         {
                             std::fill(m_mask.begin() + static_cast<std::ptrdiff_t>(block.left - begin),
                                       m_mask.begin() + static_cast<std::ptrdiff_t>(block.right - begin), DWORD{0});
                         });
    }

    std::array<DWORD, kMostPixels> m_mask;
};

} // namespace

void DrawMorse(CDC* dc, COLORREF color, int x, int y, int unit, int align, const char* text)
{
    const HDC output = dc != nullptr ? dc->GetSafeHdc() : nullptr;
    const int width = MorseWidth(unit, text);
    if (output == nullptr || unit < 1 || width < 1)
    {
        return;
    }
    const Ident ident = {x, y, unit, align, text, width};
    const bool isNear = IsNear(x) && IsNear(y) && IsNear(unit) && IsNear(width);
    const SolidFill fill(output, color);
    if (!isNear || !MaskedFill::IsPossible(output, ident) || !MaskedFill().Fill(output, ident))
    {
        FillBlocks(fill, ident, isNear ? Around(4 * kFar) : VisiblePart(output));
    }
}
