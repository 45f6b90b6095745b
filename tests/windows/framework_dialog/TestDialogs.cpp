#include "tests/windows/framework_dialog/TestDialogs.h"

#include "framework/gdi/CFont.h"

TestApp g_app;

TestApp::TestApp() : CWinApp("DialogTests")
{
}

int TestApp::DoMessageBox(LPCTSTR prompt, UINT, UINT)
{
    m_messages.emplace_back(prompt);
    return IDOK;
}

BOOL TestApp::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    if (code == CN_COMMAND)
        m_commands.push_back(id);
    return CWinApp::OnCmdMsg(id, code, extra, handlerInfo);
}

DialogTemplateBuilder StandardTemplate(DialogTemplateBuilder::Layout layout)
{
    using B = DialogTemplateBuilder;
    B builder(layout);
    builder.Style(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME).Title("Standard").At({10, 10, 160, 80});
    builder.Font(8, "MS Shell Dlg");
    builder.Add(B::Edit, kFirstEdit, WS_TABSTOP | WS_BORDER, {5, 5, 70, 12}, "one");
    builder.Add(B::Edit, kSecondEdit, WS_TABSTOP | WS_BORDER, {5, 20, 70, 12}, "two");
    builder.Add(B::Button, kButton, WS_TABSTOP, {5, 40, 50, 14}, "Press");
    builder.Add(B::Button, IDOK, WS_TABSTOP | BS_DEFPUSHBUTTON, {5, 60, 50, 14}, "OK");
    return builder.Add(B::Button, IDCANCEL, WS_TABSTOP, {60, 60, 50, 14}, "Cancel");
}

LPCDLGTEMPLATE AsTemplate(const std::vector<std::uint8_t>& bytes)
{
    return reinterpret_cast<LPCDLGTEMPLATE>(bytes.data());
}

NotingDialog::NotingDialog(CWnd* parent, const DialogTemplateBuilder& builder) : m_bytes(builder.Bytes())
{
    InitModalIndirect(AsTemplate(m_bytes), parent);
}

BOOL NotingDialog::OnInitDialog()
{
    ++m_initCount;
    const BOOL answer = CDialog::OnInitDialog();
    return m_onInit ? m_onInit(*this) : answer;
}

void NotingDialog::OnSetFont(CFont* font)
{
    m_font = font ? static_cast<HFONT>(font->GetSafeHandle()) : nullptr;
    CDialog::OnSetFont(font);
}

BOOL NotingDialog::PreTranslateMessage(MSG* message)
{
    if (m_onPreTranslate && m_onPreTranslate(message))
        return TRUE;
    return CDialog::PreTranslateMessage(message);
}

void NotingDialog::PostNcDestroy()
{
    ++m_postNcDestroyCount;
    CDialog::PostNcDestroy();
}

void NotingDialog::DoDataExchange(CDataExchange* exchange)
{
    if (m_onExchange)
        m_onExchange(*this, exchange);
}

LRESULT NotingDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_onMessage)
        m_onMessage(*this, message);
    return CDialog::WindowProc(message, wParam, lParam);
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

BOOL OwnerWindow::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    if (code == CN_COMMAND)
        m_commands.push_back(id);
    return m_takesCommands || CWnd::OnCmdMsg(id, code, extra, handlerInfo);
}

void PostKey(HWND window, WPARAM key)
{
    ::PostMessageA(window, WM_KEYDOWN, key, 1);
}
