#include "framework/window/CCmdTarget.h"
#include "framework/window/CWinApp.h"
#include "framework/window/ThreadState.h"

namespace vorn
{

void ShowWaitCursor(int code)
{
    ThreadState& state = CurrentThreadState();
    const int before = state.waitCursors;
    state.waitCursors = before + code < 0 ? 0 : before + code;
    if (state.waitCursors > 0)
    {
        const HCURSOR previous = SetCursor(LoadCursor(nullptr, IDC_WAIT));
        if (before == 0)
        {
            state.cursorBefore = previous;
        }
    }
    else if (before > 0)
    {
        SetCursor(state.cursorBefore);
    }
}

namespace
{

void DoWaitCursor(int code)
{
    CWinApp* app = AfxGetApp();
    app ? app->DoWaitCursor(code) : ShowWaitCursor(code);
}

} // namespace

} // namespace vorn

void CWinApp::DoWaitCursor(int nCode)
{
    vorn::ShowWaitCursor(nCode);
}

void CCmdTarget::BeginWaitCursor()
{
    vorn::DoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    vorn::DoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    vorn::DoWaitCursor(0);
}

CWaitCursor::CWaitCursor()
{
    vorn::DoWaitCursor(1);
}

CWaitCursor::~CWaitCursor()
{
    vorn::DoWaitCursor(-1);
}

void CWaitCursor::Restore()
{
    vorn::DoWaitCursor(0);
}
