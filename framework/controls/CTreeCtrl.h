#pragma once

#include "framework/core/CString.h"
#include "framework/core/Geometry.h"
#include "framework/window/CWnd.h"

#include <commctrl.h>

class CEdit;
class CImageList;
class CToolTipCtrl;

/// A tree view. Items are named by handles; functions that answer one answer null when there is none. The children of
/// the root (TVI_ROOT) are the items of the first level.
class HOSTFRAMEWORK_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    CTreeCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// @name Look
    /// @{
    UINT GetIndent() const;
    /// In pixels, for each level.
    void SetIndent(UINT indent);
    /// Of a line, in pixels.
    SHORT GetItemHeight() const;
    /// -1 takes the system's height back. @return the height before
    SHORT SetItemHeight(SHORT height);
    COLORREF GetBkColor() const;
    /// @param colour CLR_INVALID (-1) for the system's. @return the colour before
    COLORREF SetBkColor(COLORREF colour);
    COLORREF GetTextColor() const;
    COLORREF SetTextColor(COLORREF colour);
    /// The lists stay the caller's; `kind` is TVSIL_NORMAL or TVSIL_STATE. @return the list before
    CImageList* SetImageList(CImageList* list, int kind);
    CImageList* GetImageList(UINT kind) const;
    CToolTipCtrl* GetToolTips() const;
    /// @return the tooltip before
    CToolTipCtrl* SetToolTips(CToolTipCtrl* tips);
    /// @}

    /// @name Filling
    /// @{
    HTREEITEM InsertItem(LPTVINSERTSTRUCTA item);
    /// @param mask TVIF_ flags that say which of the other arguments count
    HTREEITEM InsertItem(UINT mask, LPCTSTR text, int image, int selectedImage, UINT state, UINT stateMask,
                         LPARAM value, HTREEITEM parent, HTREEITEM after);
    /// @param after an item of the same parent, TVI_FIRST, TVI_LAST or TVI_SORT
    HTREEITEM InsertItem(LPCTSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM after = TVI_LAST);
    /// Deletes an item with all below it.
    BOOL DeleteItem(HTREEITEM item);
    BOOL DeleteAllItems();
    UINT GetCount() const;
    /// Sorts the children of an item (or of TVI_ROOT) by their texts.
    BOOL SortChildren(HTREEITEM item);
    BOOL SortChildrenCB(LPTVSORTCB sort);
    /// @}

    /// @name Items' properties
    /// @{
    BOOL GetItem(TVITEMA* item) const;
    BOOL SetItem(TVITEMA* item);
    BOOL SetItem(HTREEITEM item, UINT mask, LPCTSTR text, int image, int selectedImage, UINT state, UINT stateMask,
                 LPARAM value);
    /// Empty for an item that does not exist.
    CString GetItemText(HTREEITEM item) const;
    BOOL SetItemText(HTREEITEM item, LPCTSTR text);
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR value);
    BOOL GetItemImage(HTREEITEM item, int& image, int& selectedImage) const;
    BOOL SetItemImage(HTREEITEM item, int image, int selectedImage);
    /// TVIS_ flags among `mask`.
    UINT GetItemState(HTREEITEM item, UINT mask) const;
    BOOL SetItemState(HTREEITEM item, UINT state, UINT mask);
    BOOL ItemHasChildren(HTREEITEM item) const;
    /// @name Check boxes, which the style TVS_CHECKBOXES shows
    /// @{
    BOOL GetCheck(HTREEITEM item) const;
    BOOL SetCheck(HTREEITEM item, BOOL check = TRUE);
    /// @}
    /// @}

    /// @name Relatives
    /// @{
    /// @param code a TVGN_ value
    HTREEITEM GetNextItem(HTREEITEM item, UINT code) const;
    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const;
    HTREEITEM GetParentItem(HTREEITEM item) const;
    HTREEITEM GetFirstVisibleItem() const;
    HTREEITEM GetNextVisibleItem(HTREEITEM item) const;
    HTREEITEM GetPrevVisibleItem(HTREEITEM item) const;
    HTREEITEM GetSelectedItem() const;
    HTREEITEM GetDropHilightItem() const;
    /// @}

    /// @name Actions
    /// @{
    /// Selects an item, or none for null, with notification. A child of a closed item is made visible.
    BOOL SelectItem(HTREEITEM item);
    /// @param code TVGN_CARET, TVGN_DROPHILITE or TVGN_FIRSTVISIBLE
    BOOL Select(HTREEITEM item, UINT code);
    BOOL SelectDropTarget(HTREEITEM item);
    BOOL SelectSetFirstVisible(HTREEITEM item);
    /// @param code a TVE_ value
    BOOL Expand(HTREEITEM item, UINT code);
    BOOL EnsureVisible(HTREEITEM item);
    /// Begins editing an item's text in place; the tree needs the focus and the style TVS_EDITLABELS.
    CEdit* EditLabel(HTREEITEM item);
    CEdit* GetEditControl() const;
    /// @}

    /// @name Layout
    /// @{
    /// @param textOnly the rectangle of the text, otherwise of the whole line. FALSE for an item that is not shown
    BOOL GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const;
    /// How many lines fit.
    UINT GetVisibleCount() const;
    HTREEITEM HitTest(CPoint point, UINT* flags = nullptr) const;
    HTREEITEM HitTest(TVHITTESTINFO* info) const;
    /// @}
};
