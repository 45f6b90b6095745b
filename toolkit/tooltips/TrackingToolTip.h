#pragma once

#include "frame/core/Export.h"
#include "framework/controls/CToolTipCtrl.h"

/// A tip of the system's that stands where the program puts it, such as beside the mouse: create it, add a window as
/// its tool, activate it, and move it by TrackTip().
class VORNCOMMON_API TrackingToolTip : public CToolTipCtrl
{
    DECLARE_DYNAMIC(TrackingToolTip)
public:
    TrackingToolTip();
    ~TrackingToolTip() override;

    /// Adds a window, or gives one that was added another text. UpdateTipText() changes the text alone.
    /// @param absolute the tip's top left corner goes exactly to the point; else the system keeps it beside the window
    /// @return FALSE without window, and before Create()
    BOOL AddTool(CWnd* window, bool absolute, LPCSTR text);
    /// Shows the tip of a window that was added, or takes it away.
    void ActivateTip(CWnd* window, bool activate);
    /// Moves the tip, in screen coordinates; what lies outside -32768 to 32767 is brought inside.
    void TrackTip(int x, int y);
    bool IsTrackActive() const;

private:
    void PutExactly();

    HWND m_tracked;
    bool m_absolute; ///< of the tracked window
    CPoint m_point;
};
