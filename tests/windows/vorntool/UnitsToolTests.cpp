#include "tests/support/ScratchKey.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

using namespace vorn::test;

namespace
{

// Stores a user's choice for the tests' own application.
void Choose(const char* key, DWORD type, const std::string& bytes)
{
    ASSERT_EQ(RegSetKeyValueA(HKEY_CURRENT_USER, "Software\\Vornwald\\VornToolTest\\Units", key, type, bytes.data(),
                              static_cast<DWORD>(bytes.size())),
              ERROR_SUCCESS);
}

} // namespace

TEST(UnitsTool, ConvertsWithNamesInAnyCase)
{
    ExpectDone({"units", "convert", "10", "nm", "KM"}, "18.52 KM\n");
    ExpectDone({"units", "convert", "1", "statute mile", "FEET"}, "5280 FT\n");
    ExpectDone({"units", "convert", "60", "lbs", "gal"}, "10 GAL\n");
    ExpectDone({"units", "convert", "29.92", "inHg", "hPa"}, "1013.20748119003 hPa\n");
    ExpectDone({"units", "convert", "0.1", "KTS", "kts"}, "0.1 KTS\n");
    ExpectDone({"units", "convert", "1852", "m/s", "km/h"}, "6667.2 KPH\n");
    ExpectDone({"units", "convert", "60", "lb", "gallons"}, "10 GAL\n");
}

TEST(UnitsTool, TemperaturesGoByLetterOrDegreeSign)
{
    ExpectDone({"units", "convert", "15", "C", "F"}, "59 \xC2\xB0"
                                                     "F\n");
    ExpectDone({"units", "convert", "-40",
                "\xC2\xB0"
                "c",
                "\xC2\xB0"
                "f"},
               "-40 \xC2\xB0"
               "F\n");
}

TEST(UnitsTool, PrintsTheDecimalsAskedFor)
{
    ExpectDone({"units", "convert", "1", "KTS", "MPH", "--decimals", "2"}, "1.15 MPH\n");
    ExpectDone({"units", "convert", "2.5", "M", "M", "--decimals=0"}, "2 M\n");
    ExpectFailure({"units", "convert", "1", "M", "M", "--decimals", "101"}, 2,
                  "vorntool units convert: --decimals takes a number from 0 to 100");
    ExpectFailure({"units", "convert", "1", "M", "M", "--decimals", "-1"}, 2,
                  "vorntool units convert: --decimals takes a number from 0 to 100");
}

TEST(UnitsTool, JsonGivesTheExactResult)
{
    ExpectDone({"units", "convert", "100", "C", "F", "--json"}, "{\"value\":100,\"from\":\"\xC2\xB0"
                                                                "C\",\"result\":212,\"to\":\"\xC2\xB0"
                                                                "F\"}\n");
    ExpectDone({"units", "convert", "1", "KTS", "MPH", "--json"},
               "{\"value\":1,\"from\":\"KTS\",\"result\":1.1507794480235425,\"to\":\"MPH\"}\n");
}

TEST(UnitsTool, WhatCannotBeConvertedIsRefused)
{
    ExpectFailure({"units", "convert", "1", "NM", "KTS"}, 1,
                  "vorntool units convert: NM and KTS measure different things");
    ExpectFailure({"units", "convert", "1e308", "NM", "MM"}, 1, "vorntool units convert: the result is too large");
}

TEST(UnitsTool, WhatIsNoNumberOrUnitIsWrongUse)
{
    ExpectFailure({"units", "convert", "ten", "NM", "KM"}, 2, "vorntool units convert: 'ten' is no number");
    ExpectFailure({"units", "convert", "nan", "NM", "KM"}, 2, "vorntool units convert: 'nan' is no number");
    ExpectFailure({"units", "convert", "1", "furlong", "KM"}, 2,
                  "vorntool units convert: unknown unit 'furlong'; 'vorntool units convert --help' names them");
    ExpectFailure({"units", "convert", "1", "KM", ""}, 2,
                  "vorntool units convert: unknown unit ''; 'vorntool units convert --help' names them");
    ExpectFailure({"units", "convert", "1", "KM"}, 2,
                  "vorntool units convert: TO is missing; see 'vorntool units convert --help'");
}

TEST(UnitsTool, ShowsDefaultsOfAnApplicationWithoutSettings)
{
    const ScratchKey settings{HKEY_CURRENT_USER, "Software\\Vornwald\\VornToolTest"};
    ExpectDone({"units", "show", "--app", "VornToolTest"}, "Distance        NM    Nautical Miles            default\n"
                                                           "Speed           KTS   Knots                     default\n"
                                                           "Fuel                  as each place asks for    default\n"
                                                           "Mass            LBS   Pounds                    default\n"
                                                           "Temperature     \xC2\xB0"
                                                           "F    Degrees Fahrenheit        default\n"
                                                           "Short distance  FT    Feet                      default\n"
                                                           "Pressure        inHg  Inches of Mercury         default\n");
}

TEST(UnitsTool, ShowsTheUsersChoicesAndWhatIsNone)
{
    const ScratchKey settings{HKEY_CURRENT_USER, "Software\\Vornwald\\VornToolTest"};
    Choose("Distance", REG_DWORD, std::string("\2\0\0\0", 4));
    Choose("Speed", REG_SZ, std::string("7\0", 2));
    Choose("Temp", REG_SZ, std::string("cold\0", 5));
    Choose("Mass", REG_DWORD, std::string("\14\0\0\0", 4));
    Choose("Pressure", REG_DWORD, std::string("\143\0\0\0", 4));
    ExpectDone({"units", "show", "--app", "VornToolTest"},
               "Distance        KM    Kilometers                registry\n"
               "Speed           KPH   Kilometers per Hour       registry\n"
               "Fuel                  as each place asks for    default\n"
               "Mass            KG    Kilograms                 registry\n"
               "Temperature     \xC2\xB0"
               "F    Degrees Fahrenheit        default\n"
               "Short distance  FT    Feet                      default\n"
               "Pressure              no unit (99)              registry\n");
}

TEST(UnitsTool, ShowsJsonForMachines)
{
    const ScratchKey settings{HKEY_CURRENT_USER, "Software\\Vornwald\\VornToolTest"};
    const ToolRun run = RunVornTool({"units", "show", "--app", "VornToolTest", "--json"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_EQ(run.text.find("{\"app\":\"VornToolTest\",\"units\":[{\"kind\":\"Distance\",\"key\":\"Distance\","
                            "\"code\":0,\"unit\":\"NM\",\"source\":\"default\"},{\"kind\":\"Speed\","),
              0u);
    EXPECT_NE(run.text.find("{\"kind\":\"Fuel\",\"key\":\"Fuel\",\"code\":-1,\"unit\":\"\",\"source\":\"default\"}"),
              std::string::npos);
}
