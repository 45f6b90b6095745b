#pragma once

#include "frame/core/Export.h"
#include "framework/controls/CToolTipCtrl.h"

/// A tip with a title and an icon that stands alone: it tells something once, at a place, and goes after a while or
/// when it is clicked.
class VORNCOMMON_API InfoTip : public CToolTipCtrl
{
    DECLARE_DYNAMIC(InfoTip)
public:
    InfoTip();
    ~InfoTip() override;

    /// Creates the hidden window, owned by the parent.
    BOOL Create(CWnd* parent, DWORD style = 0) override;

    /// Shows the tip in place of what it showed before. Texts are wrapped at 300 pixels. Nothing is shown without a
    /// text, and nothing but errors while the setting "Show Dialog Tips" in section "General" is 0.
    /// @param point of the screen, where its top left corner stands unless it would leave the work area
    /// @param title its first 99 characters
    /// @param icon none, TTI_INFO (1), TTI_WARNING or TTI_ERROR (3); others are none
    /// @param timeout milliseconds; 0: until it is clicked; negative: ten times the system's double-click time
    void ShowTip(CPoint point, LPCSTR title, LPCSTR text, int icon, long timeout);
    void HideTip();

protected:
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void Fill(LPCSTR title, LPCSTR text, int icon);
    void TrackTo(POINT point);
    void KeepOnScreen(POINT point);
    void StartTimer(long timeout);

    HWND m_tool;
    UINT m_timer; ///< its id; 0 before the first
};
