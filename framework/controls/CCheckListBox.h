#pragma once

#include "framework/controls/CListBox.h"

#include <vector>

/// A list box with a check box before every item. The control draws itself: it needs the styles LBS_HASSTRINGS and
/// LBS_OWNERDRAWFIXED or LBS_OWNERDRAWVARIABLE. Check state and enabling are kept for each item beside its text and
/// value, and come and go with it.
///
/// With an automatic style the space key toggles the current item (all selected ones where several can be), a click on
/// the box that item; the parent then gets CLBN_CHKCHANGE. Items that are disabled are grey and keep their state.
class HOSTFRAMEWORK_API CCheckListBox : public CListBox
{
    DECLARE_DYNAMIC(CCheckListBox)

public:
    CCheckListBox();
    ~CCheckListBox() override;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override;

    /// BS_CHECKBOX and BS_3STATE leave toggling to the program; BS_AUTOCHECKBOX (at first) and BS_AUTO3STATE do it.
    void SetCheckStyle(UINT style);
    UINT GetCheckStyle() const;
    /// BST_UNCHECKED, BST_CHECKED or, with three states, BST_INDETERMINATE. Does not notify the parent.
    void SetCheck(int index, int check);
    /// BST_UNCHECKED for an item that does not exist.
    int GetCheck(int index) const;
    void Enable(int index, BOOL enabled = TRUE);
    BOOL IsEnabled(int index) const;

    /// Where an item's check box stands; to be overridden. @param checkBox the usual place, at the left
    virtual CRect OnGetCheckPosition(CRect item, CRect checkBox);

    /// Draws the item's text; the check box is there already, and the item's rectangle is what it leaves.
    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg void OnEnable(BOOL enable);

    DECLARE_MESSAGE_MAP()

private:
    struct ItemState
    {
        int check = BST_UNCHECKED;
        bool enabled = true;
    };

    bool HasItem(int index) const;
    bool TakesSeveral() const;
    int ItemHeight() const;
    CRect CheckRect(const CRect& item);
    void DrawCheck(DRAWITEMSTRUCT& item);
    int ItemWhoseBoxIsAt(CPoint point);
    int NextCheck(int check) const;
    void Toggle(int index);
    void NotifyCheckChange();
    void InvalidateItem(int index);
    void TakeItemHeight();
    void KeepInStep(UINT message, WPARAM wParam, LRESULT answer);

    std::vector<ItemState> m_states;
    UINT m_checkStyle = BS_AUTOCHECKBOX;
};
