#include "framework/gdi/CBrush.h"
#include "framework/gdi/CDC.h"
#include "framework/gdi/CRgn.h"
#include "framework/gdi/GdiHelpers.h"

using vorn::LengthOf;
using vorn::OnBoth;
using vorn::TextOf;

namespace
{
CSize SizeOfTabbed(LONG extent)
{
    return CSize(LOWORD(extent), HIWORD(extent));
}
} // namespace

BOOL CDC::TextOut(int x, int y, LPCSTR text, int length)
{
    return ::TextOut(m_hDC, x, y, TextOf(text), LengthOf(text, length));
}

BOOL CDC::TextOut(int x, int y, const CString& text)
{
    return TextOut(x, y, text, text.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length, LPINT widths)
{
    const auto count = static_cast<UINT>(LengthOf(text, static_cast<int>(length)));
    return ::ExtTextOut(m_hDC, x, y, options, rect, TextOf(text), count, widths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, const RECT* rect, const CString& text, LPINT widths)
{
    return ExtTextOut(x, y, options, rect, text, static_cast<UINT>(text.GetLength()), widths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCSTR text, int length, int tabCount, LPINT tabs, int tabOrigin)
{
    return SizeOfTabbed(::TabbedTextOut(m_hDC, x, y, TextOf(text), LengthOf(text, length), tabCount, tabs, tabOrigin));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& text, int tabCount, LPINT tabs, int tabOrigin)
{
    return TabbedTextOut(x, y, text, text.GetLength(), tabCount, tabs, tabOrigin);
}

int CDC::DrawText(LPCSTR text, int length, LPRECT rect, UINT format)
{
    return ::DrawText(m_hDC, TextOf(text), LengthOf(text, length), rect, format);
}

namespace
{
/// A text's copy for calls that may put "..." into the buffer, with room for it.
CString CopyToModify(const CString& text)
{
    CString copy = text;
    constexpr int kEllipsisRoom = 4;
    copy.GetBuffer(text.GetLength() + kEllipsisRoom);
    return copy;
}
} // namespace

int CDC::DrawText(const CString& text, LPRECT rect, UINT format)
{
    if (format & DT_MODIFYSTRING)
        return DrawText(CopyToModify(text).GetBuffer(), text.GetLength(), rect, format);
    return DrawText(text, text.GetLength(), rect, format);
}

int CDC::DrawTextEx(LPSTR text, int length, LPRECT rect, UINT format, LPDRAWTEXTPARAMS parameters)
{
    return text ? ::DrawTextEx(m_hDC, text, LengthOf(text, length), rect, format, parameters) : 0;
}

int CDC::DrawTextEx(const CString& text, LPRECT rect, UINT format, LPDRAWTEXTPARAMS parameters)
{
    return DrawTextEx(CopyToModify(text).GetBuffer(), text.GetLength(), rect, format, parameters);
}

BOOL CDC::GrayString(CBrush* brush, BOOL(CALLBACK* output)(HDC, LPARAM, int), LPARAM data, int length, int x, int y,
                     int width, int height)
{
    return ::GrayString(m_hDC, static_cast<HBRUSH>(vorn::HandleOf(brush)), output, data, length, x, y, width, height);
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT flags)
{
    return OnBoth(*this, ::SetTextAlign, flags);
}

int CDC::SetTextJustification(int breakExtra, int breakCount)
{
    return OnBoth(*this, ::SetTextJustification, breakExtra, breakCount);
}

int CDC::GetTextCharacterExtra() const
{
    return ::GetTextCharacterExtra(m_hAttribDC);
}

int CDC::SetTextCharacterExtra(int extra)
{
    return OnBoth(*this, ::SetTextCharacterExtra, extra);
}

DWORD CDC::SetMapperFlags(DWORD flags)
{
    return OnBoth(*this, ::SetMapperFlags, flags);
}

BOOL CDC::ScrollDC(int dx, int dy, const RECT* scroll, const RECT* clip, CRgn* updateRegion, LPRECT updateRect)
{
    return ::ScrollDC(m_hDC, dx, dy, scroll, clip, static_cast<HRGN>(vorn::HandleOf(updateRegion)), updateRect);
}
