// Items of the tree view: filling it, their texts, values and states.
#include "framework/controls/CTreeCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::AsHandle;
using vorn::Ask;

namespace
{
constexpr UINT kCheckedImage = 2; // state picture 1 is the empty box, 2 the ticked one
constexpr int kFirstTextSize = 128;
constexpr int kLastTextSize = 1 << 20; // an owner that fills every buffer must not keep us growing

TVITEMA Described(HTREEITEM item, UINT mask)
{
    TVITEMA described{};
    described.mask = TVIF_HANDLE | mask;
    described.hItem = item;
    return described;
}
} // namespace

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCTA item)
{
    return AsHandle<HTREEITEM>(Ask(*this, TVM_INSERTITEMA, 0, item));
}

HTREEITEM CTreeCtrl::InsertItem(UINT mask, LPCTSTR text, int image, int selectedImage, UINT state, UINT stateMask,
                                LPARAM value, HTREEITEM parent, HTREEITEM after)
{
    TVINSERTSTRUCTA request{};
    request.hParent = parent;
    request.hInsertAfter = after;
    request.item.mask = mask;
    request.item.pszText = const_cast<LPSTR>(text); // only read
    request.item.iImage = image;
    request.item.iSelectedImage = selectedImage;
    request.item.state = state;
    request.item.stateMask = stateMask;
    request.item.lParam = value;
    return InsertItem(&request);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, HTREEITEM parent, HTREEITEM after)
{
    return InsertItem(TVIF_TEXT, text, 0, 0, 0, 0, 0, parent, after);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent, HTREEITEM after)
{
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, text, image, selectedImage, 0, 0, 0, parent, after);
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM item)
{
    return Ask(*this, TVM_DELETEITEM, 0, item);
}

BOOL CTreeCtrl::DeleteAllItems()
{
    return DeleteItem(TVI_ROOT);
}

UINT CTreeCtrl::GetCount() const
{
    return static_cast<UINT>(Ask(*this, TVM_GETCOUNT));
}

BOOL CTreeCtrl::SortChildren(HTREEITEM item)
{
    return Ask(*this, TVM_SORTCHILDREN, 0, item);
}

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB sort)
{
    return Ask(*this, TVM_SORTCHILDRENCB, 0, sort);
}

BOOL CTreeCtrl::GetItem(TVITEMA* item) const
{
    return Ask(*this, TVM_GETITEMA, 0, item);
}

BOOL CTreeCtrl::SetItem(TVITEMA* item)
{
    return Ask(*this, TVM_SETITEMA, 0, item);
}

BOOL CTreeCtrl::SetItem(HTREEITEM item, UINT mask, LPCTSTR text, int image, int selectedImage, UINT state,
                        UINT stateMask, LPARAM value)
{
    TVITEMA described = Described(item, mask);
    described.pszText = const_cast<LPSTR>(text); // only read
    described.iImage = image;
    described.iSelectedImage = selectedImage;
    described.state = state;
    described.stateMask = stateMask;
    described.lParam = value;
    return SetItem(&described);
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const
{
    CString text;
    for (int size = kFirstTextSize;; size *= 2)
    {
        TVITEMA described = Described(item, TVIF_TEXT);
        described.pszText = text.GetBuffer(size);
        described.pszText[0] = '\0';
        described.cchTextMax = size;
        GetItem(&described);
        // The control may have put a text of its own in place of the buffer.
        const CString read(described.pszText);
        text.ReleaseBuffer(0);
        // A result that fills the buffer may have been cut.
        if (read.GetLength() < size - 1 || size >= kLastTextSize)
            return read;
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCTSTR text)
{
    return SetItem(item, TVIF_TEXT, text, 0, 0, 0, 0, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const
{
    TVITEMA described = Described(item, TVIF_PARAM);
    GetItem(&described);
    return static_cast<DWORD_PTR>(described.lParam);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR value)
{
    return SetItem(item, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(value));
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM item, int& image, int& selectedImage) const
{
    TVITEMA described = Described(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    const BOOL found = GetItem(&described);
    image = described.iImage;
    selectedImage = described.iSelectedImage;
    return found;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM item, int image, int selectedImage)
{
    return SetItem(item, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, image, selectedImage, 0, 0, 0);
}

UINT CTreeCtrl::GetItemState(HTREEITEM item, UINT mask) const
{
    TVITEMA described = Described(item, TVIF_STATE);
    described.stateMask = mask;
    GetItem(&described);
    return described.state & mask;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM item, UINT state, UINT mask)
{
    return SetItem(item, TVIF_STATE, nullptr, 0, 0, state, mask, 0);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM item) const
{
    TVITEMA described = Described(item, TVIF_CHILDREN);
    GetItem(&described);
    return described.cChildren != 0;
}

BOOL CTreeCtrl::GetCheck(HTREEITEM item) const
{
    return GetItemState(item, TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(kCheckedImage);
}

BOOL CTreeCtrl::SetCheck(HTREEITEM item, BOOL check)
{
    return SetItemState(item, INDEXTOSTATEIMAGEMASK(check ? kCheckedImage : 1u), TVIS_STATEIMAGEMASK);
}
