#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <VornCommon.h>

#include <cmath>

using namespace vorn::test;

namespace
{

class ChartTool : public testing::Test
{
protected:
    ChartTool()
    {
        // The first program that draws starts the desktop, which then holds what it was given: not the tool's pipes.
        ReleaseDC(nullptr, GetDC(nullptr));
    }

    /// Renders a chart with these words more. @return the text of its view
    std::string Render(const char* name, std::vector<std::string> words)
    {
        std::vector<std::string> all = {"chart",   "render", "--out",       m_folder.File(name),
                                        "--force", "--app",  "VornToolTest"};
        all.insert(all.end(), words.begin(), words.end());
        const ToolRun run = RunVornTool(all);
        EXPECT_EQ(run.status, 0u) << run.errors;
        EXPECT_EQ(run.errors, "");
        return run.text.substr(0, run.text.find('\n'));
    }

    DIB Picture(const char* name)
    {
        DIB image;
        EXPECT_TRUE(image.ReadUnknown(m_folder.File(name).c_str()));
        return image;
    }

    ScratchFolder m_folder;
};

COLORREF PixelOf(const DIB& image, int x, int y)
{
    BYTE red = 0;
    BYTE green = 0;
    BYTE blue = 0;
    image.GetRGB(x, y, red, green, blue);
    return RGB(red, green, blue);
}

int CountOf(const DIB& image, COLORREF color)
{
    int count = 0;
    for (int y = 0; y < image.Height(); ++y)
    {
        for (int x = 0; x < image.Width(); ++x)
            count += PixelOf(image, x, y) == color ? 1 : 0;
    }
    return count;
}

} // namespace

TEST_F(ChartTool, DrawsThePictureInItsSize)
{
    const std::string view = Render("a.png", {"--size", "640x480", "--center", "47.5,-122.3", "--scale", "1000000"});
    const DIB image = Picture("a.png");
    EXPECT_EQ(image.Width(), 640);
    EXPECT_EQ(image.Height(), 480);
    EXPECT_EQ(image.Depth(), 24);
    EXPECT_TRUE(view.ends_with("|180|0|47.5|-122.3|")) << view;
}

TEST_F(ChartTool, DrawsTheSameViewAgainFromItsText)
{
    for (const char* projection : {"Mercator", "lambert", "4", "Orthographic", "polar", "equi"})
    {
        const std::string view = Render("a.png", {"--size", "500x400", "--center", "47.2,-121", "--scale", "1:1500000",
                                                  "--projection", projection});
        EXPECT_EQ(Render("b.png", {"--size", "500x400", "--view", view}), view) << projection;
        EXPECT_EQ(m_folder.Read("a.png"), m_folder.Read("b.png")) << projection;
    }
}

TEST_F(ChartTool, TellsItsViewAsJson)
{
    const std::string out = m_folder.File("a.png");
    const ToolRun run = RunVornTool({"chart", "render", "--json", "--size", "64x48", "--scale", "2e6", "--center",
                                     "47,-120", "--projection", "Mercator", "--out", out});
    EXPECT_EQ(run.errors, "");
    EXPECT_TRUE(run.text.starts_with("{\"file\":\"")) << run.text;
    EXPECT_NE(run.text.find("a.png\",\"width\":64,\"height\":48,\"scale\":2000000,\"view\":\"v1|1|1|0|"),
              std::string::npos)
        << run.text;
    EXPECT_TRUE(run.text.ends_with("|180|0|47|-120|\"}\n")) << run.text;
}

TEST_F(ChartTool, KeepsTheParametersOfAView)
{
    const std::string view = Render("a.png", {"--size", "64x48", "--view", "v1|2|2|20|70|0|0|0|0|5000|180|0|47|-120|"});
    EXPECT_TRUE(view.starts_with("v1|2|2|20|70|")) << view;
}

TEST_F(ChartTool, HasWaterAndLandAndAMagentaRoute)
{
    Render("a.png", {"--center", "47.4,-122.6", "--scale", "1000000", "--size", "800x600"});
    const DIB image = Picture("a.png");
    const ColorContext colors;
    EXPECT_GT(CountOf(image, colors.GetColor(APPCOLOR_WATER)), 20'000);
    EXPECT_GT(CountOf(image, colors.GetColor(APPCOLOR_ACTIVELEG)), 200);
    EXPECT_GT(CountOf(image, colors.GetColor(APPCOLOR_AIRSPACE)), 200); // aids
    EXPECT_GT(CountOf(image, colors.GetColor(APPCOLOR_AIRCRAFT)), 100); // fields
}

TEST_F(ChartTool, IsDarkByNight)
{
    Render("night.png", {"--night", "--center", "47.4,-122.6", "--scale", "1000000", "--size", "400x300"});
    const DIB image = Picture("night.png");
    ColorContext colors;
    colors.SetCurrentState(COLORSTATE_NIGHT);
    EXPECT_GT(CountOf(image, colors.GetColor(APPCOLOR_WATER)), 3'000);
    double light = 0;
    for (int y = 0; y < 300; ++y)
    {
        for (int x = 0; x < 400; ++x)
            light +=
                GetRValue(PixelOf(image, x, y)) + GetGValue(PixelOf(image, x, y)) + GetBValue(PixelOf(image, x, y));
    }
    EXPECT_LT(light / 3 / 300 / 400, 50);
    // Little blue, for eyes that are used to the dark.
    for (int y = 0; y < 300; y += 3)
    {
        for (int x = 0; x < 400; x += 3)
            EXPECT_LT(GetBValue(PixelOf(image, x, y)), 140);
    }
}

TEST_F(ChartTool, PutsAnAidWhereItsPositionIs)
{
    // The VORTAC of Yakima in the very middle: its dot.
    Render("a.png", {"--center", "46.5703,-120.445", "--scale", "500000", "--size", "401x301", "--projection", "merc"});
    EXPECT_EQ(PixelOf(Picture("a.png"), 200, 150), ColorContext().GetColor(APPCOLOR_AIRSPACE));
}

TEST_F(ChartTool, WritesTheKindsOfPicturesThatTheNameSays)
{
    Render("a.bmp", {"--size", "64x48"});
    Render("a.JPG", {"--size", "64x48"});
    EXPECT_EQ(m_folder.Read("a.bmp").substr(0, 2), "BM");
    EXPECT_EQ(m_folder.Read("a.bmp").size(), 54u + 64 * 48 * 3);
    EXPECT_EQ(m_folder.Read("a.JPG").substr(0, 3), "\xFF\xD8\xFF");
}

TEST_F(ChartTool, SaysWhatIsWrongWithTheCall)
{
    const std::string out = m_folder.File("x.png");
    ExpectFailure({"chart", "render"}, 2, "vorntool chart render: --out FILE says where the picture goes");
    ExpectFailure({"chart", "render", "--out", out, "--size", "10x10"}, 2,
                  "vorntool chart render: --size takes WIDTHxHEIGHT in pixels, each from 16 to 8192");
    for (const char* centre : {"47", "", "nan,0", "47,-122,3", "85.1,0", "47,181"})
    {
        ExpectFailure({"chart", "render", "--out", out, "--center", centre}, 2,
                      "vorntool chart render: --center takes LATITUDE,LONGITUDE in degrees, for example 47.5,-122.3, "
                      "and no latitude beyond 85");
    }
    for (const char* scale : {"0", "", "nan", "1e400", "99999", "60000001"})
    {
        ExpectFailure({"chart", "render", "--out", out, "--scale", scale}, 2,
                      "vorntool chart render: --scale takes the N of 1:N, from 100000 to 60000000");
    }
    ExpectFailure({"chart", "render", "--out", out, "--view", "v1|1|"}, 2,
                  "vorntool chart render: --view takes the text of a view, like \"v1|1|0|0|0|0|0|0|180|0|25|0|\"");
    ExpectFailure({"chart", "render", "--out", out, "--projection", "flat"}, 2,
                  "vorntool chart render: 'flat' is no projection; 'vorntool proj list' names them");
    EXPECT_EQ(m_folder.Read("x.png"), "");
    for (const char* name : {"chart.gif", "chart", ""})
    {
        ExpectFailure({"chart", "render", "--out", name}, 2,
                      std::string("vorntool chart render: '") + name + "' does not end in .bmp, .png, .jpg or .jpeg");
    }
}

TEST_F(ChartTool, RefusesWhatCannotBeDone)
{
    const std::string out = m_folder.File("x.png");
    const std::string folder = m_folder.Path().string();
    ExpectFailure({"chart", "render", "--out", out, "--data", folder}, 1,
                  "vorntool chart render: cannot open navaids.dbf, runways.dbf, shores.dbf in '" + folder + "\\'");
    const std::string nowhere = m_folder.File("no such folder\\x.png");
    const ToolRun run = RunVornTool({"chart", "render", "--size", "32x32", "--out", nowhere});
    EXPECT_EQ(run.status, 1u);
    EXPECT_NE(run.errors.find("x.png' cannot be written: error 3"), std::string::npos) << run.errors;
    ExpectFailure({"chart", "render", "--out", out, "--data", "\xE6\x97\xA5"}, 2,
                  "vorntool chart render: '\xE6\x97\xA5' cannot be the name of a folder");
    const std::string old = m_folder.Write("old.png", "something");
    ExpectFailure({"chart", "render", "--size", "32x32", "--out", old}, 1,
                  "vorntool chart render: '" + old + "' exists; --force replaces it");
    EXPECT_EQ(m_folder.Read("old.png"), "something");
    ExpectFailure({"chart", "render", "--out", out, "--view", "v1|99|0|0|0|0|0|0|180|0|25|0|"}, 1,
                  "vorntool chart render: the view's projection is not here");
    ExpectFailure({"chart", "render", "--out", out, "--view", "v1|2|2|45|-45|0|0|0|0|0|180|0|47|-120|"}, 1,
                  "vorntool chart render: the view's parameters make no map");
    EXPECT_EQ(m_folder.Read("x.png"), "");
}
