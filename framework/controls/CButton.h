#pragma once

#include "framework/window/CWnd.h"

/// A push button, check box, radio button or group box, by its BS_ style. Pictures set here stay the
/// caller's; each setter returns the picture shown before.
class HOSTFRAMEWORK_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    CButton();

    virtual BOOL Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// BST_ flags: check state, highlight and focus.
    UINT GetState() const;
    /// Highlights the button (or not) without clicking it.
    void SetState(BOOL highlight);
    /// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    int GetCheck() const;
    void SetCheck(int check);
    /// The BS_ style of the button's kind, without the window styles.
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT style, BOOL redraw = TRUE);

    HICON SetIcon(HICON icon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP bitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR cursor);
    HCURSOR GetCursor();

    /// Paints a button of style BS_OWNERDRAW. To be overridden; does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
