#include "tests/support/DialogDriver.h"
#include "tests/windows/proxy/ProxyBox.h"

TEST_F(ProxyDialog, TheSelectedEntryIsShown)
{
    ProxyInfo* const proxy = Put("joe:secret@proxy.example.com:3128", ProxyInfo::kSocks4);
    proxy->mFirstPort = 8000;
    proxy->mLastPort = 8080;
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_HOST), "proxy.example.com:3128");
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_PORTS), "8000-8080");
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_USER), "joe");
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_PASSWORD), "secret");
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_CONFIRMATION), "secret");
            EXPECT_EQ(box.Type(), "SOCKS Version 4");
            for (int id = IDC_VORN_PROXY_LIST; id <= IDC_VORN_PROXY_DELETE; ++id)
            {
                EXPECT_TRUE(box.IsEnabled(id)) << id;
            }
        });
}

TEST_F(ProxyDialog, EachTypeIsShownByItsName)
{
    const char* const names[] = {"HTTP", "SOCKS Version 4", "SOCKS Version 5", "HTTP Tunneling"};
    for (int type = 1; type <= 4; ++type)
    {
        Put("proxy", type);
    }
    Run(
        [&](const ProxyBox& box)
        {
            for (int line = 0; line < 4; ++line)
            {
                box.Select(line);
                EXPECT_EQ(box.Type(), names[line]);
            }
        });
}

TEST_F(ProxyDialog, ATypeThatIsNoneSelectsNoneAndStaysUntilOneIsChosen)
{
    ProxyInfo* const proxy = Put("proxy:1", 77);
    Run(
        [&](const ProxyBox& box)
        {
            box.Select(0);
            EXPECT_EQ(box.Type(), "");
            EXPECT_TRUE(box.IsEnabled(IDC_VORN_PROXY_TYPE));
            box.Enter(IDC_VORN_PROXY_HOST, "other");
            EXPECT_EQ(Address(proxy), "- - other 8080");
            EXPECT_EQ(proxy->mType, 77);
            box.ChooseType(3);
            EXPECT_EQ(proxy->mType, 3);
        },
        IDOK);
    EXPECT_EQ(proxy->mType, 3);
}

TEST_F(ProxyDialog, AChosenTypeIsStoredAtOnceAndLeavesThePort)
{
    ProxyInfo* const proxy = Put("proxy:8080");
    Run(
        [&](const ProxyBox& box)
        {
            box.Select(0);
            const int types[] = {1, 4, 2, 3};
            for (int entry = 3; entry >= 0; --entry)
            {
                box.ChooseType(entry);
                EXPECT_EQ(proxy->mType, types[entry]);
            }
            box.ChooseType(2);
            EXPECT_EQ(box.Lines()[0], "proxy:8080");
        });
    EXPECT_EQ(Address(proxy), "- - proxy 8080");
    EXPECT_EQ(proxy->mType, 2);
}

TEST_F(ProxyDialog, AHostWithoutPortGetsTheUsualOneOfItsType)
{
    const unsigned short ports[] = {8080, 1080, 1080, 8080};
    for (int type = 1; type <= 4; ++type)
    {
        Put("old:99", type);
    }
    Run(
        [&](const ProxyBox& box)
        {
            for (int line = 0; line < 4; ++line)
            {
                const std::string expected = "proxy:" + std::to_string(ports[line]);
                box.Select(line);
                box.Enter(IDC_VORN_PROXY_HOST, "proxy");
                EXPECT_EQ(box.Lines()[static_cast<std::size_t>(line)], expected);
                EXPECT_EQ(box.Text(IDC_VORN_PROXY_HOST), expected);
                EXPECT_EQ(box.Selected(), line);
            }
        });
}

TEST_F(ProxyDialog, AHostIsTakenApartAsAnAddress)
{
    ProxyInfo* const proxy = Put("joe:secret@old:99");
    const std::pair<const char*, const char*> hosts[] = {
        {"proxy:3128", "joe secret proxy 3128"},    {"http://third/x", "joe secret third 8080"},
        {"[::1]:81", "joe secret [::1] 81"},        {"proxy:99999", "joe secret proxy 8080"},
        {"ann:pass@fourth:1", "ann pass fourth 1"}, {"bob@fifth:2", "bob - fifth 2"}};
    Run(
        [&](const ProxyBox& box)
        {
            box.Select(0);
            for (const auto& [host, address] : hosts)
            {
                box.Enter(IDC_VORN_PROXY_HOST, host);
                EXPECT_EQ(Address(proxy), address);
                EXPECT_EQ(box.Text(IDC_VORN_PROXY_USER), proxy->mAddress.mpUser);
            }
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_PASSWORD), "");
        });
}

TEST_F(ProxyDialog, AnEmptiedHostIsNamedSo)
{
    ProxyInfo* const proxy = Put("old:99");
    Run(
        [&](const ProxyBox& box)
        {
            box.Select(0);
            box.Enter(IDC_VORN_PROXY_HOST, "");
            EXPECT_EQ(box.Lines()[0], "<no host>");
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_HOST), "<no host>");
        });
    EXPECT_EQ(proxy->mAddress.mpHost, nullptr);
}

TEST_F(ProxyDialog, AFieldLeftAsItWasEditsNothing)
{
    ProxyInfo* const nameless = Put("");
    ProxyInfo* const portless = Put("proxy");
    Run(
        [&](const ProxyBox& box)
        {
            for (int line = 0; line < 2; ++line)
            {
                box.Select(line);
                for (int id = IDC_VORN_PROXY_HOST; id <= IDC_VORN_PROXY_CONFIRMATION; ++id)
                {
                    box.Focus(id);
                    box.Leave();
                }
            }
            EXPECT_EQ(box.Lines(), (std::vector<std::string>{"<no host>", "proxy"}));
        },
        IDOK);
    EXPECT_EQ(Address(nameless), "- - - 0");
    EXPECT_EQ(Address(portless), "- - proxy 0");
    EXPECT_TRUE(g_app.messages.empty());
}

TEST_F(ProxyDialog, PortsAreARangeOrOne)
{
    ProxyInfo* const proxy = Put("proxy:1");
    struct Case
    {
        const char* typed;
        int first;
        int last;
        const char* shown;
    };
    const Case cases[] = {{"8000-8080", 8000, 8080, "8000-8080"}, {"443", 443, 443, "443"}, {"http", 0, 0, "0"},
                          {"  80 - 90x", 80, 90, "80-90"},        {"-5", 0, 0, "0"},        {"70000-80", 0, 80, "0-80"},
                          {"65535", 65535, 65535, "65535"},       {"", 0, 0, "0"}};
    Run(
        [&](const ProxyBox& box)
        {
            box.Select(0);
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_PORTS), "1-65535");
            for (const Case& each : cases)
            {
                box.Enter(IDC_VORN_PROXY_PORTS, each.typed);
                EXPECT_EQ(proxy->mFirstPort, each.first) << each.typed;
                EXPECT_EQ(proxy->mLastPort, each.last) << each.typed;
                EXPECT_EQ(box.Text(IDC_VORN_PROXY_PORTS), each.shown);
                EXPECT_EQ(box.Selected(), 0);
            }
        });
}

TEST_F(ProxyDialog, TheUserNameIsStored)
{
    ProxyInfo* const proxy = Put("joe:secret@proxy:1");
    Run(
        [&](const ProxyBox& box)
        {
            box.Select(0);
            box.Enter(IDC_VORN_PROXY_USER, "ann:x@y %s");
            EXPECT_STREQ(proxy->mAddress.mpUser, "ann:x@y %s");
            box.Enter(IDC_VORN_PROXY_USER, "");
            EXPECT_EQ(Address(proxy), "- secret proxy 1");
        });
}

TEST_F(ProxyDialog, LongTextsSurvive)
{
    ProxyInfo* const proxy = Put("proxy:1");
    const std::string host(250, 'h');
    const std::string user(3000, 'u');
    Run(
        [&](const ProxyBox& box)
        {
            box.Select(0);
            box.Enter(IDC_VORN_PROXY_HOST, host);
            box.Enter(IDC_VORN_PROXY_USER, user);
            EXPECT_EQ(box.Lines()[0], host + ":8080");
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_HOST), host + ":8080");
        });
    EXPECT_EQ(proxy->mAddress.mpHost, host);
    EXPECT_EQ(proxy->mAddress.mpUser, user);
}

TEST_F(ProxyDialog, OkTakesTheFieldThatHasTheFocus)
{
    for (const int id : {IDC_VORN_PROXY_HOST, IDC_VORN_PROXY_PORTS, IDC_VORN_PROXY_USER})
    {
        ProxyInfo* const proxy = Put("old:99");
        const int line = m_set.GetCount() - 1;
        EXPECT_EQ(IDOK, Run(
                            [&](const ProxyBox& box)
                            {
                                box.Select(line);
                                box.Type(id, "7");
                            },
                            IDOK));
        const bool taken = id == IDC_VORN_PROXY_HOST    ? Address(proxy) == "- - 7 8080"
                           : id == IDC_VORN_PROXY_PORTS ? proxy->mFirstPort == 7 && proxy->mLastPort == 7
                                                        : Address(proxy) == "7 - old 99";
        EXPECT_TRUE(taken) << id;
    }
}

TEST_F(ProxyDialog, TheEnterKeyInAFieldIsOk)
{
    ProxyInfo* const proxy = Put("old:99");
    ProxyConfigDlg dialog(&m_set);
    int steps = 0;
    DialogDriver driver(
        [&]
        {
            const HWND window = FindDialog("Proxy Settings");
            if (window == nullptr || steps++ > 0)
            {
                return steps > 1;
            }
            const ProxyBox box(window);
            box.Select(0);
            box.Type(IDC_VORN_PROXY_HOST, "typed");
            ::PostMessageA(box.Item(IDC_VORN_PROXY_HOST), WM_KEYDOWN, VK_RETURN, 0);
            return false;
        });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(Address(proxy), "- - typed 8080");
}

TEST_F(ProxyDialog, CancelDoesNotTakeTheFieldThatHasTheFocus)
{
    ProxyInfo* const proxy = Put("old:99");
    const auto type = [](const ProxyBox& box)
    {
        box.Select(0);
        box.Enter(IDC_VORN_PROXY_USER, "kept");
        box.Type(IDC_VORN_PROXY_HOST, "typed");
    };
    EXPECT_EQ(IDCANCEL, Run(type, IDCANCEL));
    EXPECT_EQ(Address(proxy), "kept - old 99");
    Run(
        [&](const ProxyBox& box)
        {
            type(box);
            box.Press(IDCANCEL);
        });
    EXPECT_EQ(Address(proxy), "kept - old 99");
}

TEST_F(ProxyDialog, ACancelThatIsNotLetGoOnTheButtonLosesNothing)
{
    for (const int id : {IDC_VORN_PROXY_HOST, IDC_VORN_PROXY_PORTS, IDC_VORN_PROXY_USER})
    {
        ProxyInfo* const proxy = Put("old:99");
        const int line = m_set.GetCount() - 1;
        EXPECT_EQ(IDOK, Run(
                            [&](const ProxyBox& box)
                            {
                                box.Select(line);
                                box.Type(id, "7");
                                box.PressAndDragOff(IDCANCEL);
                                EXPECT_EQ(::GetFocus(), box.Item(IDCANCEL));
                                EXPECT_EQ(box.Text(id), "7");
                                EXPECT_EQ(Address(proxy), "- - old 99"); // it may still be pressed
                                EXPECT_EQ(proxy->mFirstPort, 1);
                                box.Press(IDOK);
                            },
                            IDOK));
        EXPECT_EQ(Address(proxy), id == IDC_VORN_PROXY_HOST   ? "- - 7 8080"
                                  : id == IDC_VORN_PROXY_USER ? "7 - old 99"
                                                              : "- - old 99");
        EXPECT_EQ(proxy->mFirstPort, id == IDC_VORN_PROXY_PORTS ? 7 : 1) << id;
    }
}

TEST_F(ProxyDialog, OkFromCancelTakesWhatWasTyped)
{
    ProxyInfo* const proxy = Put("old:99");
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            box.Type(IDC_VORN_PROXY_HOST, "typed");
            box.PressAndDragOff(IDCANCEL);
        },
        IDOK); // by the command: the focus stays where it is
    EXPECT_EQ(Address(proxy), "- - typed 8080");
}

TEST_F(ProxyDialog, LeavingCancelTakesWhatWasTyped)
{
    ProxyInfo* const first = Put("a");
    ProxyInfo* const second = Put("b");
    Run(
        [&](const ProxyBox& box)
        {
            box.Select(0);
            box.Type(IDC_VORN_PROXY_HOST, "new:1");
            box.PressAndDragOff(IDCANCEL);
            box.Click(1);
            EXPECT_EQ(box.Lines(), (std::vector<std::string>{"new:1", "b"}));
            box.Type(IDC_VORN_PROXY_PORTS, "80");
            box.Focus(IDCANCEL); // as the Tab key goes there
            box.Leave();
            EXPECT_EQ(second->mFirstPort, 80);
        });
    EXPECT_EQ(Address(first), "- - new 1");
    EXPECT_EQ(Address(second), "- - b 0");
}

TEST_F(ProxyDialog, CancelPressedAfterADragOffTakesNothing)
{
    ProxyInfo* const proxy = Put("old:99");
    EXPECT_EQ(IDCANCEL, Run(
                            [](const ProxyBox& box)
                            {
                                box.Select(0);
                                box.Type(IDC_VORN_PROXY_HOST, "typed");
                                box.PressAndDragOff(IDCANCEL);
                                box.Press(IDCANCEL);
                            }));
    EXPECT_EQ(Address(proxy), "- - old 99");
}
