#include "aviation/ConversionBoy.h"
#include "config/AppRegMgr.h"
#include "frame/VornCommonApp.h"
#include "framework/include/afxdlgs.h"
#include "framework/include/afxwin.h"
#include "tests/support/TestPrinter.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vorn::test;

namespace
{
/// An application with nothing but its name: no start-up ran.
class HostApp : public CWinApp, public VornCommonApp
{
public:
    explicit HostApp(const char* name) : CWinApp(name)
    {
    }
};

class PlainView : public CView
{
public:
    PlainView() = default;

protected:
    void OnDraw(CDC*) override
    {
    }
};

class RegisteredHost : public testing::Test
{
protected:
    RegisteredHost()
    {
        AppRegMgr::FreeInst();
        CleanUp();
        m_app = std::make_unique<HostApp>(m_name.c_str());
        VornCommonApp::Inst(m_app.get());
    }
    ~RegisteredHost() override
    {
        VornCommonApp::FreeInst();
        AppRegMgr::FreeInst();
        CleanUp();
    }

    VornCommonApp& App()
    {
        return *VornCommonApp::Inst();
    }

    /// The registry's own view of a number of the host.
    DWORD Stored(const char* section, const char* key)
    {
        DWORD value = 0xDEAD;
        DWORD size = sizeof value;
        RegGetValueA(HKEY_CURRENT_USER, (KeyPath() + '\\' + section).c_str(), key, RRF_RT_REG_DWORD, nullptr, &value,
                     &size);
        return value;
    }

    std::string StoredText(const char* section, const char* key)
    {
        char value[200] = "(none)";
        DWORD size = sizeof value;
        RegGetValueA(HKEY_CURRENT_USER, (KeyPath() + '\\' + section).c_str(), key, RRF_RT_REG_SZ, nullptr, value,
                     &size);
        return value;
    }

private:
    std::string KeyPath() const
    {
        return "Software\\Vornwald\\" + m_name;
    }
    void CleanUp() const
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, KeyPath().c_str());
    }

    std::string m_name = "VornTestHost" + std::to_string(GetCurrentProcessId());
    std::unique_ptr<HostApp> m_app;
};
} // namespace

TEST_F(RegisteredHost, IsOneForTheChartLibraryAndThisOne)
{
    VornCommonApp* app = &App();
    EXPECT_EQ(VornChartApp::Inst(), app);
    VornCommonApp::FreeInst();
    EXPECT_EQ(VornCommonApp::Inst(), nullptr);
    EXPECT_EQ(VornChartApp::Inst(), nullptr);
    VornChartApp::Inst(app);
    EXPECT_EQ(VornCommonApp::Inst(), app);
}

TEST_F(RegisteredHost, OwnsTheUnitConverter)
{
    ASSERT_NE(App().GetConversionBoy(), nullptr);
    EXPECT_EQ(GetConversionBoy(), App().GetConversionBoy());
    VornCommonApp::FreeInst();
    EXPECT_EQ(GetConversionBoy(), nullptr);
}

TEST_F(RegisteredHost, LeavesTheUnitConverterAlive)
{
    ConversionBoy* kept = nullptr;
    {
        HostApp another("VornTestAnother");
        kept = another.GetConversionBoy();
    }
    EXPECT_EQ(kept->Unit(UNITTYPE_SPEED), App().GetConversionBoy()->Unit(UNITTYPE_SPEED));
}

TEST_F(RegisteredHost, KeepsItsSettingsUnderItsName)
{
    App().WriteSettingInt("General", "Show seconds", 1);
    App().WriteSettingString("General", "Name", "Denver");
    EXPECT_EQ(Stored("General", "Show seconds"), 1u);
    EXPECT_EQ(StoredText("General", "Name"), "Denver");
    EXPECT_EQ(App().GetSettingInt("General", "Show seconds", 7), 1);
    EXPECT_STREQ(App().GetSettingString("General", "Name", ""), "Denver");
    EXPECT_EQ(App().GetSettingInt("General", "Absent", 7), 7);
    EXPECT_STREQ(App().GetSettingString("General", "Absent", "d"), "d");
    EXPECT_STREQ(App().GetSettingString("General", "Absent", nullptr), "");
}

TEST_F(RegisteredHost, DeletesSettingsByNull)
{
    App().WriteSettingString("General", "Name", "Denver");
    App().WriteSettingString("General", "Name", nullptr);
    EXPECT_EQ(StoredText("General", "Name"), "(none)");
    App().WriteSettingString("General", "Name", "Denver");
    App().WriteSettingString("General", nullptr, nullptr);
    EXPECT_STREQ(App().GetSettingString("General", "Name", "gone"), "gone");
}

TEST_F(RegisteredHost, TakesNullTextsWithoutHarm)
{
    EXPECT_STREQ(App().GetSettingString(nullptr, nullptr, nullptr), "");
    EXPECT_EQ(App().GetSettingInt(nullptr, nullptr, 3), 3);
    App().WriteSettingString(nullptr, nullptr, nullptr);
    App().WriteSettingInt(nullptr, nullptr, 3);
}

TEST_F(RegisteredHost, IsNeitherTrialNorBeta)
{
    EXPECT_EQ(App().IsTrial(), FALSE);
    EXPECT_EQ(App().IsBeta(), FALSE);
}

TEST_F(RegisteredHost, PreparesNoPrintingWithoutAView)
{
    EXPECT_FALSE(App().OnPreparePrinting(nullptr, nullptr));
}

TEST_F(RegisteredHost, LeavesThePreparationOfPrintingToTheView)
{
    const TestPrinter printer;
    ASSERT_TRUE(printer.Works());
    PlainView view;
    CPrintInfo job;
    job.m_bDirect = TRUE; // the default printer, without asking
    EXPECT_TRUE(App().OnPreparePrinting(&view, &job));
    EXPECT_NE(job.m_pPD->m_pd.hDC, nullptr);
}

TEST_F(RegisteredHost, PreparesNoPrintingWhereTheViewFails)
{
    PlainView view;
    EXPECT_FALSE(App().OnPreparePrinting(&view, nullptr)); // a view prepares nothing without a job
}

TEST_F(RegisteredHost, DrawsTokensWhateverTheirCase)
{
    EXPECT_STREQ(App().GetVornGlyph("KTS"), "\xC5");
    EXPECT_STREQ(App().GetVornGlyph("kts"), "\xC5");
    EXPECT_STREQ(App().GetVornGlyph("Kts"), "\xC5");
    EXPECT_STREQ(App().GetVornGlyph("->"), "\xDA");
    EXPECT_STREQ(App().GetVornGlyph("/min"), "\xD8");
    EXPECT_STREQ(App().GetVornGlyph(":"), ":");
    EXPECT_STREQ(App().GetVornGlyph("7"), "7");
}

TEST_F(RegisteredHost, DrawsNothingForUnknownTokens)
{
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_STREQ(App().GetVornGlyph("XYZ"), "");
        EXPECT_STREQ(App().GetVornGlyph(""), "");
        EXPECT_STREQ(App().GetVornGlyph(" KTS"), "");
        EXPECT_STREQ(App().GetVornGlyph("KTS "), "");
        EXPECT_STREQ(App().GetVornGlyph("\xE4"), "");
        EXPECT_STREQ(App().GetVornGlyph(CString('k', 5000)), "");
    }
    EXPECT_STREQ(App().GetVornGlyph("NM"), "\xC0");
}

TEST_F(RegisteredHost, DrawsEveryTokenOfTheTable)
{
    // The table of the font, code by code from B0 and from C0 on.
    const char* const upper[] = {"NM",  "SM", "KM",   "FT", "M",  "KTS", "MPH",  "KPH", "MPS", "GAL", "L",
                                 "LBS", "KG", "IN",   "YD", "CM", "MM",  "CRS",  "BRG", "TRK", "DTK", "MSL",
                                 "AGL", "FL", "/MIN", "<-", "->", "UP",  "DOWN", "ETE", "ETA", "AM",  "PM"};
    for (std::size_t i = 0; i < std::size(upper); ++i)
    {
        EXPECT_EQ(App().GetVornGlyph(upper[i]), CString(static_cast<char>(0xC0 + i))) << upper[i];
    }
    EXPECT_EQ(App().GetVornGlyph("deg"), CString('\xB0'));
    EXPECT_EQ(App().GetVornGlyph("vfrwp"), CString('\xB1'));
    EXPECT_EQ(App().GetVornGlyph("left"), "l");
    EXPECT_EQ(App().GetVornGlyph("right"), "r");
    EXPECT_EQ(App().GetVornGlyph("vorn"), "B");
    EXPECT_EQ(App().GetVornGlyph("north"), "n");
    EXPECT_EQ(App().GetVornGlyph("reg"), "R");
    for (const char c : std::string(":()-.0123456789<>="))
    {
        EXPECT_EQ(App().GetVornGlyph(CString(c)), CString(c)) << c;
    }
}

TEST_F(RegisteredHost, LeavesTheCallersTokenAlone)
{
    const CString token = "kts";
    EXPECT_STREQ(App().GetVornGlyph(token), "\xC5");
    EXPECT_STREQ(token, "kts");
}

TEST(HostName, IsTheExecutablesWithoutApplicationObject)
{
    AppRegMgr::FreeInst();
    ASSERT_EQ(AfxGetApp(), nullptr);
    EXPECT_EQ(AppRegMgr::Instance()->GetAppRegIndex("windows_frame_app_tests"), 0);
    AppRegMgr::FreeInst();
}

TEST(HostName, IsTheExecutablesWhenTheApplicationHasNoNameYet)
{
    AppRegMgr::FreeInst();
    const CWinApp nameless;
    EXPECT_EQ(AppRegMgr::Instance()->GetAppRegIndex("windows_frame_app_tests"), 0);
    AppRegMgr::FreeInst();
}

TEST(HostName, IsTheApplications)
{
    AppRegMgr::FreeInst();
    const CWinApp named("VornTestNamed");
    EXPECT_EQ(AppRegMgr::Instance()->GetAppRegIndex("VornTestNamed"), 0);
    AppRegMgr::FreeInst();
}

TEST(WithoutHost, NothingIsFoundAndNothingBreaks)
{
    VornCommonApp::FreeInst();
    EXPECT_EQ(VornCommonApp::Inst(), nullptr);
    EXPECT_EQ(GetConversionBoy(), nullptr);
}

TEST(ApplicationSlots, StandInOrder)
{
    // The destructor takes the first two, the locks the third.
    EXPECT_EQ(SlotOf(&VornCommonApp::OnPreparePrinting), 3);
    EXPECT_EQ(SlotOf(&VornCommonApp::GetVornGlyph), 4);
    EXPECT_EQ(SlotOf(&VornCommonApp::IsTrial), 5);
    EXPECT_EQ(SlotOf(&VornCommonApp::GetSettingString), 6);
    EXPECT_EQ(SlotOf(&VornCommonApp::WriteSettingString), 7);
    EXPECT_EQ(SlotOf(&VornCommonApp::GetSettingInt), 8);
    EXPECT_EQ(SlotOf(&VornCommonApp::WriteSettingInt), 9);
    EXPECT_EQ(SlotOf(&VornCommonApp::IsBeta), 10);
}
