#include "framework/include/afxcmn.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/GdiCount.h"
#include "tests/support/InTheMiddle.h"
#include "tests/support/WindowPicture.h"
#include "tests/windows/log/LogBox.h"

#include <cstdlib>

using vorn::test::ExpectInTheMiddle;

namespace
{

CWinApp g_app("LogTests");

/// Hands out what a test wants, and counts how often it is asked.
class FedLog : public VornCommonLog
{
public:
    int GetLog(char*& text) override
    {
        ++asked;
        if (answer < 0)
        {
            text = reinterpret_cast<char*>(0x10); // nobody may touch it
            return answer;
        }
        text = handOut ? new char[static_cast<std::size_t>(answer) + 1]() : nullptr;
        return answer;
    }

    int answer = 0;
    bool handOut = true;
    int asked = 0;
};

bool IsShown(LogStatus level, bool alternative, LogStatus normalThreshold, LogStatus alternativeThreshold)
{
    VornCommonLog log;
    log.SetDisplayThresholds(normalThreshold, alternativeThreshold);
    return WhileShown(
        [&]
        {
            log.DisplayLog(level, alternative);
        },
        nullptr);
}

std::string Lines(int count)
{
    std::string lines;
    for (int i = 0; i < count; ++i)
    {
        lines += "message " + std::to_string(i) + "\r\n";
    }
    return lines;
}

int FirstVisibleLine(HWND window)
{
    return static_cast<int>(::SendMessageA(TextControl(window), EM_GETFIRSTVISIBLELINE, 0, 0));
}

COLORREF PixelAt(HWND window, CPoint point)
{
    ::UpdateWindow(window);
    const HDC dc = ::GetDC(window);
    const COLORREF color = ::GetPixel(dc, point.x, point.y);
    ::ReleaseDC(window, dc);
    return color;
}

} // namespace

TEST_F(LogTest, IsShownUpToTheThresholdInForce)
{
    const LogStatus levels[] = {LOG_FATAL, LOG_ERROR, LOG_WARNING, LOG_INFO, LOG_DEBUG};
    for (const LogStatus level : levels)
    {
        EXPECT_EQ(IsShown(level, false, LOG_ERROR, LOG_WARNING), level <= LOG_ERROR) << level;
        EXPECT_EQ(IsShown(level, true, LOG_ERROR, LOG_WARNING), level <= LOG_WARNING) << level;
        EXPECT_TRUE(IsShown(level, false, LOG_DEBUG, LOG_FATAL)) << level;
        EXPECT_EQ(IsShown(level, true, LOG_DEBUG, LOG_FATAL), level == LOG_FATAL) << level;
    }
}

TEST_F(LogTest, LevelsAreComparedWithTheirSigns)
{
    const auto nothing = static_cast<LogStatus>(-1);
    EXPECT_FALSE(IsShown(LOG_FATAL, false, nothing, LOG_DEBUG));
    EXPECT_TRUE(IsShown(nothing, false, nothing, LOG_FATAL));
    EXPECT_TRUE(IsShown(nothing, true, LOG_FATAL, LOG_FATAL));
}

TEST_F(LogTest, ErrorsAreShownAtFirstWarningsInTheAlternative)
{
    VornCommonLog log;
    log.DisplayLog(LOG_WARNING, false); // would wait for the user
    log.DisplayLog(LOG_INFO, true);
    EXPECT_TRUE(WhileShown(
        [&log]
        {
            log.DisplayLog(LOG_ERROR, false);
        },
        nullptr));
    EXPECT_TRUE(WhileShown(
        [&log]
        {
            log.DisplayLog(LOG_WARNING, true);
        },
        nullptr));
}

TEST_F(LogTest, TheWindowStandsInTheMiddle)
{
    VornCommonLog log;
    EXPECT_TRUE(ShowLog(log, ExpectInTheMiddle));
}

TEST_F(LogTest, TheWindowHoldsTheWholeTextToBeRead)
{
    VornCommonLog log;
    log.LogMsg("100%s of \\rtf {braces}\ttab", LOG_INFO);
    log.LogMsg("{\\rtf1 bold}", LOG_INFO);
    log.LogMsg("M\xFCller", LOG_INFO);
    EXPECT_TRUE(ShowLog(log,
                        [](HWND window)
                        {
                            EXPECT_EQ(ShownText(window),
                                      "100%s of \\rtf {braces}\ttab\r\n{\\rtf1 bold}\r\nM\xFCller\r\n");
                            const auto style = static_cast<DWORD>(::GetWindowLongA(TextControl(window), GWL_STYLE));
                            EXPECT_TRUE(style & ES_READONLY);
                            ::SendMessageA(TextControl(window), WM_CHAR, 'x', 1);
                            EXPECT_EQ(ShownText(window).find('x'), std::string::npos);
                        }));
}

TEST_F(LogTest, ATextThatStartsLikeMarkupIsShownAsItIs)
{
    VornCommonLog log;
    log.LogMsg("{\\rtf1\\ansi bold}", LOG_INFO);
    ShowLog(log,
            [](HWND window)
            {
                EXPECT_EQ(ShownText(window), "{\\rtf1\\ansi bold}\r\n");
            });
}

TEST_F(LogTest, LongTextsAreWholeAndOpenAtTheirBeginning)
{
    const std::string text = Lines(10'000);
    ASSERT_GT(text.size(), 130'000u);
    VornCommonLog log;
    for (int i = 0; i < 10'000; ++i)
    {
        log.LogMsg("message " + std::to_string(i), LOG_INFO);
    }
    EXPECT_TRUE(ShowLog(log,
                        [&text](HWND window)
                        {
                            EXPECT_EQ(ShownText(window), text);
                            EXPECT_EQ(FirstVisibleLine(window), 0);
                            EXPECT_GT(::SendMessageA(TextControl(window), EM_GETLIMITTEXT, 0, 0), 100'000'000)
                                << "at first it is 32,767";
                        }));
}

TEST_F(LogTest, TheTemplateAndItsTextHaveTheNumbersThatHostsKnow)
{
    const HMODULE library = ::GetModuleHandleA("VornCommon.dll");
    EXPECT_NE(::FindResourceA(library, MAKEINTRESOURCEA(1773), MAKEINTRESOURCEA(5)), nullptr);
    VornCommonLog log;
    log.LogMsg("text", LOG_INFO);
    EXPECT_TRUE(ShowLog(log,
                        [](HWND window)
                        {
                            char text[16] = "";
                            ::GetDlgItemTextA(window, 1738, text, sizeof text);
                            EXPECT_STREQ(text, "text\r\n");
                        }));
}

TEST_F(LogTest, TheButtonHasTheFocus)
{
    VornCommonLog log;
    ShowLog(log,
            [](HWND window)
            {
                EXPECT_EQ(::GetFocus(), ::GetDlgItem(window, IDOK));
                EXPECT_EQ(::SendMessageA(window, DM_GETDEFID, 0, 0), MAKELRESULT(IDOK, DC_HASDEFID));
            });
}

TEST_F(LogTest, TheTextStandsOnTheFacesColourWithAMargin)
{
    VornCommonLog log;
    ShowLog(log,
            [](HWND window)
            {
                CRect client;
                CRect text;
                ::GetClientRect(TextControl(window), &client);
                ::SendMessageA(TextControl(window), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
                for (const long margin : {text.left - client.left, text.top - client.top, client.right - text.right,
                                          client.bottom - text.bottom})
                {
                    EXPECT_GE(margin, 3);
                    EXPECT_LE(margin, 4);
                }
                EXPECT_EQ(PixelAt(TextControl(window), client.CenterPoint()), ::GetSysColor(COLOR_3DFACE));
            });
}

TEST_F(LogTest, IsAskedForItsTextOnceAndOnlyWhenShown)
{
    FedLog log;
    log.DisplayLog(LOG_DEBUG, false);
    EXPECT_EQ(log.asked, 0);
    ShowLog(log);
    EXPECT_EQ(log.asked, 1);
    ShowLog(log);
    EXPECT_EQ(log.asked, 2);
}

TEST_F(LogTest, AFailureLeavesTheTextEmptyAndThePointerAlone)
{
    for (const int answer : {-1, -1000})
    {
        FedLog log;
        log.answer = answer;
        EXPECT_TRUE(ShowLog(log,
                            [](HWND window)
                            {
                                EXPECT_EQ(ShownText(window), "");
                            }));
    }
}

TEST_F(LogTest, AnEmptyLogIsNoFailure)
{
    FedLog log;
    for (const bool handsOut : {true, false})
    {
        log.handOut = handsOut;
        EXPECT_TRUE(ShowLog(log,
                            [](HWND window)
                            {
                                EXPECT_EQ(ShownText(window), "");
                            }));
    }
}

TEST_F(LogTest, ZeroBytesDoNotHideWhatFollows)
{
    VornCommonLog log;
    log.LogMsg(std::string("a\0b", 3), LOG_INFO);
    ShowLog(log,
            [](HWND window)
            {
                EXPECT_EQ(ShownText(window), "a b\r\n");
            });
}

TEST_F(LogTest, EscapeAndTheCloseBoxEndItToo)
{
    VornCommonLog log;
    EXPECT_TRUE(ShowLog(log, nullptr, IDCANCEL));
    for (const UINT message : {static_cast<UINT>(WM_CLOSE), static_cast<UINT>(WM_KEYDOWN)})
    {
        bool posted = false;
        DialogDriver driver(
            [&]
            {
                const HWND window = FindDialog("Message Log");
                if (window != nullptr && !posted)
                {
                    const HWND to = message == WM_CLOSE ? window : ::GetFocus();
                    posted = ::PostMessageA(to, message, message == WM_KEYDOWN ? VK_ESCAPE : 0, 0) != FALSE;
                }
                return posted;
            });
        log.DisplayLog(LOG_FATAL, false);
        EXPECT_TRUE(posted);
    }
}

TEST_F(LogTest, IsOwnedByTheMainWindow)
{
    CWnd owner;
    ASSERT_TRUE(
        owner.CreateEx(0, AfxRegisterWndClass(0), "owner", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr));
    g_app.m_pMainWnd = &owner;
    VornCommonLog log;
    EXPECT_TRUE(ShowLog(log,
                        [&owner](HWND window)
                        {
                            EXPECT_EQ(::GetWindow(window, GW_OWNER), owner.m_hWnd);
                            EXPECT_FALSE(::IsWindowEnabled(owner.m_hWnd));
                        }));
    EXPECT_TRUE(::IsWindowEnabled(owner.m_hWnd));
    g_app.m_pMainWnd = nullptr;
    owner.DestroyWindow();
}

TEST_F(LogTest, OpeningsLeaveNothingBehind)
{
    VornCommonLog log;
    log.LogMsg("text", LOG_INFO);
    // What the first one loads for good, and all that painting needs: a quick end may come before a window is painted.
    ShowLog(log,
            [](HWND window)
            {
                ::RedrawWindow(window, nullptr, nullptr,
                               RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
            });
    const unsigned before = vorn::test::CountGdiObjects();
    for (int i = 0; i < 30; ++i)
    {
        ShowLog(log);
    }
    EXPECT_EQ(vorn::test::CountGdiObjects(), before);
}

TEST_F(LogTest, TheWindowIsTidy)
{
    VornCommonLog log;
    for (int i = 0; i < 40; ++i)
    {
        log.LogMsg(i % 5 == 0
                       ? "Projection module azimuthal.dll skipped: it tells no readable name, and its maker wrote a "
                         "very long line about that which does not fit into the window"
                       : "Chart region loaded",
                   LOG_INFO);
    }
    ShowLog(log,
            [](HWND window)
            {
                CRect client;
                CRect button;
                CRect text;
                ::GetClientRect(window, &client);
                ::GetWindowRect(::GetDlgItem(window, IDOK), &button);
                ::GetWindowRect(TextControl(window), &text);
                ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
                CRect common;
                EXPECT_FALSE(common.IntersectRect(button, text));
                EXPECT_TRUE(common.IntersectRect(button, client) && common == button);
                EXPECT_TRUE(common.IntersectRect(text, client) && common == text);
                if (const char* const folder = std::getenv("VORN_TEST_PICTURES"))
                {
                    ::UpdateWindow(TextControl(window));
                    EXPECT_TRUE(vorn::test::SaveWindowPicture(window, std::string(folder) + "\\log.bmp"));
                }
            });
}
