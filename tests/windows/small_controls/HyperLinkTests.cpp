#include "tests/support/DialogDriver.h"
#include "tests/support/ImportRedirect.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/small_controls/ControlDialog.h"
#include "toolkit/HyperLink.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using namespace vorn::test;

namespace
{
constexpr const char* kClasses = "Software\\Vornwald\\HyperLinkTests";
constexpr const char* kUrl = "http://example.org/chart";
constexpr const char* kNoApplication = "Can't open link:\n\nThere is no application associated with the given URL.";

std::string startedCommand;
int startedShow = 0;
UINT startResult = 33;

UINT WINAPI PretendToStart(LPCSTR command, UINT show)
{
    startedCommand = command;
    startedShow = static_cast<int>(show);
    return startResult;
}

int Code(HINSTANCE result)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

/// Classes of the test's own in place of the machine's, so that no browser starts.
class OwnClasses
{
public:
    OwnClasses()
    {
        ::RegDeleteTree(HKEY_CURRENT_USER, kClasses);
        ::RegCreateKeyEx(HKEY_CURRENT_USER, kClasses, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &m_key, nullptr);
        ::RegOverridePredefKey(HKEY_CLASSES_ROOT, m_key);
    }
    ~OwnClasses()
    {
        ::RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
        ::RegCloseKey(m_key);
        ::RegDeleteTree(HKEY_CURRENT_USER, kClasses);
    }
    OwnClasses(const OwnClasses&) = delete;
    OwnClasses& operator=(const OwnClasses&) = delete;

    void Set(const char* path, const std::string& value) const
    {
        HKEY key = nullptr;
        ::RegCreateKeyEx(m_key, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
        ::RegSetValueEx(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                        static_cast<DWORD>(value.size() + 1));
        ::RegCloseKey(key);
    }

private:
    HKEY m_key = nullptr;
};

BOOL CALLBACK CollectTips(HWND window, LPARAM found)
{
    char name[32] = "";
    ::GetClassName(window, name, sizeof name);
    if (std::string(name) == TOOLTIPS_CLASSA)
    {
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    }
    return TRUE;
}

/// The tooltip windows of this thread.
std::vector<HWND> Tips()
{
    std::vector<HWND> found;
    ::EnumThreadWindows(::GetCurrentThreadId(), CollectTips, reinterpret_cast<LPARAM>(&found));
    return found;
}

class Link : public testing::Test
{
protected:
    Link() : m_start("VornCommon.dll", "WinExec", reinterpret_cast<const void*>(&PretendToStart))
    {
        startedCommand.clear();
        startResult = 33;
        HyperLink::GetColors(m_colors);
    }
    ~Link() override
    {
        HyperLink::SetColors(m_colors);
    }

    void Make(HyperLink& link, const char* url, DWORD style = SS_LEFT)
    {
        CStatic plain;
        plain.Create("The chart", WS_CHILD | WS_VISIBLE | style, CRect(50, 20, 250, 60), &m_dialog, 7);
        plain.Detach();
        ASSERT_TRUE(link.SubclassDlgItem(7, &m_dialog, url));
    }

    static void Click(HyperLink& link)
    {
        link.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        link.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    }

    CRect PlaceOf(const HyperLink& link) const
    {
        CRect place;
        link.GetWindowRect(&place);
        m_dialog.ScreenToClient(&place);
        return place;
    }

    /// How many pixels of a colour are shown.
    static int CountColor(HyperLink& link, COLORREF color)
    {
        link.UpdateWindow();
        CRect area;
        link.GetClientRect(&area);
        CClientDC dc(&link);
        int count = 0;
        for (int y = 0; y < area.Height(); ++y)
        {
            for (int x = 0; x < area.Width(); ++x)
            {
                count += dc.GetPixel(x, y) == color ? 1 : 0;
            }
        }
        return count;
    }
    static bool HasColor(HyperLink& link, COLORREF color)
    {
        return CountColor(link, color) > 0;
    }
    /// The colours of the pixels along its lower edge.
    static std::set<COLORREF> LowerEdge(HyperLink& link)
    {
        link.UpdateWindow();
        CRect area;
        link.GetClientRect(&area);
        CClientDC dc(&link);
        std::set<COLORREF> colors;
        for (int x = 0; x < area.Width(); ++x)
        {
            colors.insert(dc.GetPixel(x, area.Height() - 1));
        }
        return colors;
    }

    OwnClasses m_classes;
    ImportRedirect m_start;
    ControlDialog m_dialog;
    HYPERLINKCOLORS m_colors{};
};
} // namespace

TEST_F(Link, WithoutABrowserTheShellsErrorIsTheResult)
{
    EXPECT_EQ(31, Code(HyperLink::GotoURL(kUrl, SW_SHOW)));
    m_classes.Set(".htm", "htmlfile");
    EXPECT_EQ(31, Code(HyperLink::GotoURL(kUrl, SW_SHOW))) << "a kind of file without a program";
    EXPECT_EQ("", startedCommand);
}

TEST_F(Link, TheBrowserGetsTheUrlInPlaceOfItsPlaceholder)
{
    ASSERT_TRUE(m_start.IsActive());
    m_classes.Set(".htm", "htmlfile");
    m_classes.Set("htmlfile\\shell\\open\\command", "\"C:\\web.exe\" \"%1\" -new");
    EXPECT_EQ(33, Code(HyperLink::GotoURL(kUrl, SW_MAXIMIZE)));
    EXPECT_EQ("\"C:\\web.exe\"  http://example.org/chart", startedCommand);
    EXPECT_EQ(SW_MAXIMIZE, startedShow);
    m_classes.Set("htmlfile\\shell\\open\\command", "C:\\web.exe");
    startResult = 5;
    EXPECT_EQ(5, Code(HyperLink::GotoURL(kUrl, SW_SHOW)));
    EXPECT_EQ("C:\\web.exe http://example.org/chart", startedCommand);
}

TEST_F(Link, ValuesOfTwoHundredAndSixtyCharactersAreTheLongest)
{
    const std::string longest = "C:\\" + std::string(257, 'w');
    m_classes.Set(".htm", "htmlfile");
    m_classes.Set("htmlfile\\shell\\open\\command", longest);
    EXPECT_EQ(33, Code(HyperLink::GotoURL(kUrl, SW_SHOW)));
    EXPECT_EQ(longest + " " + kUrl, startedCommand);
    startedCommand.clear();
    m_classes.Set("htmlfile\\shell\\open\\command", longest + "w");
    EXPECT_EQ(31, Code(HyperLink::GotoURL(kUrl, SW_SHOW)));
    EXPECT_EQ("", startedCommand);
}

TEST_F(Link, AVeryLongUrlGoesToTheBrowserWhole)
{
    m_classes.Set(".htm", "htmlfile");
    m_classes.Set("htmlfile\\shell\\open\\command", "web");
    const std::string url = "http://example.org/" + std::string(20000, 'x');
    EXPECT_EQ(33, Code(HyperLink::GotoURL(url.c_str(), SW_SHOW)));
    EXPECT_EQ("web " + url, startedCommand);
}

TEST_F(Link, AnEmptyUrlIsNotAsked)
{
    EXPECT_EQ(2, Code(HyperLink::GotoURL(nullptr, SW_SHOW)));
    EXPECT_EQ(2, Code(HyperLink::GotoURL("", SW_SHOW)));
}

TEST_F(Link, WithoutUrlAClickOnlyVisits)
{
    HyperLink link;
    Make(link, nullptr);
    EXPECT_STREQ("", link.GetURL());
    EXPECT_FALSE(link.IsVisited());
    Click(link);
    EXPECT_TRUE(link.IsVisited());
    EXPECT_EQ("", startedCommand);
    link.SetVisited(false);
    EXPECT_FALSE(link.IsVisited());
}

TEST_F(Link, AClickOpensIt)
{
    m_classes.Set(".htm", "htmlfile");
    m_classes.Set("htmlfile\\shell\\open\\command", "web");
    HyperLink link;
    Make(link, kUrl);
    link.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    link.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(500, 3));
    EXPECT_EQ("", startedCommand) << "the button went up elsewhere";
    link.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    EXPECT_EQ("", startedCommand) << "it had not gone down here";
    Click(link);
    EXPECT_EQ("web http://example.org/chart", startedCommand);
    EXPECT_EQ(SW_SHOW, startedShow);
    EXPECT_TRUE(link.IsVisited());
}

TEST_F(Link, KeysOpenItToo)
{
    m_classes.Set(".htm", "htmlfile");
    m_classes.Set("htmlfile\\shell\\open\\command", "web");
    HyperLink link;
    Make(link, kUrl);
    link.SendMessage(WM_KEYDOWN, 'A', 1);
    EXPECT_EQ("", startedCommand);
    for (const WPARAM key : {VK_SPACE, VK_RETURN})
    {
        startedCommand.clear();
        link.SendMessage(WM_KEYDOWN, key, 1);
        EXPECT_NE("", startedCommand);
        MSG asked = {link.m_hWnd, WM_KEYDOWN, key, 1, 0, {}};
        EXPECT_NE(0, link.SendMessage(WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&asked)) & DLGC_WANTMESSAGE);
    }
    MSG escape = {link.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    EXPECT_EQ(0, link.SendMessage(WM_GETDLGCODE, VK_ESCAPE, reinterpret_cast<LPARAM>(&escape)) & DLGC_WANTMESSAGE);
    EXPECT_NE(0U, link.GetStyle() & WS_TABSTOP);
    EXPECT_NE(0U, link.GetStyle() & SS_NOTIFY);
}

TEST_F(Link, TellsWhyItCannotBeOpened)
{
    HyperLink link;
    Make(link, kUrl);
    std::string said;
    HWND owner = nullptr;
    DialogDriver driver(
        [&]
        {
            const HWND box = FindDialog(HostCaption().c_str());
            if (box == nullptr)
            {
                return false;
            }
            said = TextOf(::GetDlgItem(box, 0xFFFF));
            owner = ::GetWindow(box, GW_OWNER);
            ::PostMessage(box, WM_COMMAND, IDOK, 0);
            return true;
        });
    Click(link);
    EXPECT_TRUE(driver.IsDone());
    EXPECT_EQ(kNoApplication, said);
    EXPECT_EQ(m_dialog.m_hWnd, owner) << "the link's top window";
    EXPECT_FALSE(link.IsVisited());
}

TEST_F(Link, HasTheColoursOfAllLinks)
{
    EXPECT_EQ(0x00EE0000U, m_colors.link);
    EXPECT_EQ(0x008B1A55U, m_colors.visited);
    EXPECT_EQ(0x000000FFU, m_colors.hover);
    EXPECT_EQ(0x000000FFU, m_colors.active);
    HyperLink::SetColors(RGB(0, 99, 0), RGB(99, 0, 99), RGB(200, 100, 0), RGB(1, 2, 3));
    HYPERLINKCOLORS colors{};
    HyperLink::GetColors(colors);
    EXPECT_EQ(RGB(1, 2, 3), colors.active);
    HyperLink link;
    Make(link, kUrl);
    EXPECT_TRUE(HasColor(link, RGB(0, 99, 0)));
    link.SetVisited();
    EXPECT_TRUE(HasColor(link, RGB(99, 0, 99)));
    EXPECT_FALSE(HasColor(link, RGB(0, 99, 0)));
    link.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_TRUE(HasColor(link, RGB(200, 100, 0)));
    link.SendMessage(WM_MOUSELEAVE);
    EXPECT_TRUE(HasColor(link, RGB(99, 0, 99)));
    link.ModifyLinkStyle(HyperLink::HoverColor, 0);
    EXPECT_EQ(HyperLink::UnderlineHover | HyperLink::ToolTip, link.GetLinkStyle());
    link.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_TRUE(HasColor(link, RGB(99, 0, 99)));
    link.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    EXPECT_TRUE(HasColor(link, RGB(1, 2, 3)));
    EXPECT_EQ(link.m_hWnd, ::GetFocus()) << "a press brings the focus";
    link.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(500, 3));
    EXPECT_TRUE(HasColor(link, RGB(99, 0, 99))) << "pressed, but beside it";
    ::ReleaseCapture();
}

TEST_F(Link, IsUnderlinedAlwaysOrBelowTheMouse)
{
    HyperLink link;
    Make(link, kUrl);
    link.ModifyLinkStyle(HyperLink::HoverColor, 0);
    const int plain = CountColor(link, m_colors.link);
    link.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    const int underlined = CountColor(link, m_colors.link);
    EXPECT_GT(underlined, plain) << "below the mouse";
    link.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(plain, CountColor(link, m_colors.link));
    link.ModifyLinkStyle(HyperLink::UnderlineHover, HyperLink::Underline);
    EXPECT_EQ(underlined, CountColor(link, m_colors.link)) << "always";
    link.ModifyLinkStyle(HyperLink::Underline, 0);
    link.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_EQ(plain, CountColor(link, m_colors.link)) << "never";
}

TEST_F(Link, HasAFrameOfDotsWhileItHasTheFocus)
{
    HyperLink link;
    Make(link, kUrl);
    EXPECT_EQ(1U, LowerEdge(link).size());
    ::SetFocus(link.m_hWnd);
    EXPECT_EQ(2U, LowerEdge(link).size());
    ::SetFocus(m_dialog.m_hWnd);
    EXPECT_EQ(1U, LowerEdge(link).size());
}

TEST_F(Link, ShowsItsUrlInATip)
{
    HyperLink link;
    Make(link, kUrl);
    ASSERT_EQ(1U, Tips().size());
    const auto tipText = [&link]
    {
        char text[100] = "";
        TOOLINFOA tool{};
        tool.cbSize = TTTOOLINFOA_V1_SIZE;
        tool.hwnd = link.m_hWnd;
        tool.uId = 1;
        tool.lpszText = text;
        ::SendMessage(Tips().front(), TTM_GETTEXTA, sizeof text, reinterpret_cast<LPARAM>(&tool));
        return std::string(text);
    };
    EXPECT_EQ(kUrl, tipText());
    link.SetURL("http://example.org/weather");
    EXPECT_EQ("http://example.org/weather", tipText());
    link.DestroyWindow();
    EXPECT_TRUE(Tips().empty());
    HyperLink without;
    without.ModifyLinkStyle(HyperLink::ToolTip, 0);
    Make(without, kUrl);
    EXPECT_TRUE(Tips().empty());
}

TEST_F(Link, IsAsLargeAsItsText)
{
    HyperLink left;
    Make(left, kUrl);
    left.SetWindowText("Other");
    EXPECT_EQ("Other", TextOf(left.m_hWnd));
    const CRect place = PlaceOf(left);
    EXPECT_EQ(CPoint(50, 20), place.TopLeft());
    EXPECT_LT(place.Width(), 100);
    EXPECT_LT(place.Height(), 30);
    left.SetWindowText("A longer text of another link");
    EXPECT_GT(PlaceOf(left).Width(), place.Width());
    left.DestroyWindow();
    HyperLink right;
    Make(right, kUrl, SS_RIGHT);
    right.SetWindowText("Other");
    EXPECT_EQ(250, PlaceOf(right).right);
    EXPECT_EQ(place.Width(), PlaceOf(right).Width());
    right.DestroyWindow();
    HyperLink center;
    Make(center, kUrl, SS_CENTER | SS_CENTERIMAGE);
    center.SetWindowText("Other");
    EXPECT_NEAR(150, PlaceOf(center).CenterPoint().x, 1);
    EXPECT_NEAR(40, PlaceOf(center).CenterPoint().y, 1);
}

TEST_F(Link, TakesAFontOver)
{
    HyperLink link;
    Make(link, kUrl);
    link.SetWindowText("Other");
    const int before = PlaceOf(link).Height();
    CFont large;
    large.CreateFont(40, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    link.SetFont(&large);
    EXPECT_GT(PlaceOf(link).Height(), before + 10);
}

TEST_F(Link, CanBeTakenOverOnce)
{
    HyperLink link;
    Make(link, kUrl);
    EXPECT_FALSE(link.SubclassDlgItem(7, &m_dialog, "other"));
    EXPECT_STREQ(kUrl, link.GetURL());
    HyperLink other;
    EXPECT_FALSE(other.SubclassDlgItem(99, &m_dialog, kUrl)) << "there is no such control";
    EXPECT_FALSE(other.SubclassDlgItem(7, nullptr, kUrl));
}

TEST_F(Link, ShowsItsCursor)
{
    HyperLink link;
    Make(link, kUrl);
    const std::string help = []
    {
        char folder[MAX_PATH] = "";
        ::GetWindowsDirectory(folder, MAX_PATH);
        return std::string(folder) + "\\winhlp32.exe";
    }();
    const HMODULE program = ::LoadLibraryEx(help.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const bool hasHand =
        program != nullptr && ::FindResource(program, MAKEINTRESOURCE(106), RT_GROUP_CURSOR) != nullptr;
    ::FreeLibrary(program);
    EXPECT_NE(nullptr, link.GetLinkCursor());
    EXPECT_EQ(!hasHand, link.GetLinkCursor() == ::LoadCursor(nullptr, IDC_ARROW)) << "a hand where the system has one";
    const HCURSOR cross = ::LoadCursor(nullptr, IDC_CROSS);
    link.SetLinkCursor(cross);
    EXPECT_EQ(cross, link.GetLinkCursor());
    link.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(link.m_hWnd), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(cross, ::GetCursor());
    link.SetLinkCursor(nullptr);
    EXPECT_EQ(::LoadCursor(nullptr, IDC_ARROW), link.GetLinkCursor());
}

TEST_F(Link, WithoutAWindowItKeepsWhatItIsTold)
{
    HyperLink link;
    link.SetURL(kUrl);
    link.SetVisited();
    link.SetWindowText("text");
    link.SetFont(nullptr);
    link.ModifyLinkStyle(0, HyperLink::Underline);
    EXPECT_STREQ(kUrl, link.GetURL());
    EXPECT_TRUE(link.IsVisited());
    link.SetURL(nullptr);
    EXPECT_STREQ("", link.GetURL());
}
