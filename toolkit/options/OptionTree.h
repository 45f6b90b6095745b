#pragma once

/// @file
/// A tree of option categories.
#include "frame/core/Export.h"
#include "framework/controls/CTreeCtrl.h"
#include "framework/core/Array.h"
#include "framework/core/Map.h"

/// Builds its items from category paths, whose levels are separated by "|": "Chart|Night" and "Chart|Fonts" make one
/// item with two below it. The item of a path's last level carries the number of the path, counted from 0 in the order
/// of addition; items that are only passed through carry 0. Levels are compared exactly and are not trimmed; empty
/// levels do not count.
class VORNCOMMON_API OptionTree : public CTreeCtrl
{
    DECLARE_DYNAMIC(OptionTree)

public:
    OptionTree();
    ~OptionTree() override;

    /// Sent to the notify target (posted) when another category is selected; the LPARAM is the tree's item.
    static constexpr UINT kSelectionMessage = WM_USER + 367;

    /// Adds a path. Before the window exists it is only listed. Afterwards it is inserted at once and, while nothing is
    /// selected, selected. Null is the empty path, which adds nothing.
    /// @return the item of its last level; null when there is no window, no level, or no memory for the first item
    HTREEITEM AddOptionCategory(LPCSTR path);
    /// Inserts all listed paths that are not there yet, selects the item of the first one and calls OnSelchanged() for
    /// it.
    void Init();

    /// The item of a path, or of the beginning of one; null if unknown.
    HTREEITEM GetCategoryItem(LPCSTR path) const;
    /// The whole path of an item; empty if unknown.
    CString GetCategoryPath(HTREEITEM item) const;
    /// How many paths are listed.
    int GetCategoryCount() const;

    /// Null and unknown paths select nothing.
    void SelectCategory(HTREEITEM item);
    void SelectCategory(LPCSTR path);

    /// The window that gets kSelectionMessage; null for none.
    void SetNotifyTarget(HWND target);

    /// Another category was selected: posts to the notify target.
    virtual void OnSelchanged(HTREEITEM item);

protected:
    afx_msg void OnTreeSelectionChanged(NMHDR* header, LRESULT* result);
    afx_msg void OnNcDestroy();

    DECLARE_MESSAGE_MAP()

private:
    /// What is known of an item.
    struct Node
    {
        CString path;
        bool hasNumber = false; ///< it is the last level of a listed path
    };

    HTREEITEM InsertCategory(int number);
    HTREEITEM InsertLevel(HTREEITEM parent, LPCSTR text, LPCSTR prefix);
    void GiveNumber(HTREEITEM item, int number);

    CStringArray m_paths;
    CMapStringToPtr m_items;                               ///< every path and beginning of one to its item
    CMap<HTREEITEM, HTREEITEM, Node, const Node&> m_nodes; ///< and back
    HWND m_notifyTarget = nullptr;
};
