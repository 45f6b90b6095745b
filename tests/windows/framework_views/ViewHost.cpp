#include "tests/windows/framework_views/ViewHost.h"

namespace
{
CWinApp g_app("ViewTests");
}

CFrameWnd* ShowHostFrame(int width, int height)
{
    auto* const frame = new CFrameWnd;
    if (!frame->Create(nullptr, "Views", WS_OVERLAPPEDWINDOW, CRect(30, 30, 330, 230)))
        return nullptr;
    SizeClient(*frame, width, height);
    frame->ShowWindow(SW_SHOW);
    return frame;
}

void SizeClient(CWnd& frame, int width, int height)
{
    CRect window;
    frame.GetWindowRect(&window);
    const CSize client = ClientSize(frame);
    frame.SetWindowPos(nullptr, 0, 0, window.Width() + width - static_cast<int>(client.cx),
                       window.Height() + height - static_cast<int>(client.cy),
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

CSize ClientSize(const CWnd& window)
{
    CRect rect;
    window.GetClientRect(&rect);
    return rect.Size();
}

CRect PlaceInParent(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}
