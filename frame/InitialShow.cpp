#include "frame/WindowPlacement.h"

#include "framework/frames/CFrameWnd.h"

void InitialShowMainFrame(CFrameWnd* frame, const char* section, const char* key, const char* barStateSection,
                          UINT showCommand)
{
    if (!frame)
    {
        return;
    }
    WINDOWPLACEMENT placement;
    if (!ReadWindowPlacement(section, key, &placement))
    {
        frame->ShowWindow(static_cast<int>(showCommand));
        return;
    }
    if (showCommand != SW_SHOWNORMAL)
    {
        placement.showCmd = showCommand;
    }
    frame->SetWindowPlacement(&placement);
    frame->ShowWindow(static_cast<int>(placement.showCmd));
    if (barStateSection && *barStateSection)
    {
        frame->LoadBarState(barStateSection);
    }
}

void InitialShowChildFrame(CWnd* child, const char* section, const char* key)
{
    if (!child)
    {
        return;
    }
    WINDOWPLACEMENT placement;
    if (!ReadWindowPlacement(section, key, &placement))
    {
        child->ShowWindow(SW_SHOWMAXIMIZED);
        return;
    }
    child->SetWindowPlacement(&placement);
    child->ShowWindow(static_cast<int>(placement.showCmd));
}
