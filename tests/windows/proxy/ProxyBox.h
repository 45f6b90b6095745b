#pragma once

#include "config/ProxyConfigDlg.h"
#include "framework/window/CWinApp.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

/// The test program's application. Message boxes are noted, and shown only when a test says so.
class ProxyApp : public CWinApp
{
public:
    ProxyApp();
    int DoMessageBox(LPCTSTR prompt, UINT type, UINT promptId) override;

    std::vector<std::string> messages;
    bool shows = false;
};

extern ProxyApp g_app;

inline constexpr const char* kMismatch = "Your password entries do not match.  Please retype your password.";

/// The open dialog, used from outside by messages.
class ProxyBox
{
public:
    explicit ProxyBox(HWND window) : m_window(window)
    {
    }

    HWND Window() const
    {
        return m_window;
    }
    HWND Item(int id) const;
    std::string Text(int id) const;
    bool IsEnabled(int id) const;

    /// @name The list
    /// @{
    std::vector<std::string> Lines() const;
    int Selected() const;
    bool IsTicked(int line) const;
    /// Chooses a line as the keys do.
    void Select(int line) const;
    /// Presses and releases the mouse in a line, on its text or on its box.
    void Click(int line, bool onBox = false) const;
    void Tick(int line) const;
    /// @}

    /// The type that the list of types shows; empty for none.
    std::string Type() const;
    void ChooseType(int entry) const;

    void Focus(int id) const;
    /// Goes into a field and types over all that stands there.
    void Type(int id, const std::string& text) const;
    /// The same, and leaves the field for the next one.
    void Enter(int id, const std::string& text) const;
    /// Goes to the next control, as the Tab key does.
    void Leave() const;
    void Press(int id) const;
    /// Presses the mouse on a button, drags it off and lets it go there: the button has the focus and does nothing.
    void PressAndDragOff(int id) const;

private:
    HWND m_window;
};

/// Runs the dialog over a set of its own.
class ProxyDialog : public testing::Test
{
protected:
    ProxyDialog();
    ~ProxyDialog() override;

    /// An entry at the end of the set.
    ProxyInfo* Put(const char* address, int type = ProxyInfo::kHttp);

    /// Opens the dialog, lets `use` work with it, and ends it by a button.
    INT_PTR Run(const std::function<void(const ProxyBox&)>& use, int end = IDCANCEL);
    INT_PTR Run(ProxySet* proxies, const std::function<void(const ProxyBox&)>& use, int end = IDCANCEL);

    static INT_PTR RunObject(ProxyConfigDlg& dialog, const std::function<void(const ProxyBox&)>& use, int end = IDOK);

    static std::string Address(const ProxyInfo* proxy);

    ProxySet m_set;
};
