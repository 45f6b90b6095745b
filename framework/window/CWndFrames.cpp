#include "framework/frames/CFrameWnd.h"

#include "framework/window/CWinApp.h"

CFrameWnd* CWnd::GetParentFrame() const
{
    if (!m_hWnd)
    {
        return nullptr;
    }
    for (HWND window = ::GetParent(m_hWnd); window; window = ::GetParent(window))
    {
        CWnd* object = FromHandlePermanent(window);
        if (object && object->IsFrameWnd())
        {
            return static_cast<CFrameWnd*>(object);
        }
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    if (!m_hWnd)
    {
        return nullptr;
    }
    CFrameWnd* frame = IsFrameWnd() ? static_cast<CFrameWnd*>(const_cast<CWnd*>(this)) : GetParentFrame();
    for (CFrameWnd* outer = frame; outer; outer = outer->GetParentFrame())
    {
        frame = outer;
    }
    return frame;
}

void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWinApp* app = AfxGetApp())
    {
        app->WinHelp(dwData, nCmd);
    }
}
