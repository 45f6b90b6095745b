#pragma once

#include "framework/include/afxdlgs.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/DialogTemplateBuilder.h"
#include "tests/windows/framework_sheets/resource.h"

#include <functional>
#include <string>
#include <vector>

/// The test program's application. Message boxes are noted instead of shown.
class TestApp : public CWinApp
{
public:
    TestApp();
    int DoMessageBox(LPCTSTR prompt, UINT type, UINT promptId) override;

    std::vector<std::string> m_messages;
};

extern TestApp g_app;

/// What happened, in order.
using Journal = std::vector<std::string>;

/// A page from memory with an edit box that notes what its sheet tells it.
class NotingPage : public CPropertyPage
{
public:
    NotingPage(const char* title, Journal& journal);
    /// From the program's resources.
    NotingPage(UINT templateId, const char* name, Journal& journal);

    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    BOOL OnKillActive() override;
    BOOL OnApply() override;
    void OnReset() override;
    void OnOK() override;
    void OnCancel() override;
    BOOL OnQueryCancel() override;
    LRESULT OnWizardBack() override;
    LRESULT OnWizardNext() override;
    BOOL OnWizardFinish() override;
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL PreTranslateMessage(MSG* message) override;
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    HWND Edit() const;

    bool m_accepts = true;  ///< what OnSetActive answers
    bool m_releases = true; ///< what OnKillActive answers
    bool m_applies = true;  ///< what OnApply answers
    bool m_mayBeCancelled = true;
    bool m_finishes = true;
    LRESULT m_next = 0;
    LRESULT m_back = 0;
    LRESULT m_sibling = 0; ///< answer to PSM_QUERYSIBLINGS
    CString m_text = "first";
    int m_ends = 0; ///< calls of PostNcDestroy
    std::function<BOOL(MSG*)> m_onPreTranslate;
    std::function<void()> m_onSetActive;
    std::vector<UINT> m_messages; ///< of the window, from its first

private:
    void Note(const char* what);

    std::string m_name;
    Journal& m_journal;
    std::vector<std::uint8_t> m_bytes;
};

/// A sheet that notes its own life.
class NotingSheet : public CPropertySheet
{
public:
    explicit NotingSheet(const char* title = "Planning", CWnd* parent = nullptr, UINT page = 0);

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    HWND Button(int id) const;
    bool ShowsButton(int id) const;
    CString TabText(int index) const;

    std::function<BOOL(NotingSheet&)> m_onInit;
    std::function<BOOL(MSG*)> m_onPreTranslate;
    std::function<void(NotingSheet&, UINT)> m_onMessage;
    std::vector<UINT> m_commands;
    int m_inits = 0;
    int m_ends = 0;
};

/// A visible top-level window to own sheets.
class OwnerWindow : public CWnd
{
public:
    OwnerWindow();
    ~OwnerWindow() override;
};

bool IsShown(const CWnd& window);

/// Posts a key to a window, as the keyboard would.
void PostKey(HWND window, WPARAM key);

/// Runs the sheet; does `action` once, when it is shown. @return what DoModal returned
INT_PTR RunWith(CPropertySheet& sheet, const std::function<void()>& action);
