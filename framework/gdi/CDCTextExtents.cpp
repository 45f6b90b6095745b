#include "framework/gdi/CDC.h"
#include "framework/gdi/GdiHelpers.h"

using vorn::LengthOf;
using vorn::TextOf;

namespace
{
CSize Extent(HDC dc, LPCSTR text, int length)
{
    CSize size(0, 0);
    ::GetTextExtentPoint32(dc, TextOf(text), LengthOf(text, length), &size);
    return size;
}

CSize TabbedExtent(HDC dc, LPCSTR text, int length, int tabCount, LPINT tabs)
{
    const DWORD extent = ::GetTabbedTextExtent(dc, TextOf(text), LengthOf(text, length), tabCount, tabs);
    return CSize(LOWORD(extent), HIWORD(extent));
}
} // namespace

CSize CDC::GetTextExtent(LPCSTR text, int length) const
{
    return Extent(m_hAttribDC, text, length);
}

CSize CDC::GetTextExtent(const CString& text) const
{
    return GetTextExtent(text, text.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCSTR text, int length) const
{
    return Extent(m_hDC, text, length);
}

CSize CDC::GetOutputTextExtent(const CString& text) const
{
    return GetOutputTextExtent(text, text.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCSTR text, int length, int tabCount, LPINT tabs) const
{
    return TabbedExtent(m_hAttribDC, text, length, tabCount, tabs);
}

CSize CDC::GetTabbedTextExtent(const CString& text, int tabCount, LPINT tabs) const
{
    return GetTabbedTextExtent(text, text.GetLength(), tabCount, tabs);
}

CSize CDC::GetOutputTabbedTextExtent(LPCSTR text, int length, int tabCount, LPINT tabs) const
{
    return TabbedExtent(m_hDC, text, length, tabCount, tabs);
}

CSize CDC::GetOutputTabbedTextExtent(const CString& text, int tabCount, LPINT tabs) const
{
    return GetOutputTabbedTextExtent(text, text.GetLength(), tabCount, tabs);
}

BOOL CDC::GetTextExtentExPoint(LPCSTR text, int length, int maxExtent, LPINT fit, LPINT widths, LPSIZE size) const
{
    return ::GetTextExtentExPoint(m_hAttribDC, TextOf(text), LengthOf(text, length), maxExtent, fit, widths, size);
}
