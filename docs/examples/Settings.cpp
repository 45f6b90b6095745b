#include <VornCommon.h>

#include <cstdio>

class Host : public CWinApp, public VornCommonApp
{
public:
    Host() : CWinApp("SettingsExample")
    {
        VornCommonApp::Inst(this); // from here on the library knows whose settings are meant
    }
};

int main()
{
    Host host;

    // The host's own settings.
    const int starts = host.GetSettingInt("General", "Starts", 0) + 1;
    host.WriteSettingInt("General", "Starts", starts);
    host.WriteSettingString("General", "Pilot", "Amelia");
    std::printf("start %d of %s\n", starts, host.GetSettingString("General", "Pilot", "nobody").GetString());

    // Those of another application of the family.
    AppRegMgr* const settings = AppRegMgr::Instance();
    const int planner = settings->AddApp("ExamplePlanner");
    settings->WriteVornInt("Route", "Altitude", 9500, planner);
    std::printf("planned altitude: %d ft\n", settings->ReadVornInt("Route", "Altitude", 0, "ExamplePlanner"));

    // A null key deletes a section, a null value one setting.
    host.WriteSettingString("General", "Pilot", nullptr);
    std::printf("without the setting: %s\n", host.GetSettingString("General", "Pilot", "nobody").GetString());
    host.WriteSettingString("General", nullptr, nullptr);
    settings->WriteVornString("Route", nullptr, nullptr, planner);

    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
    return 0;
}
