#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/proxy/ProxyBox.h"

namespace
{

constexpr int kFields[] = {IDC_VORN_PROXY_HOST, IDC_VORN_PROXY_PORTS, IDC_VORN_PROXY_USER, IDC_VORN_PROXY_PASSWORD,
                           IDC_VORN_PROXY_CONFIRMATION};

void ExpectNothingSelected(const ProxyBox& box)
{
    EXPECT_EQ(box.Selected(), LB_ERR);
    for (const int id : kFields)
    {
        EXPECT_EQ(box.Text(id), "") << id;
        EXPECT_FALSE(box.IsEnabled(id)) << id;
    }
    EXPECT_EQ(box.Type(), "");
    EXPECT_FALSE(box.IsEnabled(IDC_VORN_PROXY_TYPE));
    EXPECT_FALSE(box.IsEnabled(IDC_VORN_PROXY_DELETE));
    EXPECT_TRUE(box.IsEnabled(IDC_VORN_PROXY_ADD));
}

} // namespace

TEST_F(ProxyDialog, ShowsTheSetInItsOrderWithNothingSelected)
{
    Put("zulu:1");
    Put("");
    Put("alpha")->mEnabled = false;
    Run(
        [](const ProxyBox& box)
        {
            EXPECT_EQ(box.Lines(), (std::vector<std::string>{"zulu:1", "<no host>", "alpha"}));
            EXPECT_TRUE(box.IsTicked(0));
            EXPECT_TRUE(box.IsTicked(1));
            EXPECT_FALSE(box.IsTicked(2));
            ExpectNothingSelected(box);
        });
}

TEST_F(ProxyDialog, ASetThatIsNullIsAnEmptyOneThatTakesNone)
{
    EXPECT_EQ(IDOK, Run(
                        nullptr,
                        [](const ProxyBox& box)
                        {
                            ExpectNothingSelected(box);
                            box.Press(IDC_VORN_PROXY_ADD);
                            ::SendMessageA(box.Window(), WM_COMMAND, IDC_VORN_PROXY_DELETE, 0);
                            EXPECT_TRUE(box.Lines().empty());
                        },
                        IDOK));
}

TEST_F(ProxyDialog, AddAppendsAnEntryAndSelectsIt)
{
    Put("first:1");
    EXPECT_EQ(IDOK, Run(
                        [this](const ProxyBox& box)
                        {
                            box.Select(0);
                            box.Press(IDC_VORN_PROXY_ADD);
                            EXPECT_EQ(m_set.GetCount(), 2);
                            EXPECT_EQ(box.Lines(), (std::vector<std::string>{"first:1", "<no host>"}));
                            EXPECT_EQ(box.Selected(), 1);
                            EXPECT_TRUE(box.IsTicked(1));
                            EXPECT_EQ(box.Text(IDC_VORN_PROXY_HOST), "<no host>");
                            EXPECT_EQ(box.Text(IDC_VORN_PROXY_PORTS), "1-65535");
                            EXPECT_EQ(box.Type(), "HTTP");
                            EXPECT_EQ(::GetFocus(), box.Item(IDC_VORN_PROXY_HOST));
                            box.Enter(IDC_VORN_PROXY_HOST, "second");
                        },
                        IDOK));
    ASSERT_EQ(m_set.GetCount(), 2);
    EXPECT_EQ(Address(m_set.GetAt(1)), "- - second 8080");
    EXPECT_TRUE(m_set.GetAt(1)->mEnabled);
}

TEST_F(ProxyDialog, AddTakesWhatIsTypedBefore)
{
    ProxyInfo* const first = Put("first:1");
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            box.Type(IDC_VORN_PROXY_HOST, "typed:2");
            ::SendMessageA(box.Window(), WM_COMMAND, IDC_VORN_PROXY_ADD, 0);
            EXPECT_EQ(box.Lines(), (std::vector<std::string>{"typed:2", "<no host>"}));
        });
    EXPECT_EQ(Address(first), "- - typed 2");
}

TEST_F(ProxyDialog, DeleteSelectsTheLineThatTakesThePlace)
{
    for (const char* host : {"a", "b", "c"})
    {
        Put(host);
    }
    Run(
        [this](const ProxyBox& box)
        {
            box.Select(1);
            box.Press(IDC_VORN_PROXY_DELETE);
            EXPECT_EQ(box.Lines(), (std::vector<std::string>{"a", "c"}));
            EXPECT_EQ(box.Selected(), 1);
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_HOST), "c");
            box.Press(IDC_VORN_PROXY_DELETE);
            EXPECT_EQ(box.Selected(), 0);
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_HOST), "a");
            EXPECT_EQ(::GetFocus(), box.Item(IDC_VORN_PROXY_DELETE));
            box.Press(IDC_VORN_PROXY_DELETE);
            ExpectNothingSelected(box);
            EXPECT_EQ(::GetFocus(), box.Item(IDC_VORN_PROXY_ADD)); // not on a control that is disabled
            EXPECT_EQ(m_set.GetCount(), 0);
        });
}

TEST_F(ProxyDialog, DeleteWithNothingSelectedDoesNothing)
{
    Put("a");
    Run(
        [this](const ProxyBox& box)
        {
            ::SendMessageA(box.Window(), WM_COMMAND, IDC_VORN_PROXY_DELETE, 0);
            EXPECT_EQ(m_set.GetCount(), 1);
        });
}

TEST_F(ProxyDialog, TicksGoIntoTheEntriesWithOkAlone)
{
    ProxyInfo* const first = Put("a");
    ProxyInfo* const second = Put("b");
    second->mEnabled = false;
    const auto tickBoth = [&](const ProxyBox& box)
    {
        box.Tick(0);
        box.Tick(1);
        EXPECT_FALSE(box.IsTicked(0));
        EXPECT_TRUE(box.IsTicked(1));
        EXPECT_TRUE(first->mEnabled);
        EXPECT_FALSE(second->mEnabled);
    };
    EXPECT_EQ(IDCANCEL, Run(tickBoth, IDCANCEL));
    EXPECT_TRUE(first->mEnabled);
    EXPECT_FALSE(second->mEnabled);
    EXPECT_EQ(IDOK, Run(tickBoth, IDOK));
    EXPECT_FALSE(first->mEnabled);
    EXPECT_TRUE(second->mEnabled);
}

TEST_F(ProxyDialog, TheSpaceKeyTicksOnce)
{
    Put("a");
    Run(
        [](const ProxyBox& box)
        {
            box.Focus(IDC_VORN_PROXY_LIST);
            box.Select(0);
            const HWND list = box.Item(IDC_VORN_PROXY_LIST);
            ::PostMessageA(list, WM_KEYDOWN, VK_SPACE, 1);
            ::PostMessageA(list, WM_KEYUP, VK_SPACE, 1);
            vorn::test::PumpWaiting();
            EXPECT_FALSE(box.IsTicked(0));
            EXPECT_EQ(box.Selected(), 0);
        });
}

TEST_F(ProxyDialog, AReplacedLineKeepsItsTickAndItsPlace)
{
    Put("a");
    ProxyInfo* const second = Put("b");
    Put("c");
    Run(
        [](const ProxyBox& box)
        {
            box.Tick(1);
            box.Select(1);
            box.Enter(IDC_VORN_PROXY_HOST, "new");
            EXPECT_EQ(box.Lines(), (std::vector<std::string>{"a", "new:8080", "c"}));
            EXPECT_FALSE(box.IsTicked(1));
            box.Enter(IDC_VORN_PROXY_PORTS, "80");
            EXPECT_FALSE(box.IsTicked(1));
            EXPECT_TRUE(box.IsTicked(0));
            EXPECT_TRUE(box.IsTicked(2));
        },
        IDOK);
    EXPECT_FALSE(second->mEnabled);
    EXPECT_EQ(Address(second), "- - new 8080");
}

TEST_F(ProxyDialog, AReplacedLineStaysInView)
{
    for (int i = 0; i < 100; ++i)
    {
        Put("host");
    }
    Run(
        [](const ProxyBox& box)
        {
            const HWND list = box.Item(IDC_VORN_PROXY_LIST);
            CRect client;
            ::GetClientRect(list, &client);
            for (const int line : {99, 50, 0})
            {
                box.Select(line);
                box.Enter(IDC_VORN_PROXY_HOST, "new");
                CRect place;
                ::SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(&place));
                EXPECT_EQ(box.Selected(), line);
                EXPECT_GE(place.top, client.top) << line;
                EXPECT_LE(place.bottom, client.bottom) << line;
            }
        });
}

TEST_F(ProxyDialog, AClickOnAnotherLineLeavesTheEditToTheFormerOne)
{
    ProxyInfo* const first = Put("a");
    ProxyInfo* const second = Put("b");
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            box.Type(IDC_VORN_PROXY_HOST, "new:1");
            box.Click(1);
            EXPECT_EQ(box.Selected(), 1);
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_HOST), "b");
            EXPECT_EQ(box.Lines(), (std::vector<std::string>{"new:1", "b"}));
        });
    EXPECT_EQ(Address(first), "- - new 1");
    EXPECT_EQ(Address(second), "- - b 0");
}

TEST_F(ProxyDialog, ManyEntriesWork)
{
    for (int i = 0; i < 1000; ++i)
    {
        Put(("host" + std::to_string(i)).c_str())->mEnabled = i % 3 != 0;
    }
    Run(
        [](const ProxyBox& box)
        {
            EXPECT_EQ(box.Lines().size(), 1000u);
            box.Select(999);
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_HOST), "host999");
        },
        IDOK);
    for (int i = 0; i < 1000; ++i)
    {
        EXPECT_EQ(m_set.GetAt(i)->mEnabled, i % 3 != 0) << i;
    }
}

TEST_F(ProxyDialog, OneObjectCanBeRunAgain)
{
    Put("a");
    ProxyConfigDlg dialog(&m_set);
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_EQ(dialog.IsKindOf(RUNTIME_CLASS(CDialog)), TRUE);
        EXPECT_EQ(IDOK, RunObject(dialog,
                                  [](const ProxyBox& box)
                                  {
                                      box.Select(0);
                                      box.Enter(IDC_VORN_PROXY_HOST, "again");
                                  }));
    }
    EXPECT_EQ(Address(m_set.GetAt(0)), "- - again 8080");
}

TEST_F(ProxyDialog, OpeningsLeaveNothingBehind)
{
    for (int i = 0; i < 5; ++i)
    {
        Put("a:1");
    }
    const auto open = [this]
    {
        Run(
            [](const ProxyBox& box)
            {
                box.Select(2);
                box.Enter(IDC_VORN_PROXY_HOST, "other");
            },
            IDOK);
    };
    open(); // what the first one loads for good
    const unsigned before = vorn::test::CountGdiObjects();
    for (int i = 0; i < 50; ++i)
    {
        open();
    }
    EXPECT_EQ(vorn::test::CountGdiObjects(), before);
}
