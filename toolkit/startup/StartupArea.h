#pragma once

#include "framework/include/afxwin.h"

#include <vector>

namespace vorn
{

/// The part of the startup dialog that holds the groups of the data sets, and scrolls when they are too many for the
/// screen. Colours of its controls are the dialog's to choose.
class StartupArea : public CWnd
{
public:
    /// A child of `dialog`, in whose coordinates `place` is; `contentHeight` pixels high within. The Tab key comes to
    /// it behind `after`.
    bool CreateIn(CWnd& dialog, UINT id, const CRect& place, int contentHeight, HWND after);

    /// Makes a control within, in the dialog's font. @return null when the system has no more windows
    HWND Add(LPCSTR windowClass, LPCSTR text, DWORD style, const CRect& place, HFONT font);

    /// Turns the wheel, when there is anything to scroll.
    bool Turn(int delta);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

protected:
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    bool Scrolls() const;
    int LineHeight() const;
    void ScrollTo(int position);
    SCROLLINFO Range() const;

    int m_contentHeight = 0;
    int m_page = 0;
};

} // namespace vorn
