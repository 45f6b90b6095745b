#include "framework/dialog/DialogDataExchange.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include "framework/gdi/CFont.h"
#include "framework/window/WindowMap.h"

#include <gtest/gtest.h>

namespace
{
constexpr int kOpenings = 200;

struct Counts
{
    DWORD handles;
    DWORD gdiObjects;
    int windows;
    bool operator==(const Counts&) const = default;
};

BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

Counts CountNow()
{
    Counts counts{};
    ::GetProcessHandleCount(::GetCurrentProcess(), &counts.handles);
    counts.gdiObjects = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&counts.windows));
    return counts;
}

/// Exchanges data and a control object, and ends itself.
class Visitor : public NotingDialog
{
public:
    Visitor()
    {
        m_onExchange = [this](NotingDialog&, CDataExchange* exchange)
        {
            DDX_Control(exchange, kButton, m_button);
            DDX_Text(exchange, kFirstEdit, m_text);
        };
        m_onInit = [](NotingDialog& self)
        {
            self.SendMessage(WM_COMMAND, IDOK);
            return TRUE;
        };
    }
    CWnd m_button;
    CString m_text = "text";
};
} // namespace

TEST(DialogLeaks, TwoHundredOpeningsLeaveNothingBehind)
{
    const auto open = []
    {
        Visitor dialog;
        ASSERT_EQ(dialog.DoModal(), IDOK);
        ASSERT_EQ(dialog.m_button.m_hWnd, nullptr);
    };
    open(); // what the first one loads for good
    const Counts before = CountNow();
    for (int i = 0; i < kOpenings; ++i)
        open();
    const Counts after = CountNow();
    EXPECT_EQ(after.handles, before.handles);
    EXPECT_EQ(after.gdiObjects, before.gdiObjects);
    EXPECT_EQ(after.windows, before.windows);
}

TEST(DialogLeaks, FailedCreationsLeaveNothingBehind)
{
    auto builder = StandardTemplate();
    builder.Add("NoSuchWindowClass", 2000, 0, {0, 0, 10, 10});
    const auto open = [&]
    {
        NotingDialog dialog(nullptr, builder);
        ASSERT_EQ(dialog.DoModal(), -1);
    };
    open();
    const Counts before = CountNow();
    for (int i = 0; i < kOpenings; ++i)
        open();
    EXPECT_EQ(CountNow(), before);
}
