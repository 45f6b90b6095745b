#include "framework/gdi/CBrush.h"
#include "framework/core/Exception.h"
#include "framework/gdi/CBitmap.h"

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

CBrush::CBrush() = default;

CBrush::CBrush(COLORREF color)
{
    if (!CreateSolidBrush(color))
        AfxThrowResourceException();
}

CBrush::CBrush(int hatch, COLORREF color)
{
    if (!CreateHatchBrush(hatch, color))
        AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* bitmap)
{
    if (!CreatePatternBrush(bitmap))
        AfxThrowResourceException();
}

CBrush::operator HBRUSH() const
{
    return static_cast<HBRUSH>(m_hObject);
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH brush)
{
    return static_cast<CBrush*>(CGdiObject::FromHandle(brush));
}

BOOL CBrush::CreateSolidBrush(COLORREF color)
{
    return Attach(::CreateSolidBrush(color));
}

BOOL CBrush::CreateHatchBrush(int hatch, COLORREF color)
{
    return Attach(::CreateHatchBrush(hatch, color));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* description)
{
    return description ? Attach(::CreateBrushIndirect(description)) : FALSE;
}

BOOL CBrush::CreatePatternBrush(CBitmap* bitmap)
{
    return bitmap ? Attach(::CreatePatternBrush(*bitmap)) : FALSE;
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL packedDib, UINT usage)
{
    const void* bits = packedDib ? ::GlobalLock(packedDib) : nullptr;
    if (!bits)
        return FALSE;
    const BOOL created = CreateDIBPatternBrush(bits, usage);
    ::GlobalUnlock(packedDib);
    return created;
}

BOOL CBrush::CreateDIBPatternBrush(const void* packedDib, UINT usage)
{
    return packedDib ? Attach(::CreateDIBPatternBrushPt(packedDib, usage)) : FALSE;
}

BOOL CBrush::CreateSysColorBrush(int index)
{
    return Attach(::GetSysColorBrush(index));
}

int CBrush::GetLogBrush(LOGBRUSH* description) const
{
    return GetObject(sizeof(LOGBRUSH), description);
}
