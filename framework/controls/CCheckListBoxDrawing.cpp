// How the items of a check list look.
#include "framework/controls/CCheckListBox.h"

#include <algorithm>

namespace
{
constexpr int kTextMargin = 3; // between check box and text

int FontHeight(HWND window, HFONT font)
{
    const HDC dc = ::GetDC(window);
    const HGDIOBJ former = ::SelectObject(dc, font ? font : ::GetStockObject(SYSTEM_FONT));
    TEXTMETRICA metrics{};
    ::GetTextMetricsA(dc, &metrics);
    ::SelectObject(dc, former);
    ::ReleaseDC(window, dc);
    return static_cast<int>(metrics.tmHeight);
}

int CheckWidth()
{
    return ::GetSystemMetrics(SM_CXMENUCHECK);
}

int CheckHeight()
{
    return ::GetSystemMetrics(SM_CYMENUCHECK);
}

UINT CheckLook(int check)
{
    switch (check)
    {
    case BST_CHECKED:
        return DFCS_BUTTONCHECK | DFCS_CHECKED;
    case BST_INDETERMINATE:
        return DFCS_BUTTON3STATE | DFCS_CHECKED;
    default:
        return DFCS_BUTTONCHECK;
    }
}
} // namespace

int CCheckListBox::ItemHeight() const
{
    const auto font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
    return std::max(FontHeight(m_hWnd, font), CheckHeight() + 2);
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT item)
{
    item->itemHeight = static_cast<UINT>(ItemHeight());
}

CRect CCheckListBox::OnGetCheckPosition(CRect, CRect checkBox)
{
    return checkBox;
}

CRect CCheckListBox::CheckRect(const CRect& item)
{
    const int left = static_cast<int>(item.left) + 1;
    const int top = static_cast<int>(item.top) + std::max(0, (item.Height() - CheckHeight()) / 2);
    return OnGetCheckPosition(item, CRect(left, top, left + CheckWidth(), top + CheckHeight()));
}

BOOL CCheckListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_DRAWITEM)
    {
        // The system's record stays as it is: it is not ours to change.
        DRAWITEMSTRUCT item = *reinterpret_cast<LPDRAWITEMSTRUCT>(lParam);
        DrawCheck(item);
        DrawItem(&item);
        return TRUE;
    }
    return CListBox::OnChildNotify(message, wParam, lParam, result);
}

/// Draws the check box with the list's background around it, and takes its room off the item.
void CCheckListBox::DrawCheck(DRAWITEMSTRUCT& item)
{
    const int index = static_cast<int>(item.itemID);
    const CRect check = CheckRect(item.rcItem);
    const LONG textLeft = std::min(std::max(item.rcItem.left, check.right + kTextMargin), item.rcItem.right);
    if (HasItem(index) && (item.itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) != 0)
    {
        RECT margin = item.rcItem;
        margin.right = textLeft;
        ::FillRect(item.hDC, &margin, ::GetSysColorBrush(COLOR_WINDOW));
        const bool grey = !IsEnabled(index) || !IsWindowEnabled();
        RECT box = check;
        ::DrawFrameControl(item.hDC, &box, DFC_BUTTON, CheckLook(GetCheck(index)) | (grey ? DFCS_INACTIVE : 0U));
    }
    item.rcItem.left = textLeft;
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT item)
{
    const int index = static_cast<int>(item->itemID);
    const bool whole = (item->itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) != 0;
    if (whole)
    {
        const bool selected = (item->itemState & ODS_SELECTED) != 0;
        const bool grey = !IsEnabled(index) || !IsWindowEnabled();
        ::FillRect(item->hDC, &item->rcItem, ::GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        const int colour = grey ? COLOR_GRAYTEXT : selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
        const COLORREF formerColour = ::SetTextColor(item->hDC, ::GetSysColor(colour));
        const int formerMode = ::SetBkMode(item->hDC, TRANSPARENT);
        CString text;
        GetText(index, text);
        RECT place = item->rcItem;
        place.left += 1;
        ::DrawTextA(item->hDC, text, text.GetLength(), &place,
                    DT_LEFT | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_EXPANDTABS);
        ::SetBkMode(item->hDC, formerMode);
        ::SetTextColor(item->hDC, formerColour);
    }
    // Drawn a second time the focus rectangle is gone.
    if (whole ? (item->itemState & ODS_FOCUS) != 0 : (item->itemAction & ODA_FOCUS) != 0)
        ::DrawFocusRect(item->hDC, &item->rcItem);
}
