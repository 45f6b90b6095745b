#include "framework/dialog/DialogDataExchange.h"
#include "tests/support/GdiCount.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

namespace
{
constexpr int kOpenings = 200;

struct Counts
{
    unsigned gdiObjects;
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
    counts.gdiObjects = vorn::test::CountGdiObjects();
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&counts.windows));
    return counts;
}

void ExpectEqual(const Counts& after, const Counts& before)
{
    EXPECT_EQ(after.gdiObjects, before.gdiObjects);
    EXPECT_EQ(after.windows, before.windows);
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

TEST(DialogLeaks, CountersCount)
{
    const Counts before = CountNow();
    const HBRUSH brush = ::CreateSolidBrush(RGB(1, 2, 3));
    const HWND window = ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    const Counts during = CountNow();
    EXPECT_GE(during.gdiObjects, before.gdiObjects + 1);
    EXPECT_GE(during.windows, before.windows + 1);
    ::DestroyWindow(window);
    ::DeleteObject(brush);
}

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
    ExpectEqual(CountNow(), before);
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
    ExpectEqual(CountNow(), before);
}
