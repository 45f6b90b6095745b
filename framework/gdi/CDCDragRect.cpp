#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CBrush.h"
#include "framework/gdi/CDC.h"
#include "framework/gdi/CRgn.h"
#include <memory>

namespace
{
/// The frame of a rectangle, `thickness` wide inwards. Empty without a rectangle.
void MakeFrame(CRgn& frame, const RECT* rect, SIZE thickness)
{
    CRect outer(0, 0, 0, 0);
    if (rect)
        outer = *rect;
    CRect inner = outer;
    inner.InflateRect(-static_cast<int>(thickness.cx), -static_cast<int>(thickness.cy));
    inner.IntersectRect(&inner, &outer);
    CRgn hole;
    hole.CreateRectRgnIndirect(&inner);
    frame.CreateRectRgnIndirect(&outer);
    frame.CombineRgn(&frame, &hole, RGN_DIFF);
}

/// Inverts the pixels of a region that the brush's pattern marks.
void InvertPattern(CDC& dc, CRgn& region, CBrush* brush)
{
    CRect box;
    dc.SaveDC();
    dc.SelectClipRgn(&region, RGN_AND);
    dc.GetClipBox(&box);
    dc.SelectObject(brush);
    dc.PatBlt(box.left, box.top, box.Width(), box.Height(), PATINVERT);
    dc.RestoreDC(-1);
}

CBrush* MakeHalftoneBrush()
{
    static constexpr WORD kEverySecondPixel[8] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
    CBitmap pattern;
    auto brush = std::make_unique<CBrush>();
    if (!pattern.CreateBitmap(8, 8, 1, 1, kEverySecondPixel) || !brush->CreatePatternBrush(&pattern))
        return nullptr;
    return brush.release();
}
} // namespace

CBrush* PASCAL CDC::GetHalftoneBrush()
{
    // Lives as long as the process: other modules may draw with it while they unload.
    static CBrush* const brush = MakeHalftoneBrush();
    return brush;
}

void CDC::DrawDragRect(const RECT* rect, SIZE thickness, const RECT* last, SIZE lastThickness, CBrush* brush,
                       CBrush* lastBrush)
{
    CBrush* const halftone = GetHalftoneBrush();
    brush = brush ? brush : halftone;
    lastBrush = lastBrush ? lastBrush : brush;
    CRgn frame;
    CRgn lastFrame;
    MakeFrame(frame, rect, thickness);
    MakeFrame(lastFrame, last, lastThickness);
    if (brush == lastBrush)
    {
        // In one step, so that what both frames cover does not flicker.
        frame.CombineRgn(&frame, &lastFrame, RGN_XOR);
    }
    else
    {
        InvertPattern(*this, lastFrame, lastBrush);
    }
    InvertPattern(*this, frame, brush);
}
