#include "tests/windows/gallery/GalleryTest.h"

#include "apps/planner/FuelDialog.h"
#include "apps/planner/GotoDialog.h"
#include "apps/planner/LinksDialog.h"
#include "apps/planner/PrintDialog.h"
#include "apps/planner/RouteDialog.h"
#include "apps/planner/WeightDialog.h"
#include "apps/planner/resource.h"
#include "apps/planner/shots/WindowFacts.h"
#include "tests/support/PumpUntil.h"

#include <algorithm>

using vorn::planner::PlannerData;
using vorn::planner::PlannerDialog;

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

template <class Dialog>
std::unique_ptr<PlannerDialog> Make(PlannerData& data)
{
    return std::make_unique<Dialog>(data, nullptr);
}

} // namespace

const std::vector<GalleryDialog>& GalleryDialogs()
{
    static const std::vector<GalleryDialog> dialogs = {
        {"Route", IDD_ROUTE, "RouteDialog", Make<planner::RouteDialog>},
        {"Weight", IDD_WEIGHT, "WeightDialog", Make<planner::WeightDialog>},
        {"Fuel", IDD_FUEL, "FuelDialog", Make<planner::FuelDialog>},
        {"Print", IDD_PRINT, "PrintDialog", Make<planner::PrintDialog>},
        {"Goto", IDD_GOTO, "GotoDialog", Make<planner::GotoDialog>},
        {"Links", IDD_LINKS, "LinksDialog", Make<planner::LinksDialog>},
    };
    return dialogs;
}

const GalleryDialog& GalleryDialogNamed(const std::string& name)
{
    return *std::find_if(GalleryDialogs().begin(), GalleryDialogs().end(),
                         [&name](const GalleryDialog& dialog)
                         {
                             return dialog.name == name;
                         });
}

std::ostream& operator<<(std::ostream& stream, const GalleryDialog& dialog)
{
    return stream << dialog.name;
}

std::string NameOfDialog(const testing::TestParamInfo<GalleryDialog>& parameter)
{
    return parameter.param.name;
}

GalleryTest::GalleryTest()
{
    AppRegMgr::FreeInst();
    VornCommonApp::Inst(&g_app);
    m_data.places = {{"KSEA", "Seattle", {47.449, -122.309}},   {"KGEG", "Spokane", {47.620, -117.534}},
                     {"ELN", "Ellensburg", {47.024, -120.459}}, {"EPH", "Ephrata", {47.378, -119.424}},
                     {"KPSC", "Pasco", {46.265, -119.119}},     {"KYKM", "Yakima", {46.568, -120.544}}};
}

GalleryTest::~GalleryTest()
{
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
}

std::unique_ptr<PlannerDialog> GalleryTest::Open(const GalleryDialog& dialog)
{
    std::unique_ptr<PlannerDialog> opened = dialog.make(m_data);
    if (!opened->Create(dialog.id, nullptr))
        return nullptr;
    opened->ShowWindow(SW_SHOW);
    PumpWaiting();
    return opened;
}

void GalleryTest::Close(std::unique_ptr<PlannerDialog>& dialog)
{
    dialog->DestroyWindow();
    dialog.reset();
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

std::string FaultsText(HWND window)
{
    std::string text;
    for (const std::string& fault : planner::FaultsOf(planner::FactsOf(window)))
        text += fault + '\n';
    return text;
}

} // namespace vorn::test
