#include "framework/dialog/CDialog.h"

#include "framework/dialog/DialogCreation.h"
#include "framework/dialog/LoadedDialogTemplate.h"
#include "framework/dialog/ModalOwner.h"
#include "framework/dialog/SharedCommands.h"
#include "framework/gdi/CFont.h"
#include "framework/window/CWinThread.h"

using vorn::LoadedDialogTemplate;

namespace
{
UINT NumberOf(LPCTSTR resourceName)
{
    return IS_INTRESOURCE(resourceName) ? LOWORD(reinterpret_cast<ULONG_PTR>(resourceName)) : 0;
}
} // namespace

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
ON_WM_DESTROY()
END_MESSAGE_MAP()

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR templateName, CWnd* parent)
    : m_nIDHelp(NumberOf(templateName)), m_lpszTemplateName(templateName), m_pParentWnd(parent)
{
}

CDialog::CDialog(UINT templateId, CWnd* parent) : CDialog(MAKEINTRESOURCEA(templateId), parent)
{
}

CDialog::~CDialog()
{
    if (m_modalOwner)
        m_modalOwner->NoteDialogDeleted();
}

BOOL CDialog::Create(LPCTSTR templateName, CWnd* parent)
{
    m_lpszTemplateName = templateName;
    if (m_nIDHelp == 0)
        m_nIDHelp = NumberOf(templateName);
    const auto loaded = LoadedDialogTemplate::FromResource(templateName);
    return loaded && CreateModeless(*loaded, parent);
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return Create(MAKEINTRESOURCEA(templateId), parent);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* dialogInit)
{
    const auto loaded = LoadedDialogTemplate::FromPointer(dialogTemplate);
    m_lpDialogInit = dialogInit;
    return loaded && CreateModeless(*loaded, parent);
}

BOOL CDialog::CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    const auto loaded = LoadedDialogTemplate::FromGlobal(dialogTemplate);
    return loaded && CreateModeless(*loaded, parent);
}

BOOL CDialog::CreateModeless(const LoadedDialogTemplate& dialogTemplate, CWnd* parent)
{
    if (m_hWnd)
        return FALSE;
    CWnd* const chosen = parent ? parent : AfxGetMainWnd();
    return CreateFrom(dialogTemplate, chosen->GetSafeHwnd());
}

bool CDialog::CreateFrom(const LoadedDialogTemplate& dialogTemplate, HWND owner)
{
    m_ended = false;
    const vorn::ModalOwner* const modalOwner = m_modalOwner;
    const vorn::DialogCreation created = vorn::CreateDialogWindow(*this, dialogTemplate, owner);
    // A dialog that was destroyed in its initialisation may have taken its object along: only the map tells.
    if (!created.window || FromHandlePermanent(created.window) != this)
    {
        if (!created.bound)
            PostNcDestroy();
        return false;
    }
    // A modeless dialog that ended itself in its initialisation counts as not created.
    if (modalOwner || !m_ended)
        return true;
    DestroyWindow();
    return false;
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    // Straight from here, not from the dialog procedure: an exception must not pass the system's frames.
    Default();
    try
    {
        return OnInitDialog();
    }
    catch (...)
    {
        EndDialog(-1); // a dialog that is only half prepared must not appear
        throw;
    }
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

BOOL CDialog::OnInitDialog()
{
    const BOOL filled = m_lpDialogInit ? ExecuteDlgInit(m_lpDialogInit) : ExecuteDlgInit(m_lpszTemplateName);
    if (filled && UpdateData(FALSE))
        return TRUE;
    EndDialog(-1);
    return FALSE;
}

void CDialog::OnSetFont(CFont*)
{
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message) || PreTranslateInput(message);
}

BOOL CDialog::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    return CWnd::OnCmdMsg(id, code, extra, handlerInfo) ||
           vorn::OfferSharedCommand(*this, id, code, extra, handlerInfo);
}

void CDialog::SetDefID(UINT id)
{
    SendMessage(DM_SETDEFID, id);
}

DWORD CDialog::GetDefID() const
{
    return static_cast<DWORD>(SendMessage(DM_GETDEFID));
}

void CDialog::MapDialogRect(LPRECT rect) const
{
    ::MapDialogRect(m_hWnd, rect);
}

void CDialog::SetHelpID(UINT id)
{
    m_nIDHelp = id;
}
