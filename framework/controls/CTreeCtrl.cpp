#include "framework/controls/CTreeCtrl.h"

#include "framework/controls/CEdit.h"
#include "framework/controls/CImageList.h"
#include "framework/controls/CToolTipCtrl.h"
#include "framework/controls/ControlMessage.h"

#include <cstring>

using vorn::AsHandle;
using vorn::Ask;

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

CTreeCtrl::CTreeCtrl() = default;

BOOL CTreeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    vorn::EnsureCommonControls();
    return CWnd::Create(WC_TREEVIEWA, nullptr, style, rect, parent, id);
}

UINT CTreeCtrl::GetIndent() const
{
    return static_cast<UINT>(Ask(*this, TVM_GETINDENT));
}

void CTreeCtrl::SetIndent(UINT indent)
{
    Ask(*this, TVM_SETINDENT, indent);
}

SHORT CTreeCtrl::GetItemHeight() const
{
    return static_cast<SHORT>(Ask(*this, TVM_GETITEMHEIGHT));
}

SHORT CTreeCtrl::SetItemHeight(SHORT height)
{
    return static_cast<SHORT>(Ask(*this, TVM_SETITEMHEIGHT, static_cast<WPARAM>(height)));
}

COLORREF CTreeCtrl::GetBkColor() const
{
    return static_cast<COLORREF>(Ask(*this, TVM_GETBKCOLOR));
}

COLORREF CTreeCtrl::SetBkColor(COLORREF colour)
{
    return static_cast<COLORREF>(Ask(*this, TVM_SETBKCOLOR, 0, static_cast<LPARAM>(colour)));
}

COLORREF CTreeCtrl::GetTextColor() const
{
    return static_cast<COLORREF>(Ask(*this, TVM_GETTEXTCOLOR));
}

COLORREF CTreeCtrl::SetTextColor(COLORREF colour)
{
    return static_cast<COLORREF>(Ask(*this, TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(colour)));
}

CImageList* CTreeCtrl::SetImageList(CImageList* list, int kind)
{
    const auto handle = list ? reinterpret_cast<LPARAM>(list->GetSafeHandle()) : 0;
    return CImageList::FromHandle(
        AsHandle<HIMAGELIST>(Ask(*this, TVM_SETIMAGELIST, static_cast<WPARAM>(kind), handle)));
}

CImageList* CTreeCtrl::GetImageList(UINT kind) const
{
    return CImageList::FromHandle(AsHandle<HIMAGELIST>(Ask(*this, TVM_GETIMAGELIST, kind)));
}

// The tooltip of a tree has an object only when the program gave it one.
CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(FromHandle(AsHandle<HWND>(Ask(*this, TVM_GETTOOLTIPS))));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* tips)
{
    const HWND window = tips ? tips->m_hWnd : nullptr;
    return static_cast<CToolTipCtrl*>(FromHandle(AsHandle<HWND>(Ask(*this, TVM_SETTOOLTIPS, vorn::AsWParam(window)))));
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT code) const
{
    return AsHandle<HTREEITEM>(Ask(*this, TVM_GETNEXTITEM, code, item));
}

HTREEITEM CTreeCtrl::GetRootItem() const
{
    return GetNextItem(nullptr, TVGN_ROOT);
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_CHILD);
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_NEXT);
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_PREVIOUS);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_PARENT);
}

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const
{
    return GetNextItem(nullptr, TVGN_FIRSTVISIBLE);
}

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_NEXTVISIBLE);
}

HTREEITEM CTreeCtrl::GetPrevVisibleItem(HTREEITEM item) const
{
    return GetNextItem(item, TVGN_PREVIOUSVISIBLE);
}

HTREEITEM CTreeCtrl::GetSelectedItem() const
{
    return GetNextItem(nullptr, TVGN_CARET);
}

HTREEITEM CTreeCtrl::GetDropHilightItem() const
{
    return GetNextItem(nullptr, TVGN_DROPHILITE);
}

BOOL CTreeCtrl::Select(HTREEITEM item, UINT code)
{
    return Ask(*this, TVM_SELECTITEM, code, item);
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item)
{
    return Select(item, TVGN_CARET);
}

BOOL CTreeCtrl::SelectDropTarget(HTREEITEM item)
{
    return Select(item, TVGN_DROPHILITE);
}

BOOL CTreeCtrl::SelectSetFirstVisible(HTREEITEM item)
{
    return Select(item, TVGN_FIRSTVISIBLE);
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code)
{
    return Ask(*this, TVM_EXPAND, code, item);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM item)
{
    return Ask(*this, TVM_ENSUREVISIBLE, 0, item);
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM item)
{
    return static_cast<CEdit*>(FromHandle(AsHandle<HWND>(Ask(*this, TVM_EDITLABELA, 0, item))));
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return static_cast<CEdit*>(FromHandle(AsHandle<HWND>(Ask(*this, TVM_GETEDITCONTROL))));
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const
{
    std::memcpy(rect, &item, sizeof(HTREEITEM)); // the item travels in the rectangle's place
    return Ask(*this, TVM_GETITEMRECT, static_cast<WPARAM>(textOnly), rect);
}

UINT CTreeCtrl::GetVisibleCount() const
{
    return static_cast<UINT>(Ask(*this, TVM_GETVISIBLECOUNT));
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* info) const
{
    return AsHandle<HTREEITEM>(Ask(*this, TVM_HITTEST, 0, info));
}

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT* flags) const
{
    TVHITTESTINFO info{};
    info.pt = point;
    const HTREEITEM item = HitTest(&info);
    if (flags)
        *flags = info.flags;
    return item;
}
