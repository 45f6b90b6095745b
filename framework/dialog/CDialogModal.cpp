// The modal life of a dialog.
#include "framework/dialog/CDialog.h"

#include "framework/dialog/LoadedDialogTemplate.h"
#include "framework/dialog/ModalOwner.h"

using vorn::LoadedDialogTemplate;
using vorn::ModalOwner;

namespace
{
constexpr int kNoResult = -1;
} // namespace

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* dialogInit)
{
    if (m_hWnd)
        return FALSE;
    m_lpDialogTemplate = dialogTemplate;
    m_hDialogTemplate = nullptr;
    m_lpDialogInit = dialogInit;
    if (parent)
        m_pParentWnd = parent;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    if (m_hWnd)
        return FALSE;
    m_hDialogTemplate = dialogTemplate;
    m_lpDialogTemplate = nullptr;
    if (parent)
        m_pParentWnd = parent;
    return TRUE;
}

INT_PTR CDialog::DoModal()
{
    auto loaded = m_lpDialogTemplate  ? LoadedDialogTemplate::FromPointer(m_lpDialogTemplate)
                  : m_hDialogTemplate ? LoadedDialogTemplate::FromGlobal(m_hDialogTemplate)
                                      : LoadedDialogTemplate::FromResource(m_lpszTemplateName);
    if (!loaded || m_hWnd)
        return kNoResult;
    // Shown by the loop, so that a dialog that ends itself in OnInitDialog never appears.
    loaded->RemoveStyle(WS_VISIBLE);
    ModalOwner owner(m_pParentWnd);
    return RunModal(*loaded, owner);
}

int CDialog::RunModal(const LoadedDialogTemplate& dialogTemplate, ModalOwner& owner)
{
    const DWORD flags = MLF_SHOWONIDLE | (dialogTemplate.Style() & DS_NOIDLEMSG ? MLF_NOIDLEMSG : 0);
    int result = kNoResult;
    const auto run = [&]
    {
        if (CreateFrom(dialogTemplate, owner.Handle()) && !m_ended)
            result = RunModalLoop(flags);
    };
    if (!vorn::RunModally(*this, m_modalOwner, owner, run))
        return kNoResult; // this object has gone with its window
    return m_ended ? m_modalResult : result;
}

void CDialog::EndDialog(int result)
{
    m_ended = true;
    m_modalResult = result;
    if (m_modalOwner)
        EndModalLoop(result);
    else
        ::EndDialog(m_hWnd, result);
}

void CDialog::OnDestroy()
{
    // Destroyed while DoModal runs: the owner must be enabled before the window goes, and the loop must end.
    if (m_modalOwner)
    {
        m_modalOwner->Restore();
        EndModalLoop(m_ended ? m_modalResult : kNoResult);
    }
    CWnd::OnDestroy();
}
