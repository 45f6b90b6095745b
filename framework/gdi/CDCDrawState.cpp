#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CBrush.h"
#include "framework/gdi/CDC.h"
#include "framework/gdi/GdiHelpers.h"

namespace
{
HBRUSH BrushOf(const CBrush* brush)
{
    return static_cast<HBRUSH>(vorn::HandleOf(brush));
}

BOOL DrawHandle(HDC dc, HBRUSH brush, HANDLE handle, POINT point, SIZE size, UINT flags)
{
    return ::DrawState(dc, brush, nullptr, reinterpret_cast<LPARAM>(handle), 0, point.x, point.y, size.cx, size.cy,
                       flags);
}
} // namespace

BOOL CDC::DrawState(POINT point, SIZE size, HBITMAP bitmap, UINT flags, HBRUSH brush)
{
    return DrawHandle(m_hDC, brush, bitmap, point, size, flags | DST_BITMAP);
}

BOOL CDC::DrawState(POINT point, SIZE size, CBitmap* bitmap, UINT flags, CBrush* brush)
{
    return DrawHandle(m_hDC, BrushOf(brush), vorn::HandleOf(bitmap), point, size, flags | DST_BITMAP);
}

BOOL CDC::DrawState(POINT point, SIZE size, HICON icon, UINT flags, HBRUSH brush)
{
    return DrawHandle(m_hDC, brush, icon, point, size, flags | DST_ICON);
}

BOOL CDC::DrawState(POINT point, SIZE size, HICON icon, UINT flags, CBrush* brush)
{
    return DrawState(point, size, icon, flags, BrushOf(brush));
}

BOOL CDC::DrawState(POINT point, SIZE size, LPCSTR text, UINT flags, BOOL prefixText, int textLength, HBRUSH brush)
{
    const UINT type = prefixText ? DST_PREFIXTEXT : DST_TEXT;
    return ::DrawState(m_hDC, brush, nullptr, reinterpret_cast<LPARAM>(vorn::TextOf(text)),
                       static_cast<WPARAM>(textLength), point.x, point.y, size.cx, size.cy, flags | type);
}

BOOL CDC::DrawState(POINT point, SIZE size, LPCSTR text, UINT flags, BOOL prefixText, int textLength, CBrush* brush)
{
    return DrawState(point, size, text, flags, prefixText, textLength, BrushOf(brush));
}

BOOL CDC::DrawState(POINT point, SIZE size, DRAWSTATEPROC drawProc, LPARAM data, UINT flags, HBRUSH brush)
{
    return ::DrawState(m_hDC, brush, drawProc, data, 0, point.x, point.y, size.cx, size.cy, flags | DST_COMPLEX);
}

BOOL CDC::DrawState(POINT point, SIZE size, DRAWSTATEPROC drawProc, LPARAM data, UINT flags, CBrush* brush)
{
    return DrawState(point, size, drawProc, data, flags, BrushOf(brush));
}
