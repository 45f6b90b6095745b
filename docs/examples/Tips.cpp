#include <VornCommon.h>

#include <cstdio>

namespace
{

constexpr UINT kWeights = 100; // the dialog and its controls, as in Tips.rc
constexpr UINT kWeight = 1000;
constexpr UINT kRampWeight = 1001;

constexpr UINT kHelpWeight = 999; // texts of the library's own
constexpr UINT kHelpRampWeight = 1145;

class WeightsDlg : public ToolTipDlg
{
public:
    BOOL OnInitDialog() override
    {
        const BOOL result = ToolTipDlg::OnInitDialog();
        const UINT tips[] = {kWeight, kHelpWeight, kRampWeight, kHelpRampWeight}; // a control, its text, ...
        AddTips(tips, 2);
        return result;
    }
};

class Host : public CWinApp, public VornCommonApp
{
public:
    Host() : CWinApp("TipsExample")
    {
        VornCommonApp::Inst(this);
    }
};

void Tell(InfoTip& tip, LPCSTR text, int icon)
{
    tip.ShowTip({100, 100}, "Weights", text, icon, 5000);
    std::printf("%s: %s\n", text, tip.IsWindowVisible() ? "shown" : "kept back");
    tip.HideTip();
}

} // namespace

int main()
{
    Host host;
    WeightsDlg dialog;
    dialog.Create(kWeights);

    // What the tip of a control says, and what the box adds that a click on the tip opens.
    ToolTipCtrlEx& tips = dialog.GetToolTipCtrl();
    std::printf("%d controls have tips\n", tips.GetToolCount());
    CString text;
    tips.GetText(text, dialog.GetDlgItem(kRampWeight), kRampWeight);
    for (int field = 0; field < 2; ++field)
        std::printf("[%s]\n", ToolTipCtrlEx::GetFieldFromString(text, field, '\r').GetString());

    // A tip that stands alone. Users who want no tips still see errors.
    InfoTip tip;
    tip.Create(&dialog);
    Tell(tip, "Within limits", TTI_INFO);
    host.WriteSettingInt("General", "Show Dialog Tips", 0);
    Tell(tip, "Still within limits", TTI_INFO);
    Tell(tip, "12 pounds too heavy", TTI_ERROR);
    host.WriteSettingString("General", nullptr, nullptr);

    // One that stands where the program says, beside the mouse over a map for instance.
    TrackingToolTip follower;
    follower.Create(&dialog);
    follower.AddTool(&dialog, true, "47 26.9 N");
    follower.ActivateTip(&dialog, true);
    follower.TrackTip(200, 150);
    CRect place;
    follower.GetWindowRect(&place);
    std::printf("following at %d, %d\n", static_cast<int>(place.left), static_cast<int>(place.top));
    follower.ActivateTip(&dialog, false);

    dialog.DestroyWindow();
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
    return 0;
}
