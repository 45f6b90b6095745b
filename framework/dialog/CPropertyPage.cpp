#include "framework/dialog/CPropertyPage.h"

#include "framework/dialog/CPropertySheet.h"
#include "framework/dialog/LoadedDialogTemplate.h"
#include "framework/dialog/PageCreation.h"

#include <utility>

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

namespace
{
UINT CALLBACK PageCallback(HWND, UINT message, PROPSHEETPAGEA* record)
{
    if (message != PSPCB_CREATE)
        return 0; // the object of a page that is let go of may be gone
    auto* const page = reinterpret_cast<CPropertyPage*>(record->lParam);
    if (page->m_hWnd)
        return FALSE; // one window only
    vorn::BeginPageCreation(*page);
    return TRUE;
}

/// The object's own window procedure handles everything else.
INT_PTR CALLBACK PageProcedure(HWND, UINT message, WPARAM, LPARAM)
{
    if (message == WM_INITDIALOG)
        vorn::EndPageCreation();
    return message == WM_INITDIALOG;
}
} // namespace

CPropertyPage::CPropertyPage()
{
    m_psp.dwSize = sizeof(m_psp);
}

CPropertyPage::CPropertyPage(UINT templateId, UINT captionId, DWORD size)
    : CPropertyPage(MAKEINTRESOURCEA(templateId), captionId, size)
{
}

CPropertyPage::CPropertyPage(LPCTSTR templateName, UINT captionId, DWORD size)
{
    m_psp.dwSize = size;
    Construct(templateName, captionId);
}

CPropertyPage::CPropertyPage(UINT templateId, UINT captionId, UINT headerTitleId, UINT headerSubTitleId, DWORD size)
    : CPropertyPage(MAKEINTRESOURCEA(templateId), captionId, headerTitleId, headerSubTitleId, size)
{
}

CPropertyPage::CPropertyPage(LPCTSTR templateName, UINT captionId, UINT headerTitleId, UINT headerSubTitleId,
                             DWORD size)
{
    m_psp.dwSize = size;
    Construct(templateName, captionId, headerTitleId, headerSubTitleId);
}

CPropertyPage::~CPropertyPage()
{
    if (m_sheet)
        m_sheet->ForgetPage(this);
}

void CPropertyPage::Construct(UINT templateId, UINT captionId)
{
    Construct(MAKEINTRESOURCEA(templateId), captionId);
}

void CPropertyPage::Construct(LPCTSTR templateName, UINT captionId)
{
    m_lpszTemplateName = templateName;
    m_nIDHelp = IS_INTRESOURCE(templateName) ? LOWORD(reinterpret_cast<ULONG_PTR>(templateName)) : 0;
    m_psp.pszTemplate = templateName;
    if (captionId != 0 && m_caption.LoadString(captionId))
    {
        m_psp.dwFlags |= PSP_USETITLE;
        m_psp.pszTitle = m_caption;
    }
}

void CPropertyPage::Construct(UINT templateId, UINT captionId, UINT headerTitleId, UINT headerSubTitleId)
{
    Construct(MAKEINTRESOURCEA(templateId), captionId, headerTitleId, headerSubTitleId);
}

void CPropertyPage::Construct(LPCTSTR templateName, UINT captionId, UINT headerTitleId, UINT headerSubTitleId)
{
    Construct(templateName, captionId);
    LoadHeader(headerTitleId, headerSubTitleId);
}

void CPropertyPage::LoadHeader(UINT titleId, UINT subTitleId)
{
    if (titleId != 0 && m_headerTitle.LoadString(titleId))
    {
        m_psp.dwFlags |= PSP_USEHEADERTITLE;
        m_psp.pszHeaderTitle = m_headerTitle;
    }
    if (subTitleId != 0 && m_headerSubTitle.LoadString(subTitleId))
    {
        m_psp.dwFlags |= PSP_USEHEADERSUBTITLE;
        m_psp.pszHeaderSubTitle = m_headerSubTitle;
    }
}

bool CPropertyPage::LoadTemplate()
{
    const bool inMemory = (m_psp.dwFlags & PSP_DLGINDIRECT) != 0;
    auto loaded = inMemory ? vorn::LoadedDialogTemplate::FromPointer(m_psp.pResource)
                           : vorn::LoadedDialogTemplate::FromResource(m_psp.pszTemplate);
    if (!loaded)
        return false;
    m_loaded = std::make_unique<vorn::LoadedDialogTemplate>(std::move(*loaded));
    return true;
}

PROPSHEETPAGE CPropertyPage::SystemRecord()
{
    PROPSHEETPAGE record = m_psp;
    record.dwSize = sizeof(record);
    record.dwFlags |= PSP_USECALLBACK;
    record.hInstance = m_loaded->Module();
    if (record.dwFlags & PSP_DLGINDIRECT)
        record.pResource = m_loaded->Get(); // otherwise the number stays: wizards go to pages by it
    record.pfnDlgProc = PageProcedure;
    record.pfnCallback = PageCallback;
    record.lParam = reinterpret_cast<LPARAM>(this);
    return record;
}

CPropertySheet* CPropertyPage::GetParentSheet() const
{
    return m_sheet;
}

void CPropertyPage::SetModified(BOOL changed)
{
    if (m_hWnd)
        ::SendMessageA(::GetParent(m_hWnd), changed ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CPropertyPage::CancelToClose()
{
    if (m_hWnd)
        ::SendMessageA(::GetParent(m_hWnd), PSM_CANCELTOCLOSE, 0, 0);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam)
{
    return m_hWnd ? ::SendMessageA(::GetParent(m_hWnd), PSM_QUERYSIBLINGS, wParam, lParam) : 0;
}

void CPropertyPage::EndDialog(int result)
{
    if (m_sheet)
        m_sheet->EndDialog(result);
}
