#include "framework/gdi/CPen.h"
#include "framework/core/Exception.h"

IMPLEMENT_DYNAMIC(CPen, CGdiObject)

CPen::CPen() = default;

CPen::CPen(int style, int width, COLORREF color)
{
    if (!CreatePen(style, width, color))
        AfxThrowResourceException();
}

CPen::CPen(int style, int width, const LOGBRUSH* brush, int styleCount, const DWORD* styles)
{
    if (!CreatePen(style, width, brush, styleCount, styles))
        AfxThrowResourceException();
}

CPen::operator HPEN() const
{
    return static_cast<HPEN>(m_hObject);
}

CPen* PASCAL CPen::FromHandle(HPEN pen)
{
    return static_cast<CPen*>(CGdiObject::FromHandle(pen));
}

BOOL CPen::CreatePen(int style, int width, COLORREF color)
{
    return Attach(::CreatePen(style, width, color));
}

BOOL CPen::CreatePen(int style, int width, const LOGBRUSH* brush, int styleCount, const DWORD* styles)
{
    if (!brush || width < 0 || styleCount < 0)
        return FALSE;
    return Attach(::ExtCreatePen(static_cast<DWORD>(style), static_cast<DWORD>(width), brush,
                                 static_cast<DWORD>(styleCount), styles));
}

BOOL CPen::CreatePenIndirect(LOGPEN* description)
{
    return description ? Attach(::CreatePenIndirect(description)) : FALSE;
}

int CPen::GetLogPen(LOGPEN* description) const
{
    return GetObject(sizeof(LOGPEN), description);
}

int CPen::GetExtLogPen(EXTLOGPEN* description) const
{
    return GetObject(sizeof(EXTLOGPEN), description);
}
