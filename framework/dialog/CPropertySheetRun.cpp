// The opening of a sheet, its modal life and its end.
#include "framework/dialog/CPropertySheet.h"

#include "framework/controls/CTabCtrl.h"
#include "framework/controls/ControlMessage.h"
#include "framework/dialog/ModalOwner.h"
#include "framework/window/ModuleState.h"

using vorn::ModalOwner;

namespace
{
constexpr int kNoResult = -1;
constexpr DWORD kDefaultStyle = static_cast<DWORD>(-1);

/// The sheet whose window the system is about to make.
thread_local CPropertySheet* t_creating = nullptr;

/// Names the sheet for a scope; the opening of one may open another.
class Creating
{
public:
    explicit Creating(CPropertySheet* sheet) : m_outer(t_creating)
    {
        t_creating = sheet;
    }
    ~Creating()
    {
        t_creating = m_outer;
    }
    Creating(const Creating&) = delete;
    Creating& operator=(const Creating&) = delete;

private:
    CPropertySheet* m_outer;
};

/// The system answers with a window, 0 or -1.
HWND AsWindow(INT_PTR answer)
{
    return answer == -1 ? nullptr : reinterpret_cast<HWND>(answer);
}
} // namespace

int CALLBACK CPropertySheet::SheetCallback(HWND window, UINT message, LPARAM lParam)
{
    const bool isTemplate = message == PSCB_PRECREATE;
    CWnd* const made = isTemplate ? t_creating : FromHandlePermanent(window);
    const auto* const sheet = dynamic_cast<CPropertySheet*>(made);
    if (!sheet)
        return 0;
    if (isTemplate && lParam)
        vorn::ChangeSheetTemplate(reinterpret_cast<void*>(lParam), sheet->m_styles);
    const bool hasOwn = (sheet->m_psh.dwFlags & PSH_USECALLBACK) && sheet->m_psh.pfnCallback;
    return hasOwn ? sheet->m_psh.pfnCallback(window, message, lParam) : 0;
}

void CPropertySheet::BuildPropPageArray()
{
    m_records.clear();
    for (CPropertyPage* const page : m_pages)
        m_records.push_back(page->SystemRecord());
    m_psh.dwFlags |= PSH_PROPSHEETPAGE;
    m_psh.ppsp = m_records.data();
    m_psh.nPages = static_cast<UINT>(m_records.size());
}

/// Whether the sheet can be opened.
bool CPropertySheet::PreparePages()
{
    if (m_hWnd || m_pages.empty())
        return false;
    for (CPropertyPage* const page : m_pages)
    {
        if (!page->LoadTemplate())
            return false;
    }
    BuildPropPageArray();
    return true;
}

bool CPropertySheet::CreateFrom(HWND owner)
{
    PROPSHEETHEADER header = m_psh;
    header.dwSize = sizeof(header);
    header.dwFlags |= PSH_MODELESS | PSH_USECALLBACK; // modal or not, the loop is the framework's
    header.hwndParent = owner;
    header.nStartPage = GetPage(static_cast<int>(m_psh.nStartPage)) ? m_psh.nStartPage : 0;
    header.hInstance = header.hInstance ? header.hInstance : AfxGetResourceHandle();
    header.pfnCallback = SheetCallback;
    vorn::EnsureCommonControls();
    m_ended = false;
    m_creating = true;
    const ModalOwner* const modalOwner = m_modalOwner;
    AfxHookWindowCreate(this);
    HWND window = nullptr;
    {
        const Creating creating(this);
        window = AsWindow(::PropertySheetA(&header));
    }
    const bool bound = AfxUnhookWindowCreate() != FALSE;
    // A sheet that was destroyed in its initialisation may have taken its object along: only the map tells.
    if (!window || FromHandlePermanent(window) != this)
    {
        if (!bound)
            PostNcDestroy();
        return false;
    }
    m_creating = false;
    if (modalOwner || !m_ended)
        return true;
    DestroyWindow();
    return false;
}

BOOL CPropertySheet::Create(CWnd* parent, DWORD style, DWORD exStyle)
{
    if (!PreparePages())
        return FALSE;
    m_styles = {style != kDefaultStyle, style, exStyle};
    m_bModeless = TRUE;
    if (!CreateFrom(parent->GetSafeHwnd()))
        return FALSE; // the object may be gone
    if (style & WS_VISIBLE)
        ShowWindow(SW_SHOW);
    return TRUE;
}

INT_PTR CPropertySheet::DoModal()
{
    if (!PreparePages())
        return kNoResult;
    m_styles = {};
    m_bModeless = FALSE;
    ModalOwner owner(m_pParentWnd);
    return RunModal(owner);
}

int CPropertySheet::RunModal(ModalOwner& owner)
{
    int result = kNoResult;
    const auto run = [&]
    {
        if (CreateFrom(owner.Handle()) && !m_ended)
            result = RunModalLoop(MLF_SHOWONIDLE);
    };
    if (!vorn::RunModally(*this, m_modalOwner, owner, run))
        return kNoResult; // this object has gone with its window
    return m_ended ? m_modalResult : result;
}

void CPropertySheet::EndDialog(int result)
{
    m_ended = true;
    m_modalResult = result;
    if (m_modalOwner)
        EndModalLoop(result);
    else if (!m_creating) // else when it stands
        DestroyWindow();
}

void CPropertySheet::OnDestroy()
{
    // Destroyed while DoModal runs: the owner must be enabled before the window goes, and the loop must end.
    if (m_modalOwner)
    {
        m_modalOwner->Restore();
        EndModalLoop(m_ended ? m_modalResult : kNoResult);
    }
    CWnd::OnDestroy();
}

/// A modeless sheet has no buttons: it ends as far below its tabs as they begin below its top.
void CPropertySheet::RemoveButtons()
{
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
    {
        if (const HWND button = ::GetDlgItem(m_hWnd, id))
        {
            ::ShowWindow(button, SW_HIDE);
            ::EnableWindow(button, FALSE); // for the keyboard too
        }
    }
    CRect tabs;
    CRect client;
    CRect window;
    GetTabControl()->GetWindowRect(&tabs);
    ScreenToClient(&tabs);
    GetClientRect(&client);
    GetWindowRect(&window);
    const int excess = client.bottom - tabs.bottom - tabs.top;
    if (excess > 0)
        SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - excess,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
