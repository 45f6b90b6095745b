// Stands in for parts that are on their way, so that the library links meanwhile.
#if !__has_include("framework/gdi/CDC.cpp")
#include "framework/gdi/CDC.h"
#include "framework/gdi/CFont.h"

CDC* CDC::FromHandle(HDC)
{
    return nullptr;
}

HDC CDC::GetSafeHdc() const
{
    return m_hDC;
}

CFont* CFont::FromHandle(HFONT)
{
    return nullptr;
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return m_hObject;
}
#endif
#if !__has_include("framework/dialog/CDataExchange.cpp")
#include "framework/dialog/CDataExchange.h"

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog)
{
}
#endif
