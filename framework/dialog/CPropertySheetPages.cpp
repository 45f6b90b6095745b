// The pages of a sheet, and what it can be told while it is open.
#include "framework/dialog/CPropertySheet.h"

#include "framework/controls/CTabCtrl.h"

#include <algorithm>

int CPropertySheet::GetPageCount() const
{
    return static_cast<int>(m_pages.size());
}

CPropertyPage* CPropertySheet::GetPage(int index) const
{
    return index >= 0 && index < GetPageCount() ? m_pages[static_cast<std::size_t>(index)] : nullptr;
}

int CPropertySheet::GetPageIndex(const CPropertyPage* page) const
{
    const auto found = std::find(m_pages.begin(), m_pages.end(), page);
    return found != m_pages.end() ? static_cast<int>(found - m_pages.begin()) : -1;
}

HWND CPropertySheet::CurrentPageWindow() const
{
    return m_hWnd ? reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND)) : nullptr;
}

int CPropertySheet::GetActiveIndex() const
{
    if (!m_hWnd)
        return static_cast<int>(m_psh.nStartPage);
    const HWND current = CurrentPageWindow();
    const auto isCurrent = [&](const CPropertyPage* page)
    {
        return current && page->m_hWnd == current;
    };
    const auto found = std::find_if(m_pages.begin(), m_pages.end(), isCurrent);
    if (found != m_pages.end())
        return static_cast<int>(found - m_pages.begin());
    const CTabCtrl* const tabs = GetTabControl();
    return tabs ? tabs->GetCurSel() : static_cast<int>(m_psh.nStartPage);
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    return GetPage(GetActiveIndex());
}

BOOL CPropertySheet::SetActivePage(int index)
{
    if (!GetPage(index))
        return FALSE;
    if (m_hWnd)
        return static_cast<BOOL>(SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(index)));
    m_psh.nStartPage = static_cast<UINT>(index);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* page)
{
    return SetActivePage(GetPageIndex(page));
}

void CPropertySheet::AddPage(CPropertyPage* page)
{
    if (!page || page->m_sheet == this || page->m_hWnd)
        return;
    if (page->m_sheet)
        page->m_sheet->RemovePage(page);
    m_pages.push_back(page);
    page->m_sheet = this;
    if (m_hWnd && !AddToWindow(*page))
        DropPage(GetPageCount() - 1);
}

bool CPropertySheet::AddToWindow(CPropertyPage& page)
{
    if (!page.LoadTemplate())
        return false;
    const PROPSHEETPAGE record = page.SystemRecord();
    const HPROPSHEETPAGE handle = ::CreatePropertySheetPageA(&record);
    if (!handle)
        return false;
    if (SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle)))
        return true;
    ::DestroyPropertySheetPage(handle);
    return false;
}

void CPropertySheet::RemovePage(int index)
{
    if (!GetPage(index))
        return;
    if (m_hWnd)
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(index));
    DropPage(index);
}

void CPropertySheet::RemovePage(CPropertyPage* page)
{
    RemovePage(GetPageIndex(page));
}

void CPropertySheet::DropPage(int index)
{
    const auto at = m_pages.begin() + index;
    (*at)->m_sheet = nullptr;
    m_pages.erase(at);
}

/// Called by the destructor of a page.
void CPropertySheet::ForgetPage(const CPropertyPage* page)
{
    const int index = GetPageIndex(page);
    if (index >= 0 && GetPageCount() > 1)
        RemovePage(index);
    else if (index >= 0) // the system's sheet cannot be without a page
        DropPage(index);
}

void CPropertySheet::SetWizardMode()
{
    m_psh.dwFlags |= PSH_WIZARD;
}

void CPropertySheet::EnableStackedTabs(BOOL stacked)
{
    m_bStacked = stacked;
}

BOOL CPropertySheet::IsWizard() const
{
    return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97 | PSH_WIZARD_LITE)) != 0;
}

BOOL CPropertySheet::IsModeless() const
{
    return m_bModeless;
}

void CPropertySheet::SetTitle(LPCTSTR text, UINT style)
{
    m_caption = text;
    m_psh.pszCaption = m_caption;
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPTITLE)) | (style & PSH_PROPTITLE);
    if (m_hWnd)
        SendMessage(PSM_SETTITLEA, style, reinterpret_cast<LPARAM>(m_caption.GetString()));
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    const HWND tabs = m_hWnd ? reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL)) : nullptr;
    return static_cast<CTabCtrl*>(FromHandle(tabs));
}

void CPropertySheet::SetWizardButtons(DWORD flags)
{
    if (m_hWnd)
        PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(flags));
}

void CPropertySheet::SetFinishText(LPCTSTR text)
{
    if (m_hWnd)
        SendMessage(PSM_SETFINISHTEXTA, 0, reinterpret_cast<LPARAM>(text));
}

BOOL CPropertySheet::PressButton(int button)
{
    if (!m_hWnd || button < 0 || button > PSBTN_MAX)
        return FALSE;
    SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(button));
    return TRUE;
}

void CPropertySheet::MapDialogRect(LPRECT rect) const
{
    ::MapDialogRect(m_hWnd, rect);
}
