#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

using namespace vorn::test;

namespace
{
std::string ProgramFolder()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string whole = path;
    return whole.substr(0, whole.rfind('\\') + 1);
}

std::string SamplePlugin()
{
    return ProgramFolder() + "plugins\\AzimuthalEquidistant.dll";
}

std::string TestPlugin(const std::string& name)
{
    return ProgramFolder() + "test-plugins\\projection_" + name + ".dll";
}

constexpr const char* kBuiltIn = "0  Equidistant cylindrical (cylindrical): True-scale latitude 0\n"
                                 "1  Mercator (cylindrical, conformal): True-scale latitude 0\n"
                                 "2  Lambert conformal conic (conic, conformal): Standard parallel 1 33, Standard "
                                 "parallel 2 45\n"
                                 "3  Polar stereographic (conformal): True-scale latitude 90\n"
                                 "4  Transverse Mercator (conformal): Scale 1\n"
                                 "5  Orthographic (globe)\n";
} // namespace

TEST(ProjectionTool, ListsTheProjections)
{
    ExpectDone({"proj", "list"}, kBuiltIn);
    const ToolRun run = RunVornTool({"proj", "list", "--json"});
    EXPECT_EQ(run.status, 0U);
    EXPECT_TRUE(run.text.starts_with("[{\"number\":0,\"name\":\"Equidistant cylindrical\",\"builtIn\":true,"
                                     "\"cylindrical\":true,\"conic\":false,\"conformal\":false,\"globe\":false,"
                                     "\"parameters\":[{\"name\":\"True-scale latitude\",\"value\":0}]},"))
        << run.text;
    EXPECT_TRUE(run.text.ends_with("\"globe\":true,\"parameters\":[]}]\n")) << run.text;
}

// PROJ's proj gives -37656.673956 5260850.875294 for the first.
TEST(ProjectionTool, ProjectsForward)
{
    ExpectDone({"proj", "forward", "4", "47.5", "8.5", "0", "9", "--center", "0,9", "--params", "0.9996", "--metres",
                "--decimals", "3"},
               "-37656.674 5260850.875\n0.000 0.000\n");
    ExpectDone({"proj", "forward", "orthographic", "0", "90"}, "1 0\n");
    ExpectDone({"proj", "forward", "ortho", "0", "90"}, "1 0\n");
    ExpectDone({"proj", "forward", "EQUIDISTANT CYLINDRICAL", "-45", "-90", "--decimals=6"}, "-1.570796 -0.785398\n");
    ExpectDone({"proj", "forward", "0", "0", "90", "--skew", "90", "--decimals", "6"}, "0.000000 -1.570796\n");
}

TEST(ProjectionTool, ProjectsBack)
{
    ExpectDone({"proj", "inverse", "transverse mercator", "-37656.674", "5260850.875", "--center=0,9",
                "--params=0.9996", "--metres", "--decimals", "6"},
               "47.500000 8.500000\n");
    ExpectDone({"proj", "inverse", "5", "1", "0", "0", "0"}, "0 90\n0 0\n");
    ExpectDone({"proj", "inverse", "0", "0", "-1.5707963267948966", "--skew", "90"}, "0 90\n");
}

TEST(ProjectionTool, JsonHasTheScale)
{
    ExpectDone({"proj", "forward", "0", "60", "90", "--center", "60,90", "--json"},
               "[{\"lat\":60,\"lon\":90,\"x\":0,\"y\":0,\"scale\":1.9999999999999996}]\n");
    ExpectDone({"proj", "inverse", "5", "0", "0", "--json"}, "[{\"x\":0,\"y\":0,\"lat\":0,\"lon\":0,\"scale\":1}]\n");
}

TEST(ProjectionTool, WhatIsNotOnTheMapIsReportedAndTheRestIsPrinted)
{
    const ToolRun run = RunVornTool({"proj", "forward", "5", "0", "180", "0", "90", "91", "0"});
    EXPECT_EQ(run.status, 1U);
    EXPECT_EQ(run.text, "1 0\n");
    EXPECT_EQ(run.errors, "vorntool proj forward: '0 180' is not on the map\n"
                          "vorntool proj forward: '91 0' is not on the map\n");
    const ToolRun json = RunVornTool({"proj", "inverse", "5", "2", "0", "--json"});
    EXPECT_EQ(json.status, 1U);
    EXPECT_EQ(json.text, "[{\"x\":2,\"y\":0,\"lat\":null,\"lon\":null,\"scale\":null}]\n");
}

TEST(ProjectionTool, WhatItDoesNotUnderstandIsWrongUse)
{
    const std::string forward = "vorntool proj forward: ";
    for (const char* name : {"6", "-1", "Mercators", "", "99999999999999999999"})
    {
        ExpectFailure({"proj", "forward", name, "1", "2"}, 2,
                      forward + "unknown projection '" + name + "'; 'vorntool proj list' shows them");
    }
    ExpectFailure({"proj", "forward", "1", "north", "2"}, 2, forward + "'north' is no number");
    ExpectFailure({"proj", "forward", "1", "nan", "2"}, 2, forward + "'nan' is no number");
    ExpectFailure({"proj", "forward", "1", "1", "2", "3"}, 2, forward + "the last lat has no lon");
    ExpectFailure({"proj", "inverse", "1", "1", "2", "3"}, 2, "vorntool proj inverse: the last x has no y");
    ExpectFailure({"proj", "forward", "1", "1", "2", "--params", "1,2"}, 2,
                  forward + "--params has more numbers than the projection has parameters");
    ExpectFailure({"proj", "forward", "1", "1", "2", "--params", "1;2"}, 2,
                  forward + "--params takes numbers with commas between them");
    ExpectFailure({"proj", "forward", "1", "1", "2", "--params", ""}, 2,
                  forward + "--params takes numbers with commas between them");
    for (const char* center : {"1", "1,2,3", "a,b", ",", "1,"})
    {
        ExpectFailure({"proj", "forward", "1", "1", "2", "--center", center}, 2,
                      forward + "--center takes a latitude and a longitude, LAT,LON");
    }
    ExpectFailure({"proj", "forward", "1", "1", "2", "--skew", "left"}, 2, forward + "--skew takes degrees");
    ExpectFailure({"proj", "forward", "1", "1", "2", "--decimals", "101"}, 2,
                  forward + "--decimals takes a number from 0 to 100");
    ExpectFailure({"proj", "forward", "1", "1"}, 2, forward + "LON is missing; see 'vorntool proj forward --help'");
}

TEST(ProjectionTool, WhatTheProjectionRefusesIsSaid)
{
    const std::string forward = "vorntool proj forward: ";
    ExpectFailure({"proj", "forward", "1", "1", "2", "--params", "90"}, 1,
                  forward + "90 is out of range for the parameter 'True-scale latitude'");
    ExpectFailure({"proj", "forward", "1", "1", "2", "--center", "90,0"}, 1,
                  forward + "the map cannot lie around '90,0'");
    ExpectFailure({"proj", "forward", "2", "1", "2", "--params", "45,-45"}, 1,
                  forward + "these parameters make no map");
}

TEST(ProjectionTool, TakesPlugins)
{
    const std::string plugin = SamplePlugin();
    ExpectDone({"proj", "list", "--plugins", plugin}, std::string(kBuiltIn) + "6  Azimuthal equidistant: Range 179\n");
    ExpectDone({"proj", "forward", "azimuthal equidistant", "40", "0", "--center", "10,0", "--plugins", plugin,
                "--decimals", "6"},
               "0.000000 0.523599\n");
    ExpectDone({"proj", "inverse", "6", "0", "0", "--center", "10,20", "--plugins", plugin}, "10 20\n");
    ExpectDone({"proj", "forward", "7", "0", "0", "--plugins", plugin + ";" + plugin}, "0 0\n");
}

TEST(ProjectionTool, SaysWhichPluginCannotBeUsed)
{
    const ScratchFolder folder;
    const std::string text = folder.Write("text.dll", "no module");
    ExpectFailure({"proj", "list", "--plugins", SamplePlugin() + ";" + text}, 1,
                  "vorntool proj list: Projection module " + text + " skipped: it cannot be loaded");
    const std::string none = folder.File("none.dll");
    ExpectFailure({"proj", "forward", "1", "1", "2", "--plugins", none}, 1,
                  "vorntool proj forward: Projection module " + none + " skipped: it cannot be loaded");
    const ToolRun empty = RunVornTool({"proj", "list", "--plugins", ""});
    EXPECT_EQ(empty.status, 1U);
}

TEST(ProjectionTool, TakesPluginsThatHaveLittle)
{
    // This one lacks nearly everything; it puts its handle, 77, before the longitude.
    ExpectDone({"proj", "forward", "first", "1", "2", "--plugins", TestPlugin("first")}, "79 1\n");
    ExpectDone({"proj", "list", "--plugins", TestPlugin("bare")}, std::string(kBuiltIn) + "6  Bare\n");
    ExpectFailure({"proj", "forward", "6", "1", "2", "--plugins", TestPlugin("bare")}, 1,
                  "vorntool proj forward: '1 2' is not on the map");
    ExpectFailure({"proj", "forward", "6", "1", "2", "--center", "1,2", "--plugins", TestPlugin("bare")}, 1,
                  "vorntool proj forward: the map cannot lie around '1,2'");
    ExpectFailure({"proj", "forward", "6", "1", "2", "--plugins", TestPlugin("no_create")}, 1,
                  "vorntool proj forward: the plug-in makes no projection");
}
