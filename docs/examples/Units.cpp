#include <VornCommon.h>

#include <cstdio>

class Host : public CWinApp, public VornCommonApp
{
public:
    Host() : CWinApp("UnitsExample")
    {
        VornCommonApp::Inst(this);
    }
};

int main()
{
    Host host;
    ConversionBoy* const units = ::GetConversionBoy();

    // Values are kept in the family's internal units; texts are in those that the user chose.
    std::printf("%s, %s\n", units->Str(12.34, UNITTYPE_DISTANCE).GetString(),
                units->Str(120, UNITTYPE_SPEED).GetString());

    // The user chooses kilometres.
    host.WriteSettingInt("Units", "Distance", UNIT_KM);
    units->ReadUnits();
    std::printf("%s\n", units->Str(12.34, UNITTYPE_DISTANCE).GetString());
    std::printf("%s\n", units->Str(12.34, UNITTYPE_DISTANCE, 2, UNIT_AUTO, UNIT_SM).GetString());

    // Number and unit apart, for two columns.
    CString number;
    CString unit;
    units->Str(29.92, UNITTYPE_PRESSURE, number, unit, 0, UNIT_INHG, UNIT_HPA);
    std::printf("%s | %s\n", number.GetString(), unit.GetString());

    // Without any choice of the user's.
    double metres = 1000;
    ConvertValue(&metres, UNIT_FT, UNIT_M);
    std::printf("1000 ft are %.1f m\n", metres);

    host.WriteSettingString("Units", nullptr, nullptr);
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
    return 0;
}
