#include "toolkit/layout/SizingFrame.h"

#include "framework/window/CWnd.h"

namespace LayoutManagement
{

void TakeSizingFrame(CWnd& window)
{
    constexpr UINT kFrameOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED;
    CRect before;
    window.GetClientRect(&before);
    window.ModifyStyle(0, WS_THICKFRAME);
    window.ModifyStyleEx(WS_EX_DLGMODALFRAME, 0);
    window.SetWindowPos(nullptr, 0, 0, 0, 0, kFrameOnly);
    CRect outer;
    CRect after;
    window.GetWindowRect(&outer);
    window.GetClientRect(&after);
    window.SetWindowPos(nullptr, 0, 0, outer.Width() + before.Width() - after.Width(),
                        outer.Height() + before.Height() - after.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace LayoutManagement
