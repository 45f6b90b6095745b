#include "framework/window/CWinApp.h"

#include "framework/window/CWnd.h"
#include "framework/window/ModuleState.h"

namespace
{

/// Questions get a question mark, everything else an exclamation mark.
UINT DefaultIcon(UINT type)
{
    const UINT buttons = type & MB_TYPEMASK;
    return buttons == MB_YESNO || buttons == MB_YESNOCANCEL ? MB_ICONQUESTION : MB_ICONEXCLAMATION;
}

/// A message box in the safe owner, whose top window is disabled meanwhile.
int ShowBox(LPCTSTR text, UINT type)
{
    HWND top = nullptr;
    const HWND owner = CWnd::GetSafeOwner(nullptr, &top)->GetSafeHwnd();
    if (top)
    {
        ::EnableWindow(top, FALSE);
    }
    const UINT icon = type & MB_ICONMASK ? 0 : DefaultIcon(type);
    const UINT modality = owner || (type & MB_MODEMASK) ? 0 : MB_TASKMODAL;
    const int answer = ::MessageBox(owner, text ? text : "", AfxGetAppName(), type | icon | modality);
    if (top)
    {
        ::EnableWindow(top, TRUE);
    }
    return answer;
}

} // namespace

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT)
{
    return ShowBox(lpszPrompt, nType);
}

int AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp)
{
    CWinApp* app = AfxGetApp();
    return app ? app->DoMessageBox(lpszText, nType, nIDHelp) : ShowBox(lpszText, nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString text;
    AfxLoadString(nIDPrompt, text);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}
