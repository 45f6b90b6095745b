#include "tests/windows/framework_sheets/TestSheets.h"

#include "framework/controls/CTabCtrl.h"

TestApp g_app;

namespace
{
std::vector<std::uint8_t> PageTemplate(const char* title)
{
    using B = DialogTemplateBuilder;
    B builder;
    builder.Style(WS_CHILD | WS_CAPTION).Title(title).At({0, 0, 160, 80}).Font(8, "MS Shell Dlg");
    builder.Add(B::Edit, IDC_PAGE_EDIT, WS_TABSTOP | WS_BORDER, {5, 5, 70, 12}, "one");
    return builder.Bytes();
}
} // namespace

TestApp::TestApp() : CWinApp("SheetTests")
{
}

int TestApp::DoMessageBox(LPCTSTR prompt, UINT, UINT)
{
    m_messages.emplace_back(prompt);
    return IDOK;
}

NotingPage::NotingPage(const char* title, Journal& journal)
    : m_name(title), m_journal(journal), m_bytes(PageTemplate(title))
{
    m_psp.dwFlags |= PSP_DLGINDIRECT;
    m_psp.pResource = reinterpret_cast<LPCDLGTEMPLATE>(m_bytes.data());
}

NotingPage::NotingPage(UINT templateId, const char* name, Journal& journal)
    : CPropertyPage(templateId), m_name(name), m_journal(journal)
{
}

void NotingPage::Note(const char* what)
{
    m_journal.push_back(m_name + ": " + what);
}

BOOL NotingPage::OnInitDialog()
{
    Note("init");
    return CPropertyPage::OnInitDialog();
}

BOOL NotingPage::OnSetActive()
{
    Note("active");
    if (m_onSetActive)
        m_onSetActive();
    return CPropertyPage::OnSetActive() && m_accepts;
}

BOOL NotingPage::OnKillActive()
{
    Note("leave");
    return CPropertyPage::OnKillActive() && m_releases;
}

BOOL NotingPage::OnApply()
{
    Note("apply");
    return m_applies && CPropertyPage::OnApply();
}

void NotingPage::OnReset()
{
    Note("reset");
    CPropertyPage::OnReset();
}

void NotingPage::OnOK()
{
    Note("ok");
    CPropertyPage::OnOK();
}

void NotingPage::OnCancel()
{
    Note("cancel");
    CPropertyPage::OnCancel();
}

BOOL NotingPage::OnQueryCancel()
{
    Note("may cancel");
    return CPropertyPage::OnQueryCancel() && m_mayBeCancelled;
}

LRESULT NotingPage::OnWizardBack()
{
    Note("back");
    return m_back != 0 ? m_back : CPropertyPage::OnWizardBack();
}

LRESULT NotingPage::OnWizardNext()
{
    Note("next");
    return m_next != 0 ? m_next : CPropertyPage::OnWizardNext();
}

BOOL NotingPage::OnWizardFinish()
{
    Note("finish");
    return CPropertyPage::OnWizardFinish() && m_finishes;
}

void NotingPage::DoDataExchange(CDataExchange* exchange)
{
    DDX_Text(exchange, IDC_PAGE_EDIT, m_text);
}

BOOL NotingPage::PreTranslateMessage(MSG* message)
{
    if (m_onPreTranslate && m_onPreTranslate(message))
        return TRUE;
    return CPropertyPage::PreTranslateMessage(message);
}

void NotingPage::PostNcDestroy()
{
    ++m_ends;
    CPropertyPage::PostNcDestroy();
}

LRESULT NotingPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    m_messages.push_back(message);
    if (message == PSM_QUERYSIBLINGS)
        return m_sibling != 0 ? m_sibling + static_cast<LRESULT>(wParam) + lParam : 0;
    return CPropertyPage::WindowProc(message, wParam, lParam);
}

HWND NotingPage::Edit() const
{
    return ::GetDlgItem(m_hWnd, IDC_PAGE_EDIT);
}

NotingSheet::NotingSheet(const char* title, CWnd* parent, UINT page) : CPropertySheet(title, parent, page)
{
}

BOOL NotingSheet::OnInitDialog()
{
    ++m_inits;
    const BOOL answer = CPropertySheet::OnInitDialog();
    return m_onInit ? m_onInit(*this) : answer;
}

BOOL NotingSheet::PreTranslateMessage(MSG* message)
{
    if (m_onPreTranslate && m_onPreTranslate(message))
        return TRUE;
    return CPropertySheet::PreTranslateMessage(message);
}

BOOL NotingSheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    m_commands.push_back(LOWORD(wParam));
    return CPropertySheet::OnCommand(wParam, lParam);
}

void NotingSheet::PostNcDestroy()
{
    ++m_ends;
    CPropertySheet::PostNcDestroy();
}

LRESULT NotingSheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_onMessage)
        m_onMessage(*this, message);
    return CPropertySheet::WindowProc(message, wParam, lParam);
}

HWND NotingSheet::Button(int id) const
{
    return ::GetDlgItem(m_hWnd, id);
}

bool NotingSheet::ShowsButton(int id) const
{
    const HWND button = Button(id);
    return button && (::GetWindowLongA(button, GWL_STYLE) & WS_VISIBLE) != 0;
}

CString NotingSheet::TabText(int index) const
{
    char text[64] = {};
    TCITEM item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = sizeof(text);
    GetTabControl()->GetItem(index, &item);
    return text;
}

OwnerWindow::OwnerWindow()
{
    CreateEx(0, "STATIC", "owner", WS_POPUP | WS_VISIBLE | WS_CAPTION, 50, 50, 300, 200, nullptr, nullptr);
}

OwnerWindow::~OwnerWindow()
{
    if (m_hWnd)
        DestroyWindow();
}

bool IsShown(const CWnd& window)
{
    return window.m_hWnd && ::IsWindowVisible(window.m_hWnd);
}

void PostKey(HWND window, WPARAM key)
{
    ::PostMessageA(window, WM_KEYDOWN, key, 1);
}

INT_PTR RunWith(CPropertySheet& sheet, const std::function<void()>& action)
{
    DialogDriver driver(
        [&]
        {
            if (!IsShown(sheet))
                return false;
            action();
            return true;
        });
    return sheet.DoModal();
}
