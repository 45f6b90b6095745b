#pragma once

#include "framework/dialog/CDialog.h"
#include "framework/window/CWinApp.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/DialogTemplateBuilder.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// The test program's application: it never calls AfxWinInit nor Run. Message boxes are noted instead of shown.
class TestApp : public CWinApp
{
public:
    TestApp();
    int DoMessageBox(LPCTSTR prompt, UINT type, UINT promptId) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

    std::vector<std::string> m_messages;
    std::vector<UINT> m_commands; ///< ids that reached the application
};

extern TestApp g_app;

enum ControlId : UINT
{
    kFirstEdit = 1001,
    kSecondEdit = 1002,
    kButton = 1003
};

/// Title, two edit boxes, a button, OK and Cancel.
DialogTemplateBuilder StandardTemplate(DialogTemplateBuilder::Layout layout = DialogTemplateBuilder::Layout::Plain);

LPCDLGTEMPLATE AsTemplate(const std::vector<std::uint8_t>& bytes);

/// A dialog from memory that notes what happens to it.
class NotingDialog : public CDialog
{
public:
    explicit NotingDialog(CWnd* parent = nullptr, const DialogTemplateBuilder& builder = StandardTemplate());

    BOOL OnInitDialog() override;
    void OnSetFont(CFont* font) override;
    BOOL PreTranslateMessage(MSG* message) override;
    void PostNcDestroy() override;
    void DoDataExchange(CDataExchange* exchange) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::function<BOOL(NotingDialog&)> m_onInit;
    std::function<BOOL(MSG*)> m_onPreTranslate;
    std::function<void(NotingDialog&, CDataExchange*)> m_onExchange;
    std::function<void(NotingDialog&, UINT)> m_onMessage;
    int m_initCount = 0;
    int m_postNcDestroyCount = 0;
    HFONT m_font = nullptr;
    std::vector<std::uint8_t> m_bytes;
};

/// A visible top-level window to own dialogs.
class OwnerWindow : public CWnd
{
public:
    OwnerWindow();
    ~OwnerWindow() override;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

    std::vector<UINT> m_commands; ///< ids that reached the owner
    bool m_takesCommands = false;
};

/// Posts a key to a window, as the keyboard would.
void PostKey(HWND window, WPARAM key);
