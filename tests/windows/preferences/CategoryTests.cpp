#include "tests/support/DialogDriver.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/PutCursor.h"
#include "tests/windows/preferences/PreferencesTest.h"

#include "apps/sample/preferences/MessagesCategory.h"
#include "apps/sample/preferences/ProxyDialog.h"

// What each category changes: the stored values, and the library's functions that go by them.
namespace vorn::test
{
namespace
{

class PreferenceValues : public PreferencesTest
{
protected:
    void OpenAt(const char* path)
    {
        Open();
        Choose(path);
    }
};

TEST_F(PreferenceValues, TipsGoAndComeAtOnce)
{
    Open();
    ToolTipCtrlEx& tips = Dialog().GetToolTipCtrl();
    CWnd& control = *Dialog().GetDlgItem(IDC_OPT_START);
    const auto point = [&]
    {
        CRect place;
        control.GetWindowRect(&place);
        PutCursor(place.CenterPoint());
        MSG move{};
        move.hwnd = control;
        move.message = WM_MOUSEMOVE;
        move.pt = place.CenterPoint();
        tips.RelayEvent(&move);
    };
    const auto isShown = [&]
    {
        return tips.IsWindowVisible() != FALSE;
    };
    point();
    ASSERT_TRUE(PumpUntil(isShown));
    Click(IDC_OPT_TIPS);
    point();
    Press(IDC_OPT_APPLY);
    EXPECT_FALSE(isShown());
    EXPECT_EQ(Stored(), "General\\Show Dialog Tips=0\n");
    Click(IDC_OPT_TIPS);
    Press(IDC_OPT_APPLY);
    EXPECT_EQ(Stored(), "General\\Show Dialog Tips=1\n");
    PutCursor({0, 0});
    MSG away{};
    away.hwnd = Dialog();
    away.message = WM_MOUSEMOVE;
    tips.RelayEvent(&away);
    point();
    EXPECT_TRUE(PumpUntil(isShown));
    PutCursor({0, 0});
}

TEST_F(PreferenceValues, TheStartupDialogFindsItsSwitches)
{
    Open();
    Click(IDC_OPT_START);
    Click(IDC_OPT_DISCLAIMER);
    Press(IDOK);
    EXPECT_EQ(Stored(), "Startup\\NoDisclaimer=1\nStartup\\ShowDialog=0\n");
    EXPECT_EQ(AfxGetApp()->GetProfileInt("Startup", "NoDisclaimer", 0), 1U);
    Open();
    EXPECT_FALSE(Dialog().IsDlgButtonChecked(IDC_OPT_DISCLAIMER));
    EXPECT_FALSE(Dialog().IsDlgButtonChecked(IDC_OPT_START));
    EXPECT_TRUE(Dialog().IsDlgButtonChecked(IDC_OPT_TIPS));
}

TEST_F(PreferenceValues, OneUnitIsStoredAndInForceAtOnce)
{
    OpenAt("Units");
    Select(IDC_OPT_UNIT + 1, gUnitInfo[UNIT_KM][0]);
    Press(IDOK);
    EXPECT_EQ(Stored(), "Units\\Distance=2\n");
    EXPECT_EQ(m_changes, 1);
    EXPECT_EQ(GetConversionBoy()->Str(100, UNITTYPE_DISTANCE, 1, UNIT_AUTO, UNIT_AUTO, -1.0), "185.2 KM");
}

TEST_F(PreferenceValues, AllUnitsGoMetricAndBack)
{
    OpenAt("Units");
    Click(IDC_OPT_METRIC);
    EXPECT_EQ(TextOf(IDC_OPT_UNIT_EXAMPLE),
              "For example 278 KM at 222 KPH, 1981 M, 114 L, 1043 KG, 15 \xB0\x43, 1013 hPa");
    Press(IDC_OPT_APPLY);
    EXPECT_EQ(Stored(), "Units\\Distance=2\nUnits\\Fuel=10\nUnits\\Mass=12\nUnits\\Pressure=18\nUnits\\ShortDist=4\n"
                        "Units\\Speed=7\nUnits\\Temp=14\n");
    EXPECT_EQ(GetConversionBoy()->Unit(UNITTYPE_TEMPERATURE), UNIT_C);
    Click(IDC_OPT_STANDARD);
    Press(IDOK);
    EXPECT_EQ(Stored(), "Units\\Distance=0\nUnits\\Fuel=-1\nUnits\\Mass=11\nUnits\\Pressure=17\nUnits\\ShortDist=3\n"
                        "Units\\Speed=5\nUnits\\Temp=13\n");
    EXPECT_EQ(GetConversionBoy()->Unit(UNITTYPE_FUEL), UNIT_AUTO);
}

TEST_F(PreferenceValues, PositionsAreWrittenAsChosen)
{
    OpenAt("Units|Positions");
    EXPECT_FALSE(Dialog().GetDlgItem(IDC_OPT_SECOND_DECIMALS)->IsWindowEnabled());
    Click(IDC_OPT_SECONDS);
    EXPECT_TRUE(Dialog().GetDlgItem(IDC_OPT_SECOND_DECIMALS)->IsWindowEnabled());
    EXPECT_FALSE(Dialog().GetDlgItem(IDC_OPT_MINUTE_DECIMALS)->IsWindowEnabled());
    EXPECT_EQ(TextOf(IDC_OPT_POSITION_EXAMPLE), "For example N 47\xB0 30' 00.0  W122\xB0 15' 00.0");
    Type(IDC_OPT_SECOND_DECIMALS, "2");
    EXPECT_EQ(TextOf(IDC_OPT_POSITION_EXAMPLE), "For example N 47\xB0 30' 00.00  W122\xB0 15' 00.00");
    EXPECT_EQ(LatToString(47.5), "N 47\xB0 30.0'") << "not yet";
    Press(IDOK);
    EXPECT_EQ(Stored(), "General\\LatLonPrecSeconds=2\nGeneral\\Show seconds=1\n");
    EXPECT_EQ(LatToString(47.5), "N 47\xB0 30' 00.00");
    OpenAt("Units|Positions");
    Click(IDC_OPT_SECONDS);
    Type(IDC_OPT_MINUTE_DECIMALS, "3");
    Press(IDOK);
    EXPECT_EQ(LonToString(-122.5), "W122\xB0 30.000'");
}

TEST_F(PreferenceValues, TheArrowsChangeDecimalsWithinTheirRange)
{
    OpenAt("Units|Positions");
    CWnd& spin = *Dialog().GetDlgItem(IDC_OPT_MINUTE_DECIMALS_SPIN);
    int least = -1;
    int most = -1;
    spin.SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&least), reinterpret_cast<LPARAM>(&most));
    EXPECT_EQ(least, 0);
    EXPECT_EQ(most, 4);
    CWnd& field = *Dialog().GetDlgItem(IDC_OPT_MINUTE_DECIMALS);
    field.SetFocus();
    field.SendMessage(WM_KEYDOWN, VK_UP);
    field.SendMessage(WM_KEYUP, VK_UP);
    EXPECT_EQ(TextOf(IDC_OPT_MINUTE_DECIMALS), "2");
    EXPECT_TRUE(Dialog().GetDlgItem(IDC_OPT_APPLY)->IsWindowEnabled());
}

TEST_F(PreferenceValues, TooManyDecimalsAreRefused)
{
    OpenAt("Units|Positions");
    for (const char* const text : {"5", "77", ""})
    {
        Type(IDC_OPT_MINUTE_DECIMALS, text);
        Press(IDOK);
        EXPECT_TRUE(IsOpen()) << text;
        EXPECT_EQ(RefusalText(), "The number of decimals is a whole number from 0 to 4.");
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_OPT_MINUTE_DECIMALS);
    }
    EXPECT_EQ(Stored(), "");
}

TEST_F(PreferenceValues, FlightLevelsBeginWhereTheUserSays)
{
    OpenAt("Units|Altitudes");
    EXPECT_EQ(TextOf(IDC_OPT_LEVEL_EXAMPLE), "For example 17900 FT, then FL180");
    Type(IDC_OPT_LEVEL, "5,000");
    EXPECT_EQ(TextOf(IDC_OPT_LEVEL_EXAMPLE), "For example 4900 FT, then FL050");
    Press(IDOK);
    EXPECT_EQ(Stored(), "Altitude\\Flight Level=5000\n");
    EXPECT_EQ(FLAltToString(5000), "FL050");
    EXPECT_EQ(FLAltToString(4900), "4900 FT");
}

TEST_F(PreferenceValues, AltitudesThatAreNoneAreRefused)
{
    OpenAt("Units|Altitudes");
    for (const char* const text : {"", "-100", "100001", "FL50", "5000.5"})
    {
        Type(IDC_OPT_LEVEL, text);
        EXPECT_EQ(TextOf(IDC_OPT_LEVEL_EXAMPLE), "") << text;
        Press(IDOK);
        EXPECT_TRUE(IsOpen()) << text;
        EXPECT_NE(RefusalText(), "") << text;
    }
    EXPECT_EQ(Stored(), "");
}

TEST_F(PreferenceValues, AFolderIsStoredAndInForceAtOnce)
{
    OpenAt("General|Folders");
    const CString installed = PathMgr::Instance("PreferencesTests")->GetPathInst(DP_CHARTS, "PreferencesTests");
    EXPECT_EQ(TextOf(IDC_OPT_FOLDER + 5), installed.GetString());
    Type(IDC_OPT_FOLDER + 5, "D:/My charts");
    EXPECT_TRUE(Dialog().IsDlgButtonChecked(IDC_OPT_FOLDER + 4)) << "the line with the focus is marked";
    EXPECT_FALSE(Dialog().IsDlgButtonChecked(IDC_OPT_FOLDER));
    Press(IDC_OPT_APPLY);
    EXPECT_EQ(Stored(), "Paths\\Charts Path=D:\\My charts\\\n");
    EXPECT_EQ(PathMgr::Instance()->GetPathInst(DP_CHARTS, "PreferencesTests"), "D:\\My charts\\");
    EXPECT_EQ(PathMgr::Instance()->GetPathInst(DP_APPROACH, "PreferencesTests"), "D:\\My charts\\Approach\\");
    Click(IDC_OPT_FOLDER_RESET);
    EXPECT_EQ(TextOf(IDC_OPT_FOLDER + 5), installed.GetString());
    Press(IDC_OPT_APPLY);
    EXPECT_EQ(Stored(), "");
    EXPECT_EQ(PathMgr::Instance()->GetPathInst(DP_CHARTS, "PreferencesTests"), installed);
}

TEST_F(PreferenceValues, AFolderThatIsNoneIsRefused)
{
    OpenAt("General|Folders");
    for (const char* const text : {"Charts", "", "C:\\a?b", "1:\\"})
    {
        Type(IDC_OPT_FOLDER + 3, text);
        Press(IDOK);
        EXPECT_TRUE(IsOpen()) << text;
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_OPT_FOLDER + 3);
        EXPECT_NE(RefusalText(), "") << text;
    }
    EXPECT_EQ(Stored(), "");
}

TEST_F(PreferenceValues, TheColorSetTakesEffectAtOnce)
{
    OpenAt("Chart");
    EXPECT_EQ(TextOf(IDC_OPT_COLOR_SET), "Day");
    Select(IDC_OPT_COLOR_SET, "Night");
    EXPECT_FALSE(IsNightVision()) << "not yet";
    Press(IDC_OPT_APPLY);
    EXPECT_TRUE(IsNightVision());
    EXPECT_EQ(Stored(), "Chart\\Night=1\n");
    Select(IDC_OPT_COLOR_SET, "Dusk");
    Press(IDOK);
    EXPECT_EQ(ColorContext::Instance()->GetCurrentState(), COLORSTATE_DUSK);
    EXPECT_EQ(Stored(), "Chart\\Night=2\n");
    OpenAt("Chart");
    EXPECT_EQ(TextOf(IDC_OPT_COLOR_SET), "Dusk");
}

TEST_F(PreferenceValues, NightFactorsAreStoredAsTextsOfTheLibrary)
{
    EXPECT_EQ(MakeNightVision(RGB(200, 100, 50)), 0x02000000 | RGB(80, 40, 20)); // read once, and stored
    OpenAt("Chart|Night");
    EXPECT_EQ(TextOf(IDC_OPT_SCALE + 1), "0.4");
    Type(IDC_OPT_SCALE + 1, "0.50");
    Type(IDC_OPT_SCALE + 5, "0");
    Press(IDOK);
    EXPECT_EQ(Stored(), "Colors\\NVBlueScale=0\nColors\\NVGreenScale=0.4\nColors\\NVRedScale=0.5\n");
    EXPECT_EQ(MakeNightVision(RGB(200, 100, 50)), 0x02000000 | RGB(100, 40, 0)) << "at once";
}

TEST_F(PreferenceValues, FactorsThatAreNoneAreRefused)
{
    OpenAt("Chart|Night");
    for (const char* const text : {"1.5", "", "red", "-0.1"})
    {
        Type(IDC_OPT_SCALE + 3, text);
        Press(IDOK);
        EXPECT_TRUE(IsOpen()) << text;
        EXPECT_EQ(RefusalText(), "A factor is a number from 0 to 1, such as 0.4.") << text;
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_OPT_SCALE + 3);
    }
    EXPECT_EQ(Stored(), "");
}

TEST_F(PreferenceValues, StatisticsAreClearedWithApply)
{
    OpenAt("General|Statistics");
    EXPECT_EQ(TextOf(IDC_OPT_STATISTICS), "Program starts: 12");
    EXPECT_EQ(TextOf(IDC_OPT_STATISTICS_NOTE), "");
    Click(IDC_OPT_STATISTICS_CLEAR);
    EXPECT_EQ(TextOf(IDC_OPT_STATISTICS_NOTE), "All counters begin anew with OK or Apply.");
    EXPECT_EQ(m_clearings, 0);
    Press(IDC_OPT_APPLY);
    EXPECT_EQ(m_clearings, 1);
    EXPECT_EQ(TextOf(IDC_OPT_STATISTICS), "Program starts: 0");
    EXPECT_EQ(TextOf(IDC_OPT_STATISTICS_NOTE), "");
    Press(IDOK);
    EXPECT_EQ(m_clearings, 1);
}

bool ComesUp(const std::function<void()>& show)
{
    DialogDriver driver(
        []
        {
            const HWND log = FindDialog("Message Log");
            if (log != nullptr)
                PostMessage(log, WM_COMMAND, IDOK, 0);
            return log != nullptr;
        });
    show();
    return driver.IsDone();
}

TEST_F(PreferenceValues, TheLogComesUpForWhatTheUserWantsToSee)
{
    OpenAt("General|Messages");
    EXPECT_EQ(TextOf(IDC_OPT_DETAIL), "Errors");
    Select(IDC_OPT_DETAIL, "Errors and warnings");
    Press(IDC_OPT_APPLY);
    EXPECT_EQ(Stored(), "Log\\Detail=2\n");
    VornCommonLog::Instance()->LogMsg("A warning", LOG_WARNING);
    EXPECT_TRUE(ComesUp(
        []
        {
            VornCommonLog::Instance()->DisplayLog(LOG_WARNING, false);
        }));
    VornCommonLog::Instance()->DisplayLog(LOG_INFO, false); // would not return
    VornCommonLog::FreeInstance();
    preferences::ApplyLogDetail(); // as at the next start
    EXPECT_TRUE(ComesUp(
        []
        {
            VornCommonLog::Instance()->DisplayLog(LOG_WARNING, false);
        }));
}

TEST_F(PreferenceValues, TheLogIsShownAndEmptiedFromHere)
{
    VornCommonLog::Instance()->LogMsg("Something happened", LOG_INFO);
    OpenAt("General|Messages");
    EXPECT_TRUE(ComesUp(
        [this]
        {
            Click(IDC_OPT_LOG_SHOW);
        }));
    Click(IDC_OPT_LOG_CLEAR);
    char* text = nullptr;
    EXPECT_EQ(VornCommonLog::Instance()->GetLog(text), 0);
    delete[] text;
    EXPECT_FALSE(Dialog().GetDlgItem(IDC_OPT_APPLY)->IsWindowEnabled()) << "nothing to store";
}

TEST_F(PreferenceValues, ProxiesAreEditedInTheirDialogWithTips)
{
    OpenAt("Network");
    int tips = 0;
    bool isTyped = false;
    const DialogDriver driver(
        [&]
        {
            const HWND window = FindDialog("Proxy Settings");
            if (window == nullptr)
                return false;
            auto& dialog = *static_cast<preferences::ProxyDialog*>(CWnd::FromHandlePermanent(window));
            for (UINT id = IDC_VORN_PROXY_LIST; id <= IDC_VORN_PROXY_DELETE; ++id)
            {
                CString text;
                dialog.Tips().GetText(text, dialog.GetDlgItem(static_cast<int>(id)), id);
                tips += text.IsEmpty() ? 0 : 1;
            }
            SendMessage(window, WM_COMMAND, IDC_VORN_PROXY_ADD, 0);
            SetDlgItemText(window, IDC_VORN_PROXY_HOST, "hangar.example");
            isTyped = true;
            PostMessage(window, WM_COMMAND, IDOK, 0);
            return true;
        });
    Click(IDC_OPT_PROXIES);
    EXPECT_TRUE(isTyped);
    EXPECT_EQ(tips, 9);
    ProxySet set;
    ASSERT_EQ(LoadProxies(set), 1);
    EXPECT_STREQ(set.GetAt(0)->mAddress.mpHost, "hangar.example");
    EXPECT_EQ(set.GetAt(0)->mAddress.mPort, 8080);
    char line[80] = {};
    Dialog().GetDlgItem(IDC_OPT_PROXY_LIST)->SendMessage(LB_GETTEXT, 0, reinterpret_cast<LPARAM>(line));
    EXPECT_STREQ(line, "hangar.example:8080");
    EXPECT_EQ(Stored(), "") << "proxies are the whole family's";
}

} // namespace
} // namespace vorn::test
