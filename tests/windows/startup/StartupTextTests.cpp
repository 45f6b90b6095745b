#include "tests/windows/startup/StartupFixture.h"

#include "tests/windows/startup/resource.h"
#include "toolkit/startup/StartupIds.h"

#include <limits>

namespace vorn::test
{

namespace
{

using Lines = std::vector<std::string>;

std::string With(const char* label, const CString& date)
{
    return label + std::string(date.GetString());
}

/// Text of one of the dialog's own controls.
std::string Item(HWND dialog, int id)
{
    return TextOf(::GetDlgItem(dialog, id));
}

void ExpectTitleAndCaption(LPCSTR name, const char* title, const char* caption)
{
    CStartupDlg dialog(name, nullptr, nullptr, 0, nullptr, nullptr);
    int seen = 0;
    struct Open : StartupDialog
    {
        using StartupDialog::Show;
        void TestBody() override
        {
        }
    };
    Open::Show(
        dialog,
        [&](HWND window)
        {
            ++seen;
            EXPECT_EQ(title, Item(window, IDC_VORN_STARTUP_TITLE));
            EXPECT_EQ(caption, TextOf(window));
        },
        IDCANCEL, caption);
    EXPECT_EQ(1, seen);
}

} // namespace

TEST_F(StartupDialog, WelcomesToTheApplication)
{
    ExpectTitleAndCaption("Testplane", "Welcome to Testplane", "Testplane (1990-2004)");
    ExpectTitleAndCaption("Mapvane", "Welcome to Mapvane", "Mapvane (1990-2004)");
    ExpectTitleAndCaption("Mapvane Pro", "Welcome to Mapvane Pro", "Mapvane Pro (1990-2004)");
    ExpectTitleAndCaption(nullptr, "Welcome to Application name goes here", "Application name goes here (1990-2004)");
    ExpectTitleAndCaption("", "Welcome to ", " (1990-2004)");
    ExpectTitleAndCaption("Rock & Roll", "Welcome to Rock & Roll", "Rock & Roll (1990-2004)");
}

TEST_F(StartupDialog, ComesFromTheLibraryWhateverTheHostHasUnderItsNumbers)
{
    ASSERT_NE(nullptr, ::FindResourceA(nullptr, MAKEINTRESOURCEA(IDD_HOSTS_OWN), MAKEINTRESOURCEA(5)));
    ShowWith({},
             [](HWND dialog)
             {
                 EXPECT_EQ(nullptr, ::GetDlgItem(dialog, IDC_HOSTS_OWN));
                 EXPECT_NE(nullptr, ::GetDlgItem(dialog, IDC_VORN_STARTUP_UPDATE));
                 EXPECT_EQ(std::string::npos, Item(dialog, IDC_VORN_STARTUP_DISCLAIMER).find("host's"));
             });
}

TEST_F(StartupDialog, ButtonsAndBoxSayWhatTheyDo)
{
    ShowWith({},
             [](HWND dialog)
             {
                 EXPECT_EQ("Get &Update", Item(dialog, IDC_VORN_STARTUP_UPDATE));
                 EXPECT_EQ("Do &not show the disclaimer again", Item(dialog, IDC_VORN_STARTUP_HIDE));
                 EXPECT_EQ("OK", Item(dialog, IDOK));
             });
}

TEST_F(StartupDialog, CopyrightHasTheYearsGivenOr1990And2004)
{
    ShowWith({},
             [](HWND dialog)
             {
                 EXPECT_EQ("Copyright \xA9 1990-2004 Vornwald. All rights reserved.",
                           Item(dialog, IDC_VORN_STARTUP_COPYRIGHT));
             });
    CStartupDlg::CopyRightData years = {2001, 2026};
    CStartupDlg dialog("Testplane", nullptr, nullptr, 0, nullptr, &years);
    years.first = 1; // it was copied
    Show(
        dialog,
        [](HWND window)
        {
            EXPECT_EQ("Copyright \xA9 2001-2026 Vornwald. All rights reserved.",
                      Item(window, IDC_VORN_STARTUP_COPYRIGHT));
        },
        IDCANCEL, "Testplane (2001-2026)");
}

TEST_F(StartupDialog, DisclaimerNamesTheApplication)
{
    std::string forTestplane;
    std::string forMapvane;
    ShowWith({},
             [&](HWND dialog)
             {
                 forTestplane = Item(dialog, IDC_VORN_STARTUP_DISCLAIMER);
             });
    CStartupDlg mapvane("Mapvane", nullptr, nullptr, 0, nullptr, nullptr);
    Show(
        mapvane,
        [&](HWND window)
        {
            forMapvane = Item(window, IDC_VORN_STARTUP_DISCLAIMER);
        },
        IDCANCEL, "Mapvane (1990-2004)");
    EXPECT_EQ(0U, forMapvane.find("Mapvane is an aid to planning"));
    EXPECT_EQ(0U, forTestplane.find("Testplane is an aid to planning"));
    EXPECT_EQ(std::string::npos, forTestplane.find("Mapvane"));
    for (std::size_t at = 0; (at = forMapvane.find("Mapvane", at)) != std::string::npos;)
    {
        forMapvane.replace(at, 7, "Testplane");
    }
    EXPECT_EQ(forTestplane, forMapvane) << "and nothing else differs";
    const std::string end = "hiding this text does not change it.";
    EXPECT_EQ(forTestplane.size() - end.size(), forTestplane.rfind(end)) << "whole, not cut";
}

TEST_F(StartupDialog, NavigationDataTellsCoverageAndDates)
{
    CStartupDlg::DataInfo valid = Navigation("North America", 12.5);
    CStartupDlg::DataInfo expired = Navigation("Europe", -3);
    ShowWith({valid, expired},
             [&](HWND dialog)
             {
                 EXPECT_EQ(
                     (Lines{"Coverage:      North America", With("Effective:       ", valid.effective.GetNavEffDate()),
                            With("Expires:          ", valid.expiry.GetNavExpDate()), "Coverage:      Europe",
                            With("Effective:       ", expired.effective.GetNavEffDate()),
                            With("Expired:          ", expired.expiry.GetNavExpDate())}),
                     LinesOf(dialog));
                 EXPECT_EQ((Lines{"Navigation data", "Navigation data"}), GroupsOf(dialog));
                 const std::string line = LinesOf(dialog)[5];
                 EXPECT_EQ(" days ago)", line.substr(line.size() - 10));
             });
}

TEST_F(StartupDialog, TerminalDataTellsTheNextUpdate)
{
    CStartupDlg::DataInfo valid = Terminal("Alaska", 2.5);
    CStartupDlg::DataInfo late = Terminal("Canada", -3);
    CStartupDlg::DataInfo expired = Terminal("Mexico", -10);
    expired.kind = 0;
    ShowWith({valid, late, expired},
             [&](HWND dialog)
             {
                 EXPECT_EQ((Lines{"Coverage:      Alaska", With("Effective:       ", valid.effective.GetTermEffDate()),
                                  With("Next Update: ", valid.expiry.GetTermExpDate()), "Coverage:      Canada",
                                  With("Effective:       ", late.effective.GetTermEffDate()),
                                  With("Next Update: ", late.expiry.GetTermExpDate()), "Coverage:      Mexico",
                                  With("Effective:       ", expired.effective.GetTermEffDate()),
                                  With("Next Update: ", expired.expiry.GetTermExpDate())}),
                           LinesOf(dialog));
                 EXPECT_EQ(Lines(3, "Terminal procedures"), GroupsOf(dialog));
                 EXPECT_NE(std::string::npos, LinesOf(dialog)[5].find(" Late: 3.0 days"));
                 EXPECT_NE(std::string::npos, LinesOf(dialog)[8].find(" LATE: 10.0 days"));
             });
}

TEST_F(StartupDialog, WithoutVersionThereAreNoDates)
{
    std::vector<CStartupDlg::DataInfo> records(4, Navigation("Alps", 5));
    records[0].version = 0;
    records[1].version = -0.0F;
    records[2].version = std::numeric_limits<float>::quiet_NaN();
    records[3] = Terminal("Rockies", -5);
    records[3].version = 0;
    ShowWith(records,
             [](HWND dialog)
             {
                 EXPECT_EQ((Lines{"Coverage:      Alps", "Coverage:      Alps", "Coverage:      Alps",
                                  "Coverage:      Rockies"}),
                           LinesOf(dialog));
                 EXPECT_EQ(4U, GroupsOf(dialog).size());
             });
}

TEST_F(StartupDialog, UnsetDatesLeaveLabelsAloneButForTheEpochOfTerminalData)
{
    const CStartupDlg::DataInfo navigation = {1, 1.0F, "", Date(), Date()};
    const CStartupDlg::DataInfo terminal = {7, 1.0F, "", Date(), Date()};
    ShowWith({navigation, terminal},
             [](HWND dialog)
             {
                 EXPECT_EQ((Lines{"Coverage:      ", "Effective:       ", "Expires:          ", "Coverage:      ",
                                  "Effective:       Thursday January 01 1970", "Next Update: "}),
                           LinesOf(dialog));
             });
}

TEST_F(StartupDialog, DatesThatNoCalendarHasLeaveLabelsAlone)
{
    const Date past(CTime(static_cast<__time64_t>(-5)));
    ShowWith({{1, 1.0F, "Atlantis", past, past}, {2, 1.0F, "Atlantis", past, past}},
             [](HWND dialog)
             {
                 EXPECT_EQ((Lines{"Coverage:      Atlantis", "Effective:       ", "Expired:          ",
                                  "Coverage:      Atlantis", "Effective:       ", "Next Update: "}),
                           LinesOf(dialog));
             });
}

TEST_F(StartupDialog, ProductsNameIsReplacedInDataAndLinesToo)
{
    CStringArray lines;
    lines.Add("Mapvane is registered.");
    CStartupDlg::DataInfo record = Navigation("Mapvane tour", 1);
    record.version = 0;
    CStartupDlg dialog("Testplane", nullptr, &record, 1, &lines, nullptr);
    for (int time = 0; time < 2; ++time)
    {
        Show(dialog,
             [](HWND window)
             {
                 EXPECT_EQ((Lines{"Coverage:      Testplane tour", "Testplane is registered."}), LinesOf(window));
             });
    }
}

TEST_F(StartupDialog, NoRecordsForABadCountOrArray)
{
    CStartupDlg::DataInfo record = Navigation("Alps", -5);
    CStartupDlg none("Testplane", nullptr, nullptr, 3, nullptr, nullptr);
    CStartupDlg negative("Testplane", nullptr, &record, -1, nullptr, nullptr);
    for (CStartupDlg* dialog : {&none, &negative})
    {
        EXPECT_FALSE(dialog->isDataExpired());
        Show(*dialog,
             [](HWND window)
             {
                 EXPECT_EQ(nullptr, AreaOf(window));
             });
    }
}

TEST_F(StartupDialog, KeepsItsOwnCopyOfTheRecords)
{
    std::vector<CStartupDlg::DataInfo> records = {Navigation("Alps", 5)};
    CStringArray lines;
    lines.Add("Registered.");
    CStartupDlg dialog("Testplane", nullptr, records.data(), 1, &lines, nullptr);
    records[0].coverage = "Nowhere";
    lines.RemoveAll();
    Show(dialog,
         [](HWND window)
         {
             EXPECT_EQ("Coverage:      Alps", LinesOf(window).front());
             EXPECT_EQ("Registered.", LinesOf(window).back());
         });
}

} // namespace vorn::test
