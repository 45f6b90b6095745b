#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CDC.h"
#include "framework/gdi/GdiHelpers.h"

using vorn::HandleOf;

COLORREF CDC::GetPixel(int x, int y) const
{
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::GetPixel(POINT point) const
{
    return GetPixel(point.x, point.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF color)
{
    return ::SetPixel(m_hDC, x, y, color);
}

COLORREF CDC::SetPixel(POINT point, COLORREF color)
{
    return SetPixel(point.x, point.y, color);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF color)
{
    return ::SetPixelV(m_hDC, x, y, color);
}

BOOL CDC::SetPixelV(POINT point, COLORREF color)
{
    return SetPixelV(point.x, point.y, color);
}

BOOL CDC::PatBlt(int x, int y, int width, int height, DWORD rop)
{
    return ::PatBlt(m_hDC, x, y, width, height, rop);
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, DWORD rop)
{
    return ::BitBlt(m_hDC, x, y, width, height, HandleOf(source), xSource, ySource, rop);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                     int sourceHeight, DWORD rop)
{
    return ::StretchBlt(m_hDC, x, y, width, height, HandleOf(source), xSource, ySource, sourceWidth, sourceHeight, rop);
}

BOOL CDC::MaskBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, CBitmap& mask, int xMask,
                  int yMask, DWORD rop)
{
    return ::MaskBlt(m_hDC, x, y, width, height, HandleOf(source), xSource, ySource, mask, xMask, yMask, rop);
}

BOOL CDC::PlgBlt(LPPOINT corners, CDC* source, int xSource, int ySource, int width, int height, CBitmap& mask,
                 int xMask, int yMask)
{
    return ::PlgBlt(m_hDC, corners, HandleOf(source), xSource, ySource, width, height, mask, xMask, yMask);
}

BOOL CDC::TransparentBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                         int sourceHeight, UINT transparentColor)
{
    return ::GdiTransparentBlt(m_hDC, x, y, width, height, HandleOf(source), xSource, ySource, sourceWidth,
                               sourceHeight, transparentColor);
}

BOOL CDC::AlphaBlend(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                     int sourceHeight, BLENDFUNCTION blend)
{
    return ::GdiAlphaBlend(m_hDC, x, y, width, height, HandleOf(source), xSource, ySource, sourceWidth, sourceHeight,
                           blend);
}

BOOL CDC::FloodFill(int x, int y, COLORREF boundary)
{
    return ::FloodFill(m_hDC, x, y, boundary);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF color, UINT type)
{
    return ::ExtFloodFill(m_hDC, x, y, color, type);
}
