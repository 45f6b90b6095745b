#include "tests/windows/startup/StartupFixture.h"

#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"
#include "toolkit/startup/StartupIds.h"

#include <chrono>

namespace vorn::test
{

namespace
{

bool IsExpired(std::vector<CStartupDlg::DataInfo> records)
{
    return CStartupDlg("Testplane", nullptr, records.data(), static_cast<int>(records.size()), nullptr, nullptr)
        .isDataExpired();
}

HWND Disclaimer(HWND dialog)
{
    return ::GetDlgItem(dialog, IDC_VORN_STARTUP_DISCLAIMER);
}

bool IsChecked(HWND dialog)
{
    return ::IsDlgButtonChecked(dialog, IDC_VORN_STARTUP_HIDE) == BST_CHECKED;
}

COLORREF ColorOf(HWND line)
{
    const HDC dc = ::GetDC(line);
    ::SendMessageA(::GetParent(line), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(line));
    const COLORREF color = ::GetTextColor(dc);
    ::ReleaseDC(line, dc);
    return color;
}

} // namespace

TEST_F(StartupDialog, DataIsExpiredWhenAnExpiryDateIsPast)
{
    EXPECT_FALSE(IsExpired({}));
    EXPECT_FALSE(IsExpired({Navigation("a", 3), Terminal("b", 0.5)})) << "effective dates are past all the time";
    EXPECT_TRUE(IsExpired({Navigation("a", 3), Terminal("b", -0.5)})) << "late data counts";
    EXPECT_TRUE(IsExpired({Navigation("a", -0.5), Terminal("b", 3)}));
    EXPECT_FALSE(IsExpired({{1, 1.0F, "a", InDays(-40), Date()}})) << "an unset date cannot expire";
    EXPECT_TRUE(IsExpired({{1, 0.0F, "a", Date(), InDays(-1)}})) << "the version does not matter";
}

TEST_F(StartupDialog, AsksAgainWhetherDataHasExpiredWhenItOpens)
{
    CStartupDlg::DataInfo record = Navigation("a", 0);
    record.expiry.setTime(CTime::GetCurrentTime());
    CStartupDlg dialog("Testplane", nullptr, &record, 1, nullptr, nullptr);
    const bool before = dialog.isDataExpired();
    ASSERT_TRUE(PumpUntil(
        [&]
        {
            return record.expiry.isExpired();
        }));
    Show(dialog,
         [&](HWND window)
         {
             EXPECT_EQ(0U, LinesOf(window)[2].find("Expired:"));
         });
    EXPECT_TRUE(dialog.isDataExpired()) << "before: " << before;
}

TEST_F(StartupDialog, ShowsTheDisclaimerUnlessTheProfileSaysNo)
{
    int with = 0;
    int without = 0;
    int height = 0;
    ShowWith({Navigation("a", 3)},
             [&](HWND dialog)
             {
                 EXPECT_TRUE(::IsWindowVisible(Disclaimer(dialog)));
                 EXPECT_FALSE(IsChecked(dialog));
                 with = PlaceOf(dialog).Height();
                 height = PlaceOf(Disclaimer(dialog)).Height();
             });
    for (const DWORD stored : {1, 5})
    {
        Store(stored);
        ShowWith({Navigation("a", 3)},
                 [&](HWND dialog)
                 {
                     EXPECT_FALSE(::IsWindowVisible(Disclaimer(dialog)));
                     EXPECT_TRUE(IsChecked(dialog));
                     without = PlaceOf(dialog).Height();
                 });
        EXPECT_GE(with - without, height) << stored;
    }
    Store(0);
    ShowWith({Navigation("a", 3)},
             [&](HWND dialog)
             {
                 EXPECT_TRUE(::IsWindowVisible(Disclaimer(dialog)));
                 EXPECT_EQ(with, PlaceOf(dialog).Height());
             });
}

TEST_F(StartupDialog, OkStoresTheCheckBox)
{
    CStartupDlg dialog("Testplane", nullptr, nullptr, 0, nullptr, nullptr);
    EXPECT_EQ(IDOK, Show(
                        dialog,
                        [](HWND window)
                        {
                            ::SendDlgItemMessageA(window, IDC_VORN_STARTUP_HIDE, BM_CLICK, 0, 0);
                            EXPECT_TRUE(::IsWindowVisible(Disclaimer(window))) << "it stays until the next start";
                        },
                        IDOK));
    EXPECT_EQ(1U, Stored());
    EXPECT_EQ(IDOK, Show(
                        dialog, [](HWND) {}, IDOK));
    EXPECT_EQ(1U, Stored()) << "confirming without a look does not bring the disclaimer back";
    EXPECT_EQ(IDOK, Show(
                        dialog,
                        [](HWND window)
                        {
                            EXPECT_TRUE(IsChecked(window));
                            ::SendDlgItemMessageA(window, IDC_VORN_STARTUP_HIDE, BM_CLICK, 0, 0);
                        },
                        IDOK));
    EXPECT_EQ(0U, Stored());
}

TEST_F(StartupDialog, CancelEscapeAndTheCloseBoxStoreNothing)
{
    const auto check = [](HWND window)
    {
        ::SendDlgItemMessageA(window, IDC_VORN_STARTUP_HIDE, BM_CLICK, 0, 0);
    };
    CStartupDlg dialog("Testplane", nullptr, nullptr, 0, nullptr, nullptr);
    EXPECT_EQ(IDCANCEL, Show(dialog, check));
    EXPECT_EQ(std::nullopt, Stored());
    EXPECT_EQ(IDCANCEL, Show(
                            dialog,
                            [&](HWND window)
                            {
                                check(window);
                                ::PostMessageA(::GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
                            },
                            0));
    EXPECT_EQ(std::nullopt, Stored());
    EXPECT_EQ(IDCANCEL, Show(
                            dialog,
                            [&](HWND window)
                            {
                                check(window);
                                ::PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
                            },
                            0));
    EXPECT_EQ(std::nullopt, Stored());
}

TEST_F(StartupDialog, OkHasTheFocusAndTheDisclaimerItsBeginning)
{
    ShowWith({},
             [](HWND dialog)
             {
                 EXPECT_EQ(::GetDlgItem(dialog, IDOK), ::GetFocus());
                 EXPECT_EQ(0, ::SendMessageA(Disclaimer(dialog), EM_GETFIRSTVISIBLELINE, 0, 0));
                 EXPECT_NE(0, ::GetWindowLongA(Disclaimer(dialog), GWL_STYLE) & ES_READONLY);
             });
}

TEST_F(StartupDialog, ExpiryLinesHaveTheColoursOfTheirDates)
{
    ShowWith({Navigation("a", 3), Navigation("b", -1), Terminal("c", 3), Terminal("d", -1), Terminal("e", -7)},
             [](HWND dialog)
             {
                 const std::vector<ShownText> lines = ShownIn(dialog, "Static");
                 ASSERT_EQ(15U, lines.size());
                 constexpr COLORREF kRed = 255;
                 constexpr COLORREF kLate = 0x2222B2;
                 const std::vector<COLORREF> expected = {0, kRed, 0, kLate, kRed};
                 for (std::size_t i = 0; i < lines.size(); ++i)
                 {
                     EXPECT_EQ(i % 3 == 2 ? expected[i / 3] : ::GetSysColor(COLOR_WINDOWTEXT), ColorOf(lines[i].window))
                         << lines[i].text;
                 }
                 EXPECT_EQ(::GetSysColor(COLOR_WINDOWTEXT), ColorOf(::GetDlgItem(dialog, IDC_VORN_STARTUP_COPYRIGHT)));
             });
}

TEST_F(StartupDialog, TheTitleIsBoldAndHalfAsHighAgain)
{
    ShowWith({},
             [](HWND dialog)
             {
                 const auto fontOf = [dialog](int id)
                 {
                     LOGFONTA font{};
                     const LRESULT handle = ::SendDlgItemMessageA(dialog, id, WM_GETFONT, 0, 0);
                     ::GetObjectA(reinterpret_cast<HGDIOBJ>(handle), sizeof font, &font);
                     return font;
                 };
                 const LOGFONTA title = fontOf(IDC_VORN_STARTUP_TITLE);
                 const LOGFONTA text = fontOf(IDC_VORN_STARTUP_COPYRIGHT);
                 EXPECT_EQ(FW_BOLD, title.lfWeight);
                 EXPECT_EQ(text.lfHeight * 3 / 2, title.lfHeight);
                 EXPECT_STREQ(text.lfFaceName, title.lfFaceName);
             });
}

TEST_F(StartupDialog, LeavesNothingBehindHoweverOftenItRuns)
{
    std::vector<CStartupDlg::DataInfo> records = {Navigation("a", 3), Terminal("b", -1)};
    CStartupDlg dialog("Testplane", nullptr, records.data(), 2, nullptr, nullptr);
    std::vector<std::string> first;
    unsigned objects = 0;
    constexpr int kOpenings = 60;
    constexpr int kSettled = 10; // the system keeps some objects of its first dialogs
    for (int i = 0; i < kOpenings; ++i)
    {
        Show(dialog,
             [&](HWND window)
             {
                 first = i == 0 ? LinesOf(window) : first;
                 EXPECT_EQ(first, LinesOf(window));
                 EXPECT_EQ(2U, GroupsOf(window).size());
             });
        EXPECT_EQ(nullptr, dialog.m_hWnd);
        objects = i == kSettled ? CountGdiObjects() : objects;
    }
    EXPECT_LE(CountGdiObjects(), objects);
}

TEST_F(StartupDialog, EndsWellWhenItsWindowIsDestroyedFromOutside)
{
    CStartupDlg::DataInfo record = Navigation("a", 3);
    CStartupDlg dialog("Testplane", nullptr, &record, 1, nullptr, nullptr);
    EXPECT_EQ(-1, Show(
                      dialog,
                      [](HWND window)
                      {
                          ::DestroyWindow(window);
                      },
                      0));
    EXPECT_EQ(IDCANCEL, Show(dialog,
                             [](HWND window)
                             {
                                 EXPECT_EQ(3U, LinesOf(window).size());
                             }));
}

} // namespace vorn::test
