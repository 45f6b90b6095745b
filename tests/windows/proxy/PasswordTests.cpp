#include "tests/support/DialogDriver.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/proxy/ProxyBox.h"

using vorn::test::PumpUntil;

namespace
{

/// Types two passwords; the focus is in the confirmation then.
void TypePasswords(const ProxyBox& box, const std::string& password, const std::string& confirmation)
{
    box.Type(IDC_VORN_PROXY_PASSWORD, password);
    box.Type(IDC_VORN_PROXY_CONFIRMATION, confirmation);
}

void ExpectTyped(const ProxyBox& box, const std::string& password, const std::string& confirmation)
{
    EXPECT_EQ(box.Text(IDC_VORN_PROXY_PASSWORD), password);
    EXPECT_EQ(box.Text(IDC_VORN_PROXY_CONFIRMATION), confirmation);
}

bool IsTold()
{
    return !g_app.messages.empty();
}

/// Lets everything happen that waits or that a short timer brings.
void LetPass()
{
    const DWORD start = ::GetTickCount();
    PumpUntil(
        [start]
        {
            return ::GetTickCount() - start > 60;
        });
}

void ExpectToldOnce()
{
    EXPECT_EQ(g_app.messages, std::vector<std::string>{kMismatch});
    g_app.messages.clear();
}

/// The dialog with one entry, in which nothing of the mismatch may be stored.
class ProxyPasswords : public ProxyDialog
{
protected:
    ProxyInfo* const m_proxy = Put("joe:secret@proxy:1");

    void ExpectUnchanged() const
    {
        EXPECT_EQ(Address(m_proxy), "joe secret proxy 1");
        EXPECT_EQ(m_set.GetCount(), 1);
    }
};

} // namespace

TEST_F(ProxyPasswords, TheConfirmationStoresEqualOnes)
{
    Run(
        [this](const ProxyBox& box)
        {
            box.Select(0);
            box.Enter(IDC_VORN_PROXY_PASSWORD, "new");
            ExpectUnchanged();
            box.Enter(IDC_VORN_PROXY_CONFIRMATION, "new");
            EXPECT_STREQ(m_proxy->mAddress.mpPassword, "new");
        });
    EXPECT_FALSE(IsTold());
}

TEST_F(ProxyPasswords, ThePasswordStoresEqualOnesToo)
{
    Run(
        [this](const ProxyBox& box)
        {
            box.Select(0);
            TypePasswords(box, "", "new");
            box.Enter(IDC_VORN_PROXY_PASSWORD, "new");
            EXPECT_STREQ(m_proxy->mAddress.mpPassword, "new");
        });
}

TEST_F(ProxyPasswords, EmptyOnesTakeThePasswordAway)
{
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            TypePasswords(box, "", "");
        },
        IDOK);
    EXPECT_EQ(Address(m_proxy), "joe - proxy 1");
}

TEST_F(ProxyPasswords, LettersCount)
{
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            TypePasswords(box, "New", "new");
            box.Focus(IDC_VORN_PROXY_USER);
            ExpectToldOnce();
        });
    ExpectUnchanged();
}

TEST_F(ProxyPasswords, LeavingTheConfirmationTellsThatTheyDiffer)
{
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            for (const int to :
                 {IDC_VORN_PROXY_HOST, IDC_VORN_PROXY_PORTS, IDC_VORN_PROXY_USER, IDC_VORN_PROXY_PASSWORD,
                  IDC_VORN_PROXY_TYPE, IDC_VORN_PROXY_LIST, IDC_VORN_PROXY_ADD, IDC_VORN_PROXY_DELETE, IDOK})
            {
                TypePasswords(box, "one", "two");
                box.Focus(to);
                EXPECT_TRUE(PumpUntil(IsTold)) << to;
                LetPass();
                ExpectToldOnce();
                ExpectTyped(box, "one", "two");
                EXPECT_EQ(::GetFocus(), box.Item(IDC_VORN_PROXY_PASSWORD)) << to;
            }
        });
    ExpectUnchanged();
}

TEST_F(ProxyPasswords, LeavingThePasswordTellsNothing)
{
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            box.Type(IDC_VORN_PROXY_PASSWORD, "one");
            box.Focus(IDC_VORN_PROXY_USER);
            LetPass();
            EXPECT_FALSE(IsTold());
            ExpectTyped(box, "one", "secret");
        });
    ExpectUnchanged();
}

TEST_F(ProxyPasswords, ButtonsAreRefusedAndTellOnce)
{
    for (const int button : {static_cast<int>(IDOK), IDC_VORN_PROXY_ADD, IDC_VORN_PROXY_DELETE})
    {
        const INT_PTR result = Run(
            [&](const ProxyBox& box)
            {
                box.Select(0);
                TypePasswords(box, "one", "two");
                box.Press(button); // which takes the focus from the confirmation first
                LetPass();
                ExpectToldOnce();
                EXPECT_TRUE(::IsWindowVisible(box.Window()));
                ExpectTyped(box, "one", "two");
                EXPECT_EQ(::GetFocus(), box.Item(IDC_VORN_PROXY_PASSWORD));
            });
        EXPECT_EQ(result, IDCANCEL);
        ExpectUnchanged();
    }
}

TEST_F(ProxyPasswords, CommandsAreRefusedWhereverTheFocusIs)
{
    for (const int button : {static_cast<int>(IDOK), IDC_VORN_PROXY_ADD, IDC_VORN_PROXY_DELETE})
    {
        for (const int focus : {IDC_VORN_PROXY_LIST, IDC_VORN_PROXY_PASSWORD, IDC_VORN_PROXY_CONFIRMATION})
        {
            Run(
                [&](const ProxyBox& box)
                {
                    box.Select(0);
                    box.Focus(focus);
                    ::SetWindowTextA(box.Item(IDC_VORN_PROXY_PASSWORD), "one");
                    ::SendMessageA(box.Window(), WM_COMMAND, static_cast<WPARAM>(button), 0);
                    LetPass();
                    ExpectToldOnce();
                });
            ExpectUnchanged();
        }
    }
}

TEST_F(ProxyPasswords, TypedOnesOutliveAnEditOfTheHost)
{
    Run(
        [this](const ProxyBox& box)
        {
            box.Select(0);
            box.Type(IDC_VORN_PROXY_PASSWORD, "one");
            box.Enter(IDC_VORN_PROXY_HOST, "other");
            ExpectTyped(box, "one", "secret");
            box.Press(IDOK);
            ExpectToldOnce();
            EXPECT_EQ(Address(m_proxy), "joe secret other 8080");
        });
}

TEST_F(ProxyPasswords, CancelTellsNothing)
{
    for (const bool pressed : {false, true})
    {
        const INT_PTR result = Run(
            [&](const ProxyBox& box)
            {
                box.Select(0);
                TypePasswords(box, "one", "two");
                if (pressed)
                {
                    box.Press(IDCANCEL);
                }
            },
            IDCANCEL);
        EXPECT_EQ(result, IDCANCEL);
        EXPECT_FALSE(IsTold());
    }
    ExpectUnchanged();
}

TEST_F(ProxyPasswords, ACancelThatIsNotLetGoOnTheButtonStoresThemOrTells)
{
    Run(
        [this](const ProxyBox& box)
        {
            box.Select(0);
            TypePasswords(box, "one", "two");
            box.PressAndDragOff(IDCANCEL);
            LetPass();
            EXPECT_FALSE(IsTold());
            box.Focus(IDC_VORN_PROXY_HOST);
            ExpectToldOnce();
            ExpectUnchanged();
            TypePasswords(box, "one", "one");
            box.PressAndDragOff(IDCANCEL);
            ExpectUnchanged();
            box.Focus(IDC_VORN_PROXY_LIST);
            EXPECT_EQ(Address(m_proxy), "joe one proxy 1");
        });
    EXPECT_FALSE(IsTold());
}

TEST_F(ProxyPasswords, AnotherLineTellsNothing)
{
    Put("ann:pass@other:2");
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            TypePasswords(box, "one", "two");
            box.Select(1);
            ExpectTyped(box, "pass", "pass");
            box.Select(0);
            TypePasswords(box, "one", "two");
            box.Click(1);
            LetPass();
            ExpectTyped(box, "pass", "pass");
        });
    EXPECT_FALSE(IsTold());
    EXPECT_EQ(Address(m_proxy), "joe secret proxy 1");
}

TEST_F(ProxyPasswords, OkStoresEqualOnesThatAreNotLeftYet)
{
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            TypePasswords(box, "new", "new");
        },
        IDOK);
    EXPECT_EQ(Address(m_proxy), "joe new proxy 1");
}

TEST_F(ProxyPasswords, TheRealMessageBoxComesOnceAndGoesWithTheFocusOnThePassword)
{
    g_app.shows = true;
    Run(
        [](const ProxyBox& box)
        {
            int boxes = 0;
            DialogDriver closer(
                [&]
                {
                    const HWND message = FindDialog("ProxyTests");
                    if (message == nullptr)
                    {
                        return false;
                    }
                    ++boxes;
                    char text[200] = "";
                    ::GetDlgItemTextA(message, 0xFFFF, text, sizeof text);
                    EXPECT_STREQ(text, kMismatch);
                    ::PostMessageA(message, WM_COMMAND, IDOK, 0);
                    return true;
                });
            box.Select(0);
            TypePasswords(box, "one", "two");
            box.Press(IDOK);
            LetPass();
            EXPECT_EQ(boxes, 1);
            ExpectToldOnce();
            ExpectTyped(box, "one", "two");
            EXPECT_EQ(::GetFocus(), box.Item(IDC_VORN_PROXY_PASSWORD));
            EXPECT_TRUE(::IsWindowEnabled(box.Window()));
        });
    ExpectUnchanged();
}
