#include <VornCommon.h>

#include <cstdio>

namespace
{

class Host : public CWinApp, public VornCommonApp
{
public:
    Host() : CWinApp("StartupExample")
    {
        VornCommonApp::Inst(this);
        SetRegistryKey("Vornwald"); // the profile is where the library's settings are
    }
};

// Shows what it says, and is then closed by OK: an example has no user.
class Startup : public CStartupDlg
{
public:
    using CStartupDlg::CStartupDlg;

protected:
    BOOL OnInitDialog() override
    {
        const BOOL result = CStartupDlg::OnInitDialog();
        CString caption;
        GetWindowText(caption);
        std::printf("%s\n", caption.GetString());
        PostMessage(WM_COMMAND, IDOK);
        return result;
    }
};

Date InDays(int days)
{
    return Date(CTime::GetCurrentTime() + CTimeSpan(days, 0, 0, 0));
}

} // namespace

int main()
{
    Host host;
    CStartupDlg::DataInfo data[] = {
        {1, 1.0F, "North America", InDays(-20), InDays(8)},        // navigation data, in force
        {2, 1.0F, "North America", InDays(-31), InDays(-3)},       // terminal procedures, three days late
        {1, 0.0F, "Training area without dates", Date(), Date()}}; // no version: its name alone
    CStringArray lines;
    lines.Add("Registered for two pilots.");
    CStartupDlg::CopyRightData years = {1990, 2026};

    Startup dialog("Skychart", "update\\VornUpdate.exe", data, 3, &lines, &years);
    std::printf("a date has passed: %s\n", dialog.isDataExpired() ? "yes" : "no");
    dialog.AllowUpdate(false); // no network today
    if (dialog.DoModal() == IDOK)
        std::printf("disclaimer next time: %s\n", host.GetSettingInt("Startup", "NoDisclaimer", 0) == 0 ? "yes" : "no");

    host.WriteSettingString("Startup", nullptr, nullptr);
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
    return 0;
}
