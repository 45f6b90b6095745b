#include "aviation/Drawing.h"
#include "framework/gdi/CDC.h"

#include <algorithm>
#include <climits>

namespace
{

/// Where drawing shows, in logical coordinates; everywhere when the context cannot say.
CRect VisiblePart(const CDC& dc)
{
    CRect box;
    if (dc.GetClipBox(&box) == ERROR)
    {
        return {INT_MIN, INT_MIN, INT_MAX, INT_MAX};
    }
    box.NormalizeRect();
    return box;
}

int Clipped(long long value, LONG least, LONG largest)
{
    return static_cast<int>(std::clamp<long long>(value, least, largest));
}

} // namespace

void DrawMorse(CDC* dc, COLORREF color, int x, int y, int unit, int align, const char* text)
{
    if (dc == nullptr)
    {
        return;
    }
    const CRect visible = VisiblePart(*dc);
    const int top = Clipped(y, visible.top, visible.bottom);
    const int bottom = Clipped(static_cast<long long>(y) + unit, visible.top, visible.bottom);
    vorn::VisitMorse(x, unit, align, text,
                     [&](const vorn::MorseBlock& block)
                     {
                         const int left = Clipped(block.left, visible.left, visible.right);
                         const int right = Clipped(block.right, visible.left, visible.right);
                         if (left < right && top < bottom)
                         {
                             dc->FillSolidRect(CRect(left, top, right, bottom), color);
                         }
                     });
}
