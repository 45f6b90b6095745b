#include <VornCommon.h>

#include <cstdio>

// A host with a main function of its own: it uses the framework, a companion and the library.
namespace
{

class Host : public CWinApp, public VornCommonApp
{
public:
    Host() : CWinApp("ConsoleHostTest")
    {
        VornCommonApp::Inst(this);
    }
};

} // namespace

int main()
{
    Host host;
    host.WriteSettingInt("Test", "Value", 42);
    const int value = host.GetSettingInt("Test", "Value", 0);
    AppRegMgr::Instance()->WriteVornString("Test", "Value", nullptr, 0);
    const int gone = host.GetSettingInt("Test", "Value", -1);

    double kilometres = 5;
    ConvertValue(&kilometres, UNIT_NM, UNIT_KM);
    CString text;
    text.Format("%s: stored %d, then %d; 5 NM are %.2f km", AfxGetAppName(), value, gone, kilometres);
    std::printf("%s\n", text.GetString());

    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
    return value == 42 && gone == -1 ? 0 : 1;
}
