#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/VornSample/SampleProcess.h"
#include "tests/windows/VornSample/SampleSettings.h"

#include <VornCommon.h>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using vorn::test::PumpUntil;
using vorn::test::SampleProcess;
using vorn::test::ScratchFolder;
using vorn::test::ScratchKey;

namespace
{

// The sample's public numbers: of its view, the chart page's controls and commands.
constexpr int kView = 0xE900;
constexpr int kChart = 2300;
constexpr int kProjection = 2301;
constexpr int kRegionButton = 33302;
constexpr int kNightButton = 33303;
constexpr WPARAM kExportCommand = 33304;
constexpr WPARAM kMercatorCommand = 33311;
constexpr int kFileName = 0x480; // in the system's file dialog
constexpr int kOldFileName = 0x47C;

// 1:2,000,000 at 47.5 N 120 W, Lambert's projection.
constexpr const char* kSeattle = "v1|2|2|44|52|0|0|0|0|12050|180|0|47.5|-121|";

class SampleChart : public testing::Test
{
protected:
    SampleChart()
    {
        const std::string section = std::string(kSettings) + "\\Paths";
        const std::string folder = m_folder.Path().string() + '\\';
        RegSetKeyValueA(HKEY_CURRENT_USER, section.c_str(), "UserHidden Path", REG_SZ, folder.c_str(),
                        static_cast<DWORD>(folder.size() + 1));
    }

    void Start(const std::string& more = "")
    {
        m_sample = std::make_unique<SampleProcess>("--page Chart --size 1100x800 " + more, m_folder.File("output.txt"));
        m_window = m_sample->MainWindow();
        ASSERT_NE(m_window, nullptr);
        m_view = GetDlgItem(m_window, kView);
        ASSERT_TRUE(PumpUntil(
            [&]
            {
                return IsWindowVisible(Control(kChart)) != FALSE && ChartSize().cy > 1;
            }));
    }

    HWND Control(int id) const
    {
        return GetDlgItem(m_view, id);
    }

    HWND Chart() const
    {
        return Control(kChart);
    }

    SIZE ChartSize() const
    {
        RECT area{};
        GetClientRect(Chart(), &area);
        return {area.right, area.bottom};
    }

    /// Ends the sample and takes the view that it has stored.
    ViewDefinition End()
    {
        PostMessageA(m_window, WM_CLOSE, 0, 0);
        EXPECT_EQ(m_sample->ExitCode(), 0u);
        m_sample.reset();
        return Stored();
    }

    static ViewDefinition Stored()
    {
        char text[1024] = "";
        DWORD size = sizeof text;
        const std::string section = std::string(kSettings) + "\\Views";
        RegGetValueA(HKEY_CURRENT_USER, section.c_str(), "Chart", RRF_RT_REG_SZ, nullptr, text, &size);
        ViewDefinition view;
        EXPECT_TRUE(view.Parse(text)) << text;
        return view;
    }

    static DWORD StoredNight()
    {
        DWORD value = 0xDEAD;
        DWORD size = sizeof value;
        const std::string section = std::string(kSettings) + "\\Chart";
        RegGetValueA(HKEY_CURRENT_USER, section.c_str(), "Night", RRF_RT_REG_DWORD, nullptr, &value, &size);
        return value;
    }

    void Press(WPARAM key) const
    {
        PostMessageA(Chart(), WM_KEYDOWN, key, 1);
        PostMessageA(Chart(), WM_KEYUP, key, 1);
    }

    DWORD Run(const std::string& arguments)
    {
        const SampleProcess sample(arguments, m_folder.File("output.txt"));
        return sample.ExitCode();
    }

    /// Names the picture in the system's dialog. False when that does not come.
    bool NameExport(const char* name)
    {
        PostMessageA(m_window, WM_COMMAND, kExportCommand, 0);
        const HWND dialog = m_sample->Dialog();
        HWND field = GetDlgItem(dialog, kOldFileName);
        if (field == nullptr)
            field = GetDlgItem(dialog, kFileName);
        if (field == nullptr)
            return false;
        SendMessageA(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(m_folder.File(name).c_str()));
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
        return PumpUntil(
            [dialog]
            {
                return IsWindow(dialog) == FALSE;
            });
    }

    std::string Export(const char* name)
    {
        EXPECT_TRUE(NameExport(name));
        EXPECT_TRUE(PumpUntil(
            [&]
            {
                return IsWindowEnabled(m_window) != FALSE && !m_folder.Read(name).empty();
            }));
        SendMessageA(m_window, WM_NULL, 0, 0); // the command has ended
        return m_folder.File(name);
    }

    ScratchFolder m_folder;
    ScratchKey m_settings{HKEY_CURRENT_USER, kSettings};
    std::unique_ptr<SampleProcess> m_sample;
    HWND m_window = nullptr;
    HWND m_view = nullptr;
};

LPARAM At(int x, int y)
{
    return MAKELPARAM(x, y);
}

double MeanLight(const DIB& image)
{
    double sum = 0;
    for (int y = 0; y < image.Height(); y += 5)
    {
        for (int x = 0; x < image.Width(); x += 5)
        {
            BYTE red = 0;
            BYTE green = 0;
            BYTE blue = 0;
            image.GetRGB(x, y, red, green, blue);
            sum += red + green + blue;
        }
    }
    return sum / 3 / ((image.Height() + 4) / 5) / ((image.Width() + 4) / 5);
}

} // namespace

TEST_F(SampleChart, ShowsTheWholeRegionAtFirst)
{
    Start();
    const ViewDefinition view = End();
    EXPECT_EQ(view.mProjection, PROJECTION_LAMBERT_CONFORMAL);
    // Aids from 42 to 54 degrees north and 111 to 131 west.
    EXPECT_NEAR(view.mCenterLat, 48, 1.5);
    EXPECT_NEAR(view.mCenterLon, -120, 2);
}

TEST_F(SampleChart, ComesBackWithTheViewThatItWasLeftWith)
{
    Start(std::string("--view \"") + kSeattle + '"');
    const ViewDefinition left = End();
    EXPECT_EQ(left.mCenterLat, 47.5);
    EXPECT_EQ(left.mCenterLon, -121);
    EXPECT_NEAR(left.mScale, 12050, 1e-6);

    Start();
    const ViewDefinition again = End();
    EXPECT_EQ(again.mProjection, left.mProjection);
    EXPECT_EQ(again.mParams, left.mParams);
    EXPECT_NEAR(again.mScale, left.mScale, 1e-6);
    EXPECT_EQ(again.mCenterLat, left.mCenterLat);
    EXPECT_EQ(again.mCenterLon, left.mCenterLon);
}

TEST_F(SampleChart, ZoomsByTheWheelAboutThePointer)
{
    Start(std::string("--view \"") + kSeattle + '"');
    const SIZE size = ChartSize();
    POINT corner{0, 0};
    ClientToScreen(Chart(), &corner);
    PostMessageA(Chart(), WM_MOUSEWHEEL, MAKEWPARAM(0, 2 * WHEEL_DELTA), At(corner.x, corner.y));
    const ViewDefinition view = End();
    // The scale at the centre grows by 1.25 twice, but for the map's own scale, which changes with the latitude.
    EXPECT_NEAR(view.mScale / 12050, 1.25 * 1.25, 0.01);
    // The upper left corner stays: the centre goes there by 36 percent of the way.
    const double pixels = (1 - 1 / 1.5625) * size.cy / 2;
    const double degrees = pixels / 12050 * 180 / 3.14159265;
    EXPECT_NEAR(view.mCenterLat - 47.5, degrees, 0.1);
    EXPECT_LT(view.mCenterLon, -121.5);
}

TEST_F(SampleChart, FollowsTheHandThatDragsIt)
{
    Start(std::string("--view \"") + kSeattle + '"');
    PostMessageA(Chart(), WM_LBUTTONDOWN, MK_LBUTTON, At(300, 300));
    PostMessageA(Chart(), WM_MOUSEMOVE, MK_LBUTTON, At(350, 320));
    PostMessageA(Chart(), WM_MOUSEMOVE, MK_LBUTTON, At(400, 400));
    PostMessageA(Chart(), WM_LBUTTONUP, 0, At(400, 400));
    PostMessageA(Chart(), WM_MOUSEMOVE, 0, At(10, 10)); // moves nothing any more
    const ViewDefinition view = End();
    EXPECT_NEAR(view.mCenterLat - 47.5, 100 / 12050.0 * 180 / 3.14159265, 0.05);
    EXPECT_NEAR(view.mCenterLon + 121, -100 / 12050.0 * 180 / 3.14159265 / std::cos(47.9 * 3.14159265 / 180), 0.05);
    EXPECT_NEAR(view.mScale, 12050, 60);
}

TEST_F(SampleChart, LetsThePointerGoThatPressesBesideTheMap)
{
    Start("--view \"v1|5|0|0|0|0|0|500|180|0|47.5|-121|\""); // a globe smaller than the window
    const HWND chart = Chart();
    const auto captured = [chart]
    {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(chart, nullptr), &info);
        return info.hwndCapture;
    };
    const SIZE size = ChartSize();
    SendMessageA(chart, WM_LBUTTONDOWN, MK_LBUTTON, At(size.cx / 2, size.cy / 2));
    EXPECT_EQ(captured(), chart) << "on the globe";
    SendMessageA(chart, WM_LBUTTONUP, 0, At(size.cx / 2, size.cy / 2));
    EXPECT_EQ(captured(), nullptr);
    SendMessageA(chart, WM_LBUTTONDOWN, MK_LBUTTON, At(2, 2));
    SendMessageA(chart, WM_LBUTTONUP, 0, At(2, 2));
    EXPECT_EQ(captured(), nullptr) << "beside it";
    End();
}

TEST_F(SampleChart, MovesByKeys)
{
    Start(std::string("--view \"") + kSeattle + '"');
    for (int i = 0; i < 5; ++i)
        Press(VK_RIGHT);
    Press(VK_ADD);
    const ViewDefinition view = End();
    EXPECT_GT(view.mCenterLon, -121 + 1.5);
    EXPECT_NEAR(view.mScale / 12050, 1.25, 0.01);
}

TEST_F(SampleChart, GoesBackToTheRegionByItsButton)
{
    Start(std::string("--view \"") + kSeattle + '"');
    SendMessageA(Control(kRegionButton), BM_CLICK, 0, 0);
    const ViewDefinition view = End();
    EXPECT_LT(view.mScale, 12050 / 2.0);
    EXPECT_NEAR(view.mCenterLat, 48, 1.5);
}

TEST_F(SampleChart, ChangesItsProjectionByTheListTheMenuAndAKey)
{
    Start(std::string("--view \"") + kSeattle + '"');
    EXPECT_EQ(SendMessageA(Control(kProjection), CB_GETCURSEL, 0, 0), 2);
    SendMessageA(Control(kProjection), CB_SETCURSEL, 5, 0);
    SendMessageA(m_view, WM_COMMAND, MAKEWPARAM(kProjection, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(Control(kProjection)));
    ViewDefinition view = End();
    EXPECT_EQ(view.mProjection, PROJECTION_ORTHOGRAPHIC);
    EXPECT_EQ(view.mCenterLat, 47.5);

    Start();
    EXPECT_EQ(SendMessageA(Control(kProjection), CB_GETCURSEL, 0, 0), 5);
    SendMessageA(m_window, WM_COMMAND, kMercatorCommand, 0);
    EXPECT_EQ(SendMessageA(Control(kProjection), CB_GETCURSEL, 0, 0), 1);
    Press('P');
    Press('P');
    view = End();
    EXPECT_EQ(view.mProjection, PROJECTION_POLAR_STEREOGRAPHIC);
    EXPECT_EQ(view.mCenterLat, 47.5);
}

TEST_F(SampleChart, HasNightColoursOnAKeyAndKeepsThem)
{
    Start();
    Press('N');
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return SendMessageA(Control(kNightButton), BM_GETCHECK, 0, 0) == BST_CHECKED;
        }));
    End();
    EXPECT_EQ(StoredNight(), 1u);
    Start();
    EXPECT_EQ(SendMessageA(Control(kNightButton), BM_GETCHECK, 0, 0), BST_CHECKED);
    SendMessageA(Control(kNightButton), BM_CLICK, 0, 0);
    End();
    EXPECT_EQ(StoredNight(), 0u);
}

TEST_F(SampleChart, TakesItsScaleOutOfTheStatusBarWhenItGoes)
{
    constexpr int kStatusBar = 0xE801;
    constexpr WPARAM kFirstPage = 33100;
    Start();
    const auto status = [this]
    {
        char text[200] = "";
        SendMessageA(GetDlgItem(m_window, kStatusBar), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        return std::string(text);
    };
    PostMessageA(Chart(), WM_KEYDOWN, VK_ADD, 0); // tells the new scale
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return status().find("1 : ") != std::string::npos;
        }))
        << status();
    PostMessageA(m_window, WM_COMMAND, kFirstPage, 0);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return status() == "Ready";
        }))
        << status();
    End();
}

TEST_F(SampleChart, IsExportedAsPngBitmapAndJpeg)
{
    Start(std::string("--view \"") + kSeattle + '"');
    const SIZE size = ChartSize();
    DIB png;
    DIB bmp;
    DIB jpeg;
    ASSERT_TRUE(png.ReadPNG(Export("chart.png").c_str()));
    ASSERT_TRUE(bmp.ReadBMP(Export("chart.bmp").c_str()));
    ASSERT_TRUE(jpeg.ReadUnknown(Export("chart.jpg").c_str()));
    EXPECT_EQ(m_folder.Read("chart.jpg").substr(0, 2), "\xFF\xD8");
    End();
    for (const DIB* image : {&png, &bmp, &jpeg})
    {
        EXPECT_EQ(image->Width(), size.cx);
        EXPECT_EQ(image->Height(), size.cy);
    }
    int different = 0;
    double jpegOff = 0;
    for (int y = 0; y < size.cy; ++y)
    {
        for (int x = 0; x < size.cx; ++x)
        {
            BYTE first[3];
            BYTE second[3];
            BYTE third[3];
            png.GetRGB(x, y, first[0], first[1], first[2]);
            bmp.GetRGB(x, y, second[0], second[1], second[2]);
            jpeg.GetRGB(x, y, third[0], third[1], third[2]);
            different += first[0] != second[0] || first[1] != second[1] || first[2] != second[2] ? 1 : 0;
            jpegOff += std::abs(first[1] - third[1]);
        }
    }
    EXPECT_EQ(different, 0);
    EXPECT_LT(jpegOff / size.cx / size.cy, 4);
    EXPECT_GT(MeanLight(png), 120);
}

TEST_F(SampleChart, SaysWhatNamesAPictureMayHave)
{
    constexpr int kMessageText = 0xFFFF;
    Start(std::string("--view \"") + kSeattle + '"');
    ASSERT_TRUE(NameExport("chart.gif"));
    const HWND box = m_sample->Dialog();
    ASSERT_NE(box, nullptr);
    char text[100] = "";
    GetDlgItemTextA(box, kMessageText, text, sizeof text);
    EXPECT_STREQ(text, "The name must end in .png, .jpg or .bmp.");
    PostMessageA(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(PumpUntil(
        [this]
        {
            return IsWindowEnabled(m_window) != FALSE;
        }));
    EXPECT_EQ(m_folder.Read("chart.gif"), "");
    End();
}

TEST_F(SampleChart, TellsItsViewInTheSummary)
{
    EXPECT_EQ(Run(std::string("--page Chart --summary --size 900x700 --view \"") + kSeattle + '"'), 0u);
    const std::string text = m_folder.Read("output.txt");
    EXPECT_NE(text.find("  Aids        156\n"), std::string::npos) << text;
    EXPECT_NE(text.find("  Projection  Lambert conformal conic\n"), std::string::npos) << text;
    EXPECT_NE(text.find("|180|0|47.5|-121|\n"), std::string::npos) << text;
    // Nobody has left this view: the stored one stays.
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, (std::string(kSettings) + "\\Views").c_str(), 0, KEY_READ, &key),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(Run("--page Chart --summary --view nonsense"), 1u);
    EXPECT_EQ(m_folder.Read("output.txt"), "VornSample: --view is no text of a view\n");
}
