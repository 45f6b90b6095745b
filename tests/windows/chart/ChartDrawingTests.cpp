#include "apps/chart/Chart.h"
#include "apps/chart/ChartColors.h"
#include "tests/support/GdiCount.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

using vorn::chart::Chart;
using vorn::chart::PixelSurface;

namespace
{

constexpr int kWidth = 500;
constexpr int kHeight = 380;

class ChartDrawing : public testing::Test
{
protected:
    ChartDrawing()
    {
        VornCommonApp::Inst(&m_host);
        std::array<char, MAX_PATH> program{};
        GetModuleFileNameA(nullptr, program.data(), MAX_PATH);
        const std::string path = program.data();
        EXPECT_EQ(m_chart.Load(path.substr(0, path.find_last_of('\\') + 1) + "data\\"), "");
        m_chart.View().SetSize(kWidth, kHeight, 96);
        m_chart.View().SetCentre(LatLon(47.5, -122));
        m_chart.View().SetScale(1'500'000);
        m_surface.SetSize(kWidth, kHeight);
    }

    ~ChartDrawing() override
    {
        ColorContext::Instance()->SetCurrentState(COLORSTATE_DAY);
        VornCommonApp::FreeInst();
    }

    std::string Drawn(Chart::Quality quality)
    {
        m_chart.Draw(m_surface.Get(), 0, 0, quality);
        return Pixels(m_surface);
    }

    static std::string Pixels(PixelSurface& surface)
    {
        const std::size_t count =
            static_cast<std::size_t>(surface.Width()) * static_cast<std::size_t>(surface.Height());
        std::string pixels;
        const std::uint32_t* const all = surface.Pixels();
        for (std::size_t i = 0; i < count; ++i)
            pixels.append({static_cast<char>(all[i]), static_cast<char>(all[i] >> 8), static_cast<char>(all[i] >> 16)});
        return pixels;
    }

    static int CountOf(PixelSurface& surface, COLORREF color)
    {
        int count = 0;
        const std::uint32_t wanted = static_cast<std::uint32_t>(GetRValue(color)) << 16 |
                                     static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
        for (int i = 0; i < surface.Width() * surface.Height(); ++i)
            count += (surface.Pixels()[i] & 0xFFFFFF) == wanted ? 1 : 0;
        return count;
    }

    VornCommonApp m_host;
    Chart m_chart;
    PixelSurface m_surface;
};

COLORREF Color(AppColorsType type)
{
    return ColorContext::Instance()->GetColor(type);
}

} // namespace

TEST_F(ChartDrawing, IsTheSamePictureEachTime)
{
    const std::string fast = Drawn(Chart::Quality::Fast);
    EXPECT_EQ(Drawn(Chart::Quality::Fast), fast);
    const std::string smooth = Drawn(Chart::Quality::Smooth);
    EXPECT_EQ(Drawn(Chart::Quality::Smooth), smooth);
    EXPECT_NE(fast, smooth);
}

TEST_F(ChartDrawing, ShowsTheSameChartFastAndSmooth)
{
    const std::string fast = Drawn(Chart::Quality::Fast);
    const std::string smooth = Drawn(Chart::Quality::Smooth);
    int distant = 0;
    for (std::size_t i = 0; i < fast.size(); ++i)
        distant += std::abs(static_cast<unsigned char>(fast[i]) - static_cast<unsigned char>(smooth[i])) > 40 ? 1 : 0;
    EXPECT_LT(distant, static_cast<int>(fast.size() / 12)); // edges alone
}

TEST_F(ChartDrawing, ChangesWithTheColourState)
{
    const std::string day = Drawn(Chart::Quality::Smooth);
    EXPECT_GT(CountOf(m_surface, Color(APPCOLOR_WATER)), 2'000);
    ColorContext::Instance()->SetCurrentState(COLORSTATE_NIGHT);
    EXPECT_NE(Drawn(Chart::Quality::Smooth), day);
    EXPECT_GT(CountOf(m_surface, Color(APPCOLOR_WATER)), 2'000);
    ColorContext::Instance()->SetCurrentState(COLORSTATE_DAY);
    EXPECT_EQ(Drawn(Chart::Quality::Smooth), day);
}

TEST_F(ChartDrawing, GoesStraightToAnyDeviceAndLeavesItAsItWas)
{
    PixelSurface sheet;
    ASSERT_TRUE(sheet.SetSize(kWidth + 40, kHeight + 60));
    CDC& dc = sheet.Get();
    const CRect all(0, 0, kWidth + 40, kHeight + 60);
    dc.FillSolidRect(&all, RGB(1, 2, 3));
    const HGDIOBJ font = GetCurrentObject(dc, OBJ_FONT);
    const HGDIOBJ pen = GetCurrentObject(dc, OBJ_PEN);
    const HGDIOBJ brush = GetCurrentObject(dc, OBJ_BRUSH);
    m_chart.DrawDirectly(dc, 20, 30);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_FONT), font);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), brush);
    EXPECT_GT(CountOf(sheet, Color(APPCOLOR_WATER)), 2'000);
    EXPECT_GE(CountOf(sheet, RGB(1, 2, 3)), (kWidth + 40) * (kHeight + 60) - kWidth * kHeight); // nothing beside it
}

TEST_F(ChartDrawing, GoesIntoAMetafile)
{
    CMetaFileDC metafile;
    ASSERT_TRUE(metafile.CreateEnhanced(nullptr, nullptr, nullptr, "Chart"));
    CDC screen;
    screen.CreateDC("DISPLAY", nullptr, nullptr, nullptr);
    metafile.SetAttribDC(screen);
    m_chart.DrawDirectly(metafile, 0, 0);
    metafile.ReleaseAttribDC();
    const HENHMETAFILE records = metafile.CloseEnhanced();
    ASSERT_NE(records, nullptr);
    ENHMETAHEADER header{};
    GetEnhMetaFileHeader(records, sizeof header, &header);
    EXPECT_GT(header.nRecords, 300u);
    const CRect area(0, 0, kWidth, kHeight);
    m_surface.Get().FillSolidRect(&area, RGB(255, 255, 255));
    EXPECT_TRUE(PlayEnhMetaFile(m_surface.Get(), records, &area));
    EXPECT_GT(CountOf(m_surface, Color(APPCOLOR_WATER)), 1'000);
    DeleteEnhMetaFile(records);
}

TEST_F(ChartDrawing, HoldsNoMoreHandlesFromFrameToFrame)
{
    Drawn(Chart::Quality::Fast);
    Drawn(Chart::Quality::Smooth);
    const unsigned before = vorn::test::CountGdiObjects();
    const int kept = ResMgr::Inst()->GetResourceCount();
    for (int frame = 0; frame < 60; ++frame)
    {
        m_chart.View().Pan(frame % 2 == 0 ? 3 : -3, 0);
        Drawn(frame % 3 == 0 ? Chart::Quality::Smooth : Chart::Quality::Fast);
    }
    EXPECT_EQ(ResMgr::Inst()->GetResourceCount(), kept);
    EXPECT_LE(vorn::test::CountGdiObjects(), before);
}

TEST_F(ChartDrawing, HasFineLinesThatAPrinterCanShow)
{
    const auto width = [](double dotsPerInch)
    {
        LOGPEN pen{};
        GetObjectA(vorn::chart::FinePen(APPCOLOR_GRID, dotsPerInch / 96), sizeof pen, &pen);
        EXPECT_EQ(pen.lopnColor, Color(APPCOLOR_GRID));
        return pen.lopnWidth.x;
    };
    EXPECT_EQ(width(96), 1);
    EXPECT_EQ(width(192), 1);
    EXPECT_EQ(width(300), 2);
    EXPECT_EQ(width(600), 3);
}

TEST_F(ChartDrawing, BecomesAnImageOfTheSamePixels)
{
    const std::string pixels = Drawn(Chart::Quality::Smooth);
    DIB image;
    ASSERT_TRUE(m_chart.DrawInto(image));
    ASSERT_EQ(image.Width(), kWidth);
    ASSERT_EQ(image.Height(), kHeight);
    for (int y = 0; y < kHeight; y += 7)
    {
        for (int x = 0; x < kWidth; ++x)
        {
            BYTE red = 0;
            BYTE green = 0;
            BYTE blue = 0;
            image.GetRGB(x, y, red, green, blue);
            const std::size_t at = static_cast<std::size_t>(y * kWidth + x) * 3;
            ASSERT_EQ(blue, static_cast<BYTE>(pixels[at]));
            ASSERT_EQ(red, static_cast<BYTE>(pixels[at + 2]));
        }
    }
}

TEST_F(ChartDrawing, WorksInEveryProjectionAtEveryScale)
{
    for (int projection = 0; projection < PROJECTION_BUILT_IN_COUNT; ++projection)
    {
        ASSERT_TRUE(m_chart.SetProjection(projection));
        for (const LatLon& centre : {LatLon(47.5, -122), LatLon(0, 179.9), LatLon(85, 0), LatLon(-85, 120)})
        {
            for (const double scale : {100'000.0, 4'000'000.0, 60'000'000.0})
            {
                m_chart.View().SetCentre(centre);
                m_chart.View().SetScale(scale);
                EXPECT_FALSE(Drawn(Chart::Quality::Fast).empty());
            }
        }
    }
    EXPECT_FALSE(m_chart.SetProjection(PROJECTION_BUILT_IN_COUNT + 90));
    EXPECT_EQ(m_chart.ProjectionNumber(), PROJECTION_BUILT_IN_COUNT - 1);
}

TEST_F(ChartDrawing, TakesTheParametersOfAStoredView)
{
    const auto drawnFar = [this]
    {
        m_chart.View().SetScale(20'000'000);
        return Drawn(Chart::Quality::Fast);
    };
    const std::string own = drawnFar();
    ViewDefinition view;
    m_chart.Store(view);
    EXPECT_EQ(view.mParams, (std::vector<double>{44, 52}));
    view.mParams = {20, 70, 1};
    ASSERT_TRUE(m_chart.Restore(view));
    EXPECT_FALSE(drawnFar() == own);
    ViewDefinition stored;
    m_chart.Store(stored);
    EXPECT_EQ(stored.mParams, (std::vector<double>{20, 70}));
    ASSERT_TRUE(m_chart.SetProjection(PROJECTION_LAMBERT_CONFORMAL));
    m_chart.Store(stored);
    EXPECT_EQ(stored.mParams, (std::vector<double>{44, 52})) << "a projection chosen anew has the chart's own";
    view.mParams.clear();
    ASSERT_TRUE(m_chart.Restore(view));
    m_chart.Store(stored);
    EXPECT_EQ(stored.mParams, (std::vector<double>{44, 52}));
}

TEST_F(ChartDrawing, KeepsItsMapWhenThatOfAViewCannotBe)
{
    const std::string before = Drawn(Chart::Quality::Fast);
    ViewDefinition view;
    m_chart.Store(view);
    view.mScale *= 2;
    for (const std::vector<double>& parameters : {std::vector<double>{100, 45}, std::vector<double>{45, -45}})
    {
        view.mParams = parameters;
        EXPECT_FALSE(m_chart.Restore(view));
    }
    view.mProjection = PROJECTION_BUILT_IN_COUNT + 5;
    EXPECT_FALSE(m_chart.Restore(view));
    EXPECT_TRUE(Drawn(Chart::Quality::Fast) == before);
}

TEST_F(ChartDrawing, ComesBackFromAStoredView)
{
    ViewDefinition view;
    m_chart.Store(view);
    const std::string before = Drawn(Chart::Quality::Fast);
    m_chart.SetProjection(PROJECTION_MERCATOR);
    m_chart.ShowRegion();
    EXPECT_NE(Drawn(Chart::Quality::Fast), before);
    ASSERT_TRUE(m_chart.Restore(view));
    EXPECT_EQ(Drawn(Chart::Quality::Fast), before);
}
