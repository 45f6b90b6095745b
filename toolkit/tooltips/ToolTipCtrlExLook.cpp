#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CClientDC.h"
#include "framework/gdi/CPaintDC.h"
#include "toolkit/tooltips/ToolTipCtrlEx.h"
#include "toolkit/tooltips/core/TipPlacing.h"
#include "toolkit/tooltips/core/TipText.h"

#include <algorithm>
#include <cstddef>

// How tips look.

namespace
{

COLORREF ColorOr(COLORREF color, int systemColor)
{
    return color == CLR_DEFAULT ? ::GetSysColor(systemColor) : color;
}

UINT DrawingFlags(int wrapWidth)
{
    return DT_LEFT | DT_NOPREFIX | DT_EXPANDTABS | (wrapWidth > 0 ? DT_WORDBREAK : 0U);
}

} // namespace

void ToolTipCtrlEx::SetMargin(const RECT* margins)
{
    if (margins != nullptr)
    {
        m_margins = *margins;
    }
}

void ToolTipCtrlEx::GetMargin(RECT* margins) const
{
    if (margins != nullptr)
    {
        *margins = m_margins;
    }
}

int ToolTipCtrlEx::SetMaxTipWidth(int width)
{
    const int former = m_maxWidth;
    m_maxWidth = std::max(width, 0);
    return former;
}

int ToolTipCtrlEx::GetMaxTipWidth() const
{
    return m_maxWidth;
}

void ToolTipCtrlEx::SetTipBkColor(COLORREF color)
{
    m_backColor = color;
    if (m_state.IsVisible())
    {
        Invalidate(FALSE);
    }
}

COLORREF ToolTipCtrlEx::GetTipBkColor() const
{
    return m_backColor;
}

void ToolTipCtrlEx::SetTipTextColor(COLORREF color)
{
    m_textColor = color;
    if (m_state.IsVisible())
    {
        Invalidate(FALSE);
    }
}

COLORREF ToolTipCtrlEx::GetTipTextColor() const
{
    return m_textColor;
}

bool ToolTipCtrlEx::GetSystemToolTipFont(LOGFONT& font)
{
    NONCLIENTMETRICS metrics{};
    // The record as it was at first: older systems refuse the longer one.
    metrics.cbSize = offsetof(NONCLIENTMETRICS, lfMessageFont) + sizeof(LOGFONT);
    if (!::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0))
    {
        return false;
    }
    font = metrics.lfStatusFont;
    return true;
}

bool ToolTipCtrlEx::TakeFont(const LOGFONT& font)
{
    CFont plain;
    CFont bold;
    LOGFONT heavy = font;
    heavy.lfWeight = FW_BOLD;
    if (!plain.CreateFontIndirect(&font) || !bold.CreateFontIndirect(&heavy))
    {
        return false;
    }
    m_font.DeleteObject();
    m_boldFont.DeleteObject();
    m_font.Attach(plain.Detach());
    m_boldFont.Attach(bold.Detach());
    return true;
}

bool ToolTipCtrlEx::SetLogFont(const LOGFONT* font)
{
    if (font == nullptr || !TakeFont(*font))
    {
        return false;
    }
    m_fontIsSystems = false;
    return true;
}

LRESULT ToolTipCtrlEx::OnSetFont(WPARAM font, LPARAM redraw)
{
    LOGFONT description{};
    if (::GetObject(reinterpret_cast<HGDIOBJ>(font), sizeof description, &description) == 0)
    {
        m_fontIsSystems = true;
        m_font.DeleteObject();
    }
    else
    {
        SetLogFont(&description);
    }
    if (LOWORD(redraw) != 0)
    {
        Invalidate(FALSE);
    }
    return 0;
}

LRESULT ToolTipCtrlEx::OnGetFont(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(FontFor(false).GetSafeHandle());
}

void ToolTipCtrlEx::OnSettingChange(UINT flags, LPCTSTR section)
{
    CWnd::OnSettingChange(flags, section);
    if (m_fontIsSystems)
    {
        Hush();
        m_font.DeleteObject();
    }
}

CFont& ToolTipCtrlEx::FontFor(bool bold)
{
    LOGFONT font{};
    if (m_font.GetSafeHandle() == nullptr && (!GetSystemToolTipFont(font) || !TakeFont(font)))
    {
        m_font.CreateStockObject(DEFAULT_GUI_FONT);
        m_boldFont.DeleteObject();
        m_boldFont.CreateStockObject(DEFAULT_GUI_FONT);
    }
    return bold ? m_boldFont : m_font;
}

int ToolTipCtrlEx::WrapWidth() const
{
    const bool isBox = m_state.Now() == vorn::TipState::Phase::InfoBox;
    return vorn::TipWrapWidth(m_maxWidth, isBox, m_tipPlace.Width());
}

CSize ToolTipCtrlEx::TextSize(const CString& text, bool bold)
{
    if (text.IsEmpty())
    {
        return CSize(0, 0);
    }
    CClientDC dc(nullptr);
    CFont* const former = dc.SelectObject(&FontFor(bold));
    const int width = bold ? m_maxWidth : WrapWidth(); // a box's title has the lines that it had as a tip
    CRect area(0, 0, width, 0);
    dc.DrawText(text, &area, DrawingFlags(width) | DT_CALCRECT);
    dc.SelectObject(former);
    return area.Size();
}

CRect ToolTipCtrlEx::GetBoundsRect(CString text, int extra)
{
    CSize size = TextSize(text, false);
    size.cx += size.cx > 0 ? extra : 0;
    return CRect(CPoint(0, 0), vorn::TipSize(size, m_margins));
}

BOOL ToolTipCtrlEx::OnEraseBkgnd(CDC*)
{
    return TRUE; // painted with the text
}

void ToolTipCtrlEx::OnPaint()
{
    CPaintDC dc(this);
    CRect area;
    GetClientRect(&area);
    CDC memory;
    CBitmap picture;
    if (!memory.CreateCompatibleDC(&dc) || !picture.CreateCompatibleBitmap(&dc, area.Width(), area.Height()))
    {
        PaintTip(dc, area);
        return;
    }
    CBitmap* const former = memory.SelectObject(&picture);
    PaintTip(memory, area);
    dc.BitBlt(0, 0, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(former);
}

void ToolTipCtrlEx::PaintTip(CDC& dc, const CRect& area)
{
    const COLORREF textColor = ColorOr(m_textColor, COLOR_INFOTEXT);
    dc.FillSolidRect(&area, ColorOr(m_backColor, COLOR_INFOBK));
    dc.Draw3dRect(&area, textColor, textColor);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(textColor);
    const bool isBox = m_state.Now() == vorn::TipState::Phase::InfoBox;
    DrawPiece(dc, m_tip, isBox, m_tipPlace);
    if (isBox)
    {
        DrawPiece(dc, m_info, false, m_infoPlace);
    }
}

/// Wraps where the text was wrapped when it was measured, also beyond a word that sticks out.
void ToolTipCtrlEx::DrawPiece(CDC& dc, const CString& text, bool bold, const CRect& place)
{
    const int width = bold ? m_maxWidth : WrapWidth();
    CRect area = place;
    if (width > 0)
    {
        area.right = area.left + width;
    }
    CFont* const former = dc.SelectObject(&FontFor(bold));
    dc.DrawText(text, &area, DrawingFlags(width) | DT_NOCLIP);
    dc.SelectObject(former);
}
