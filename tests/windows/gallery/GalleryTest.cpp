#include "tests/windows/gallery/GalleryTest.h"

#include "apps/planner/FlightLog.h"
#include "apps/planner/FuelDialog.h"
#include "apps/planner/GotoDialog.h"
#include "apps/planner/LinksDialog.h"
#include "apps/planner/NewFlightWizard.h"
#include "apps/planner/PreferencesSheet.h"
#include "apps/planner/PrintDialog.h"
#include "apps/planner/RouteDialog.h"
#include "apps/planner/WeightDialog.h"
#include "apps/planner/resource.h"
#include "apps/planner/shots/WindowFacts.h"
#include "tests/support/PumpUntil.h"

#include <algorithm>

using vorn::planner::PlannerData;

namespace vorn::test
{

namespace
{

class HostApp : public CWinApp, public VornCommonApp
{
public:
    HostApp() : CWinApp("GalleryTests")
    {
        SetRegistryKey("VornTests");
    }
};

HostApp g_app;

template <class Dialog, UINT id>
class OpenDialog : public OpenWindow
{
public:
    explicit OpenDialog(PlannerData& data) : m_dialog(data, nullptr)
    {
        m_dialog.Create(id, nullptr);
    }
    ~OpenDialog() override
    {
        m_dialog.DestroyWindow();
    }
    CWnd& Window() override
    {
        return m_dialog;
    }

private:
    Dialog m_dialog;
};

/// With the buttons that it has in its loop.
template <class Sheet>
class OpenSheet : public OpenWindow
{
public:
    template <class... Arguments>
    explicit OpenSheet(Arguments&&... arguments) : m_sheet(std::forward<Arguments>(arguments)...)
    {
        m_sheet.ModelessWithButtons(true);
        m_sheet.Create();
    }
    ~OpenSheet() override
    {
        m_sheet.DestroyWindow();
    }
    CWnd& Window() override
    {
        return m_sheet;
    }
    int Pages() const override
    {
        return m_sheet.GetPageCount();
    }
    void ShowPage(int page) override
    {
        m_sheet.SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(page));
    }

private:
    Sheet m_sheet;
};

class OpenLog : public OpenWindow
{
public:
    explicit OpenLog(PlannerData& data) : m_log(new planner::FlightLogFrame(data)) // deletes itself with its window
    {
        m_owner.CreateEx(0, "STATIC", "", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
        m_log->Open(m_owner);
    }
    ~OpenLog() override
    {
        m_log->SendMessage(WM_CLOSE);
        m_owner.DestroyWindow();
    }
    CWnd& Window() override
    {
        return *m_log;
    }
    HWND ControlsOwner() override
    {
        return m_log->View();
    }

private:
    CWnd m_owner;
    planner::FlightLogFrame* m_log;
};

template <class Opened>
std::unique_ptr<OpenWindow> Make(PlannerData& data)
{
    return std::make_unique<Opened>(data);
}

std::unique_ptr<OpenWindow> MakePreferences(PlannerData&)
{
    return std::make_unique<OpenSheet<planner::PreferencesSheet>>(nullptr, nullptr);
}

std::unique_ptr<OpenWindow> MakeWizard(PlannerData& data)
{
    return std::make_unique<OpenSheet<planner::NewFlightWizard>>(data, nullptr);
}

bool IsDialog(HWND window)
{
    char name[16] = {};
    GetClassName(window, name, sizeof name);
    return lstrcmp(name, "#32770") == 0;
}

void Collect(HWND window, std::vector<HWND>& controls)
{
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        if ((GetWindowLong(child, GWL_STYLE) & WS_VISIBLE) == 0)
            continue;
        if (IsDialog(child))
            Collect(child, controls);
        else
            controls.push_back(child);
    }
}

} // namespace

HWND OpenWindow::ControlsOwner()
{
    return Window();
}

int OpenWindow::Pages() const
{
    return 1;
}

void OpenWindow::ShowPage(int)
{
}

const std::vector<GalleryWindow>& GalleryWindows()
{
    static const std::vector<GalleryWindow> windows = {
        {"Route", Make<OpenDialog<planner::RouteDialog, IDD_ROUTE>>},
        {"Weight", Make<OpenDialog<planner::WeightDialog, IDD_WEIGHT>>},
        {"Fuel", Make<OpenDialog<planner::FuelDialog, IDD_FUEL>>},
        {"Print", Make<OpenDialog<planner::PrintDialog, IDD_PRINT>>},
        {"Goto", Make<OpenDialog<planner::GotoDialog, IDD_GOTO>>},
        {"Links", Make<OpenDialog<planner::LinksDialog, IDD_LINKS>>},
        {"Preferences", MakePreferences, true},
        {"NewFlight", MakeWizard, true},
        {"Log", Make<OpenLog>},
    };
    return windows;
}

const GalleryWindow& GalleryWindowNamed(const std::string& name)
{
    return *std::find_if(GalleryWindows().begin(), GalleryWindows().end(),
                         [&name](const GalleryWindow& window)
                         {
                             return window.name == name;
                         });
}

std::ostream& operator<<(std::ostream& stream, const GalleryWindow& window)
{
    return stream << window.name;
}

std::string NameOfWindow(const testing::TestParamInfo<GalleryWindow>& parameter)
{
    return parameter.param.name;
}

GalleryTest::GalleryTest()
{
    AppRegMgr::FreeInst();
    VornCommonApp::Inst(&g_app);
    GetConversionBoy()->ReadUnits();
    m_data.places = {{"KSEA", "Seattle", {47.449, -122.309}},   {"KGEG", "Spokane", {47.620, -117.534}},
                     {"ELN", "Ellensburg", {47.024, -120.459}}, {"EPH", "Ephrata", {47.378, -119.424}},
                     {"KPSC", "Pasco", {46.265, -119.119}},     {"KYKM", "Yakima", {46.568, -120.544}}};
}

GalleryTest::~GalleryTest()
{
    ToolTipCtrlEx::GlobalEnableTips(true); // what a test switched off
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
}

std::unique_ptr<OpenWindow> GalleryTest::Open(const GalleryWindow& window)
{
    std::unique_ptr<OpenWindow> opened = window.open(m_data);
    if (opened->Window().m_hWnd == nullptr)
        return nullptr;
    opened->Window().ShowWindow(SW_SHOW);
    PumpWaiting();
    return opened;
}

void GalleryWindowTest::SetUp()
{
    m_open = Open(GetParam());
    ASSERT_NE(m_open, nullptr);
}

void GalleryWindowTest::TearDown()
{
    m_open.reset(); // while its settings are there
}

CWnd& GalleryWindowTest::Window()
{
    return m_open->Window();
}

void GalleryWindowTest::Reopen()
{
    m_open.reset();
    SetUp();
}

CRect WindowRect(HWND window)
{
    CRect rect;
    GetWindowRect(window, &rect);
    return rect;
}

void SizeTo(HWND window, int width, int height)
{
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

std::string TextOf(HWND window)
{
    std::string text(256, '\0');
    text.resize(static_cast<std::size_t>(GetWindowText(window, text.data(), 256)));
    return text;
}

std::vector<HWND> ControlsOf(HWND window)
{
    std::vector<HWND> controls;
    Collect(window, controls);
    return controls;
}

std::string FaultsText(HWND window)
{
    std::string text;
    for (const std::string& fault : planner::FaultsOf(planner::FactsOf(window)))
        text += fault + '\n';
    return text;
}

} // namespace vorn::test
