#include "tests/support/InTheMiddle.h"
#include "tests/support/WindowPicture.h"
#include "tests/windows/proxy/ProxyBox.h"

#include <cstdlib>

namespace
{

struct Child
{
    int id;
    const char* windowClass;
    DWORD with;    ///< styles that it must have
    DWORD without; ///< styles that it must not have
};

constexpr DWORD kScrolls = ES_AUTOHSCROLL | WS_TABSTOP;

const Child kChildren[] = {
    {IDC_VORN_PROXY_LIST, "ListBox", LBS_NOTIFY | LBS_HASSTRINGS | LBS_OWNERDRAWFIXED | WS_TABSTOP, LBS_SORT},
    {IDC_VORN_PROXY_TYPE, "ComboBox", CBS_DROPDOWNLIST | WS_TABSTOP, CBS_SORT},
    {IDC_VORN_PROXY_HOST, "Edit", kScrolls, ES_PASSWORD},
    {IDC_VORN_PROXY_PORTS, "Edit", kScrolls, ES_NUMBER | ES_PASSWORD},
    {IDC_VORN_PROXY_USER, "Edit", kScrolls, ES_PASSWORD},
    {IDC_VORN_PROXY_PASSWORD, "Edit", kScrolls | ES_PASSWORD, 0},
    {IDC_VORN_PROXY_CONFIRMATION, "Edit", kScrolls | ES_PASSWORD, 0},
    {IDC_VORN_PROXY_ADD, "Button", WS_TABSTOP, BS_DEFPUSHBUTTON},
    {IDC_VORN_PROXY_DELETE, "Button", WS_TABSTOP, BS_DEFPUSHBUTTON},
    {IDOK, "Button", BS_DEFPUSHBUTTON | WS_TABSTOP, 0},
    {IDCANCEL, "Button", WS_TABSTOP, BS_DEFPUSHBUTTON},
};

std::string ClassOf(HWND window)
{
    char name[32] = "";
    ::GetClassNameA(window, name, sizeof name);
    return name;
}

std::vector<HWND> Controls(HWND dialog)
{
    std::vector<HWND> controls;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (ClassOf(child) != "Static")
        {
            controls.push_back(child);
        }
    }
    return controls;
}

CRect PlaceOf(HWND window)
{
    CRect place;
    ::GetWindowRect(window, &place);
    return place;
}

void SavePictureOf(const ProxyBox& box)
{
    if (const char* const folder = std::getenv("VORN_TEST_PICTURES"))
    {
        ::UpdateWindow(box.Window());
        EXPECT_TRUE(vorn::test::SaveWindowPicture(box.Window(), std::string(folder) + "\\proxies.bmp"));
    }
}

} // namespace

TEST_F(ProxyDialog, StandsInTheMiddle)
{
    Run(
        [](const ProxyBox& box)
        {
            vorn::test::ExpectInTheMiddle(box.Window());
        });
}

TEST_F(ProxyDialog, ControlsStandInTheirOrder)
{
    Run(
        [](const ProxyBox& box)
        {
            const std::vector<HWND> controls = Controls(box.Window());
            ASSERT_EQ(controls.size(), std::size(kChildren));
            for (std::size_t i = 0; i < controls.size(); ++i)
            {
                const Child& expected = kChildren[i];
                const auto style = static_cast<DWORD>(::GetWindowLongA(controls[i], GWL_STYLE));
                EXPECT_EQ(::GetDlgCtrlID(controls[i]), expected.id);
                EXPECT_EQ(ClassOf(controls[i]), expected.windowClass) << expected.id;
                EXPECT_EQ(style & expected.with, expected.with) << expected.id;
                EXPECT_EQ(style & expected.without, 0u) << expected.id;
            }
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_ADD), "&Add");
            EXPECT_EQ(box.Text(IDC_VORN_PROXY_DELETE), "&Delete");
            EXPECT_EQ(box.Text(IDOK), "OK");
            EXPECT_EQ(box.Text(IDCANCEL), "Cancel");
        });
}

TEST_F(ProxyDialog, TypesAreOfferedInTheirOrderWithTheirNumbers)
{
    Put("proxy");
    Run(
        [](const ProxyBox& box)
        {
            const HWND types = box.Item(IDC_VORN_PROXY_TYPE);
            const std::pair<const char*, int> expected[] = {
                {"HTTP", 1}, {"HTTP Tunneling", 4}, {"SOCKS Version 4", 2}, {"SOCKS Version 5", 3}};
            ASSERT_EQ(::SendMessageA(types, CB_GETCOUNT, 0, 0), 4);
            for (WPARAM i = 0; i < 4; ++i)
            {
                char text[32] = "";
                ::SendMessageA(types, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
                EXPECT_STREQ(text, expected[i].first);
                EXPECT_EQ(::SendMessageA(types, CB_GETITEMDATA, i, 0), expected[i].second);
            }
        });
}

TEST_F(ProxyDialog, NoControlCoversAnotherOrLeavesTheWindow)
{
    Put("joe:secret@proxy.example.com:8080");
    Put("192.0.2.1:1080", ProxyInfo::kSocks5)->mEnabled = false;
    Put("");
    Run(
        [](const ProxyBox& box)
        {
            box.Select(0);
            CRect client;
            ::GetClientRect(box.Window(), &client);
            ::MapWindowPoints(box.Window(), nullptr, reinterpret_cast<POINT*>(&client), 2);
            std::vector<CRect> places;
            for (HWND child = ::GetWindow(box.Window(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            {
                const CRect place = PlaceOf(child);
                CRect common;
                EXPECT_TRUE(common.IntersectRect(client, place) && common == place) << ::GetDlgCtrlID(child);
                for (const CRect& other : places)
                {
                    EXPECT_FALSE(common.IntersectRect(other, place)) << ::GetDlgCtrlID(child);
                }
                places.push_back(place);
            }
            SavePictureOf(box);
        });
}

TEST_F(ProxyDialog, EachMnemonicIsOneControls)
{
    Run(
        [](const ProxyBox& box)
        {
            std::string mnemonics;
            for (HWND child = ::GetWindow(box.Window(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            {
                char text[64] = "";
                const std::string whole(text, static_cast<std::size_t>(::GetWindowTextA(child, text, sizeof text)));
                const std::size_t mark = whole.find('&');
                if (mark != std::string::npos)
                {
                    const char letter = static_cast<char>(whole[mark + 1] | 0x20);
                    EXPECT_EQ(mnemonics.find(letter), std::string::npos) << text;
                    mnemonics += letter;
                }
            }
            EXPECT_EQ(mnemonics.size(), 9u);
        });
}

TEST_F(ProxyDialog, TheTemplateHasTheNumberThatHostsKnow)
{
    const HMODULE library = ::GetModuleHandleA("VornCommon.dll");
    EXPECT_NE(::FindResourceA(library, MAKEINTRESOURCEA(1760), MAKEINTRESOURCEA(5)), nullptr);
}

TEST_F(ProxyDialog, IsTheLibrarysOwnWhateverTheHostHasUnderItsNumber)
{
    // This program has a template 1760 too.
    ASSERT_NE(::FindResourceA(nullptr, MAKEINTRESOURCEA(IDD_VORN_PROXIES), MAKEINTRESOURCEA(5)), nullptr);
    EXPECT_EQ(IDOK, Run([](const ProxyBox&) {}, IDOK));
}
