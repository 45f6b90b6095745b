#include "apps/planner/FuelDialog.h"
#include "apps/planner/resource.h"
#include "tests/support/DialogDriver.h"
#include "tests/windows/gallery/GalleryTest.h"

// What the planner's dialogs compute and keep.
namespace vorn::test
{
namespace
{

class GalleryValues : public GalleryTest
{
protected:
    static std::string TextOf(CWnd& dialog, int id)
    {
        CString text;
        dialog.GetDlgItemText(id, text);
        return text.GetString();
    }
    /// Opens a dialog, has a step done in it, and presses OK.
    void Change(const char* name, const std::function<void(CWnd&)>& step)
    {
        const std::unique_ptr<OpenWindow> open = Open(GalleryWindowNamed(name));
        ASSERT_NE(open, nullptr);
        step(open->Window());
        open->Window().SendMessage(WM_COMMAND, IDOK);
    }
};

TEST_F(GalleryValues, APlanComesBackFromTheSettingsAsItWasStored)
{
    planner::Plan& plan = m_data.plan;
    plan.departure = "KYKM";
    plan.via = "";
    plan.speed = 105.25;
    plan.arms[planner::kBaggage] = 94.125;
    plan.avoidsClassC = true;
    plan.printsChart = false;
    plan.routing = 2;
    plan.margins = {1.5, 2.5, 3.5, 4.5};
    m_data.Store();
    planner::PlannerData again;
    again.Load();
    EXPECT_EQ(again.plan.departure, "KYKM");
    EXPECT_EQ(again.plan.via, "");
    EXPECT_EQ(again.plan.speed, 105.25);
    EXPECT_EQ(again.plan.arms[planner::kBaggage], 94.125);
    EXPECT_TRUE(again.plan.avoidsClassC);
    EXPECT_FALSE(again.plan.printsChart);
    EXPECT_EQ(again.plan.routing, 2);
    EXPECT_EQ(again.plan.margins, (std::array<double, 4>{1.5, 2.5, 3.5, 4.5}));
    EXPECT_EQ(again.plan.header, "Flight plan");
}

TEST_F(GalleryValues, DamagedSettingsLeaveWhatThePlanBeginsWith)
{
    VornCommonApp::Inst()->WriteSettingString("Planner", "Speed", "12x");
    VornCommonApp::Inst()->WriteSettingString("Planner", "Flow", "inf");
    m_data.Load();
    EXPECT_EQ(m_data.plan.speed, 122);
    EXPECT_EQ(m_data.plan.flow, 9.2);
}

TEST_F(GalleryValues, WeightsAddUpWhileTheyAreTyped)
{
    m_data.plan.weights = {1600, 300, 0, 100, 0};
    m_data.plan.arms = {40, 37, 73, 95, 48};
    Change("Weight",
           [](CWnd& dialog)
           {
               EXPECT_EQ(TextOf(dialog, IDC_WEIGHT_ZERO_FUEL), "2000 lb at 42.3 in");
               EXPECT_EQ(TextOf(dialog, IDC_WEIGHT_STATION + 5), "300 lb");
               EXPECT_EQ(TextOf(dialog, IDC_WEIGHT_STATION + 7), "11100 lb in");
               CWnd& rear = *dialog.GetDlgItem(IDC_WEIGHT_STATION + 9);
               rear.SetFocus();
               rear.SendMessage(EM_SETSEL, 0, -1);
               for (const char key : std::string("400"))
                   rear.SendMessage(WM_CHAR, static_cast<WPARAM>(key));
               EXPECT_EQ(TextOf(dialog, IDC_WEIGHT_ZERO_FUEL), "2400 lb at 47.4 in"); // 113,800 / 2,400 = 47.4167
               EXPECT_EQ(TextOf(dialog, IDC_WEIGHT_STATE), "71 lb over the takeoff limit."); // 36.9 gal are 221.4 lb
           });
    EXPECT_EQ(m_data.plan.weights[planner::kRearSeats], 400);
    EXPECT_EQ(VornCommonApp::Inst()->GetSettingString("Planner", "Weight2", ""), "400");
}

TEST_F(GalleryValues, FullTanksEndWhatIsMissing)
{
    m_data.plan.onBoard = 5;
    Change("Fuel",
           [](CWnd& dialog)
           {
               EXPECT_NE(TextOf(dialog, IDC_FUEL_STATE).find("gal are missing."), std::string::npos);
               dialog.SendMessage(WM_COMMAND, IDC_FUEL_FULL);
               EXPECT_EQ(TextOf(dialog, IDC_FUEL_ON_BOARD), "53 gal");
               EXPECT_EQ(TextOf(dialog, IDC_FUEL_STATE), "Endurance 5:38."); // 51.9 gal at 9.2 an hour
           });
    EXPECT_EQ(m_data.plan.onBoard, 53);
    EXPECT_EQ(m_data.plan.weights[planner::kFuel], 318);
}

TEST_F(GalleryValues, TheFirstNumberStandsPlainWhileItHasTheFocus)
{
    std::string text;
    const auto step = [&text]
    {
        const HWND dialog = FindDialog("Fuel and alternates");
        if (dialog == nullptr || GetFocus() != ::GetDlgItem(dialog, IDC_FUEL_SPEED))
            return false;
        text = TextOf(*CWnd::FromHandle(dialog), IDC_FUEL_SPEED);
        PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
        return true;
    };
    for (int opening = 0; opening < 2; ++opening) // the second comes up where the first was, and gets the focus sooner
    {
        text.clear();
        const DialogDriver driver(step);
        planner::FuelDialog(m_data, nullptr).DoModal();
        EXPECT_EQ(text, "122");
    }
}

TEST_F(GalleryValues, TheRouteIsEditedInItsList)
{
    Change("Route",
           [](CWnd& dialog)
           {
               CWnd& list = *dialog.GetDlgItem(IDC_ROUTE_VIA);
               ASSERT_EQ(list.SendMessage(LB_GETCOUNT), 2); // ELN EPH
               EXPECT_FALSE(dialog.GetDlgItem(IDC_ROUTE_UP)->IsWindowEnabled());
               list.SendMessage(LB_SETCURSEL, 1);
               dialog.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_ROUTE_VIA, LBN_SELCHANGE),
                                  reinterpret_cast<LPARAM>(list.m_hWnd));
               dialog.SendMessage(WM_COMMAND, IDC_ROUTE_UP);
               CWnd& place = *dialog.GetDlgItem(IDC_ROUTE_PLACE);
               place.SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>("KYKM"));
               dialog.SendMessage(WM_COMMAND, IDC_ROUTE_ADD);
               dialog.SendMessage(WM_COMMAND, IDC_ROUTE_SWAP);
           });
    EXPECT_EQ(m_data.plan.departure, "KGEG");
    EXPECT_EQ(m_data.plan.destination, "KSEA");
    EXPECT_EQ(m_data.plan.via, "ELN KYKM EPH");
}

TEST_F(GalleryValues, EveryTipHasAControlAndAText)
{
    const std::array<std::pair<const char*, int>, 6> tips = {
        {{"Route", 20}, {"Weight", 17}, {"Fuel", 11}, {"Print", 14}, {"Goto", 5}, {"Links", 4}}};
    for (const auto& [name, count] : tips)
    {
        const std::unique_ptr<OpenWindow> open = Open(GalleryWindowNamed(name));
        auto& dialog = dynamic_cast<planner::PlannerDialog&>(open->Window());
        ToolTipCtrlEx& control = dialog.GetToolTipCtrl();
        EXPECT_EQ(control.GetToolCount(), count) << name;
        for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        {
            TOOLINFOEX info;
            CString text;
            CWnd* const window = CWnd::FromHandle(child);
            if (control.GetToolInfo(info, window, static_cast<UINT>(GetDlgCtrlID(child))))
            {
                control.GetText(text, window, static_cast<UINT>(GetDlgCtrlID(child)));
                EXPECT_FALSE(text.IsEmpty()) << name << ' ' << GetDlgCtrlID(child);
            }
        }
    }
}

TEST_F(GalleryValues, OnlyTheChosenTabShowsItsControls)
{
    const std::unique_ptr<OpenWindow> open = Open(GalleryWindowNamed("Route"));
    CWnd& dialog = open->Window();
    EXPECT_TRUE(dialog.GetDlgItem(IDC_ROUTE_DIRECT)->IsWindowVisible());
    EXPECT_FALSE(dialog.GetDlgItem(IDC_ROUTE_CLASS_B)->IsWindowVisible());
    TabCtrl_SetCurFocus(::GetDlgItem(dialog, IDC_ROUTE_TAB), 1);
    EXPECT_FALSE(dialog.GetDlgItem(IDC_ROUTE_DIRECT)->IsWindowVisible());
    EXPECT_TRUE(dialog.GetDlgItem(IDC_ROUTE_CLASS_B)->IsWindowVisible());
    EXPECT_EQ(FaultsText(dialog), "");
}

} // namespace
} // namespace vorn::test
