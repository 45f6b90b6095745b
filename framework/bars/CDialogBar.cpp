#include "framework/bars/CDialogBar.h"
#include "framework/dialog/DialogCreation.h"
#include "framework/dialog/LoadedDialogTemplate.h"
#include "framework/frames/CFrameWnd.h"

IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)

BEGIN_MESSAGE_MAP(CDialogBar, CControlBar)
ON_MESSAGE(WM_INITDIALOG, &CDialogBar::HandleInitDialog)
END_MESSAGE_MAP()

CDialogBar::CDialogBar() = default;

CDialogBar::~CDialogBar()
{
    m_bAutoDelete = FALSE; // the end of the window must not end the object once more
    CControlBar::DestroyWindow();
}

BOOL CDialogBar::Create(CWnd* parent, UINT templateId, UINT style, UINT id)
{
    return Create(parent, MAKEINTRESOURCE(templateId), style, id);
}

BOOL CDialogBar::Create(CWnd* parent, LPCTSTR templateName, UINT style, UINT id)
{
    auto loaded = vorn::LoadedDialogTemplate::FromResource(templateName);
    if (!loaded || m_hWnd)
        return FALSE;
    // Not visible before it has its number, by which the frame lays it out.
    const bool hasCaption = (loaded->Style() & WS_CAPTION) == WS_CAPTION;
    loaded->RemoveStyle(WS_VISIBLE | (hasCaption ? WS_CAPTION : 0U));
    m_dwStyle = style & CBRS_ALL;
    m_templateName = templateName;
    const vorn::DialogCreation created = vorn::CreateDialogWindow(*this, *loaded, parent->GetSafeHwnd());
    if (!created.window || FromHandlePermanent(created.window) != this)
    {
        if (!created.bound)
            PostNcDestroy();
        return FALSE;
    }
    m_templateName = nullptr;
    SetDlgCtrlID(static_cast<int>(id));
    ModifyStyle(0, WS_CLIPSIBLINGS);
    SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return TRUE;
}

LRESULT CDialogBar::HandleInitDialog(WPARAM, LPARAM)
{
    Default();
    CRect window;
    GetWindowRect(&window);
    m_sizeDefault = window.Size();
    ExecuteDlgInit(m_templateName);
    UpdateData(FALSE);
    return FALSE; // a bar that appears leaves the focus where it is
}

CSize CDialogBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    const CSize own = WithGripper(m_sizeDefault, horizontal);
    const CSize stretched = CControlBar::CalcFixedLayout(stretch, horizontal);
    return CSize(stretched.cx ? stretched.cx : own.cx, stretched.cy ? stretched.cy : own.cy);
}

void CDialogBar::OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler)
{
    UpdateDialogControls(target, disableIfNoHandler);
}

BOOL CDialogBar::PreTranslateMessage(MSG* message)
{
    if (CControlBar::PreTranslateMessage(message))
        return TRUE;
    // The dialog keys would swallow the accelerators of the frames around.
    for (CFrameWnd* frame = GetDockingFrame(); frame; frame = frame->GetParentFrame())
        if (frame->PreTranslateMessage(message))
            return TRUE;
    return PreTranslateInput(message);
}
