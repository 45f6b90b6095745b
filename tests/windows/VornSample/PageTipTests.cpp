#include "tests/support/PumpUntil.h"
#include "tests/support/PutCursor.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/VornSample/RunningSample.h"
#include "tests/windows/VornSample/SampleSettings.h"

#include <algorithm>
#include <array>
#include <vector>

// What the controls of the sample's pages tell of themselves.
namespace vorn::test
{

namespace
{

constexpr int kNight = 33303;
constexpr std::array kSurfaces = {2200, 2300, 2400}; // records, chart and picture: what the pages are for

std::vector<HWND> ControlsOf(HWND view)
{
    std::vector<HWND> controls;
    for (HWND child = GetWindow(view, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        if ((GetWindowLongA(child, GWL_STYLE) & WS_TABSTOP) != 0)
            controls.push_back(child);
    }
    return controls;
}

std::string StringOfSample(int number)
{
    char text[512] = {};
    const HMODULE sample = LoadLibraryExA("VornSample.exe", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    LoadStringA(sample, static_cast<UINT>(number), text, sizeof text);
    FreeLibrary(sample);
    return text;
}

struct Popups
{
    HWND owner;
    int visible;
};

BOOL CALLBACK CountPopup(HWND window, LPARAM popups)
{
    auto& found = *reinterpret_cast<Popups*>(popups);
    found.visible += GetWindow(window, GW_OWNER) == found.owner && IsWindowVisible(window) != FALSE;
    return TRUE;
}

int PopupsOf(HWND owner)
{
    Popups found{owner, 0};
    EnumWindows(CountPopup, reinterpret_cast<LPARAM>(&found));
    return found.visible;
}

class SamplePageTips : public RunningSample
{
protected:
    /// Shows a page and waits until its controls are there.
    std::vector<HWND> OpenPage(const std::string& page)
    {
        constexpr int kView = 0xE900;
        Open("--size 900x640 --page " + page);
        PumpUntil(
            [this]
            {
                m_view = GetDlgItem(m_window, kView);
                return ControlsOf(m_view).size() >= 6;
            });
        return ControlsOf(m_view);
    }

    /// The mouse's messages go to what lies below it when it moves: a control that is shown later gets none.
    void WaitUntilOnTop(HWND control) const
    {
        EXPECT_TRUE(PumpUntil(
            [&]
            {
                RECT place{};
                GetWindowRect(control, &place);
                return WindowFromPoint({place.left + 6, place.top + 6}) == control;
            }));
        SendMessage(m_window, WM_NULL, 0, 0); // the tips are made with the page
    }

    ScratchKey m_settings{HKEY_CURRENT_USER, kSettings};
};

} // namespace

TEST_F(SamplePageTips, EachControlHasAText)
{
    for (const std::string page : {"position", "tables", "chart", "pictures"})
    {
        const std::vector<HWND> controls = OpenPage(page);
        EXPECT_GE(controls.size(), 6u) << page;
        for (const HWND control : controls)
        {
            const int number = GetDlgCtrlID(control);
            const bool isSurface = std::find(kSurfaces.begin(), kSurfaces.end(), number) != kSurfaces.end();
            EXPECT_TRUE(isSurface || StringOfSample(number).size() >= 15) << page << ", control " << number;
        }
        End();
    }
}

TEST_F(SamplePageTips, ATextAppearsWhereTheMouseRestsAndGoesWithIt)
{
    PutCursor({GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1}); // the chart has a tip, too
    OpenPage("chart");
    WaitUntilOnTop(Control(kNight));
    RECT place{};
    GetWindowRect(Control(kNight), &place);
    RECT window{};
    GetWindowRect(m_window, &window);
    EXPECT_EQ(PopupsOf(m_window), 0);
    PutCursor({place.left + 6, place.top + 6});
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return PopupsOf(m_window) == 1;
        }));
    PutCursor({window.left + 60, window.bottom - 60}); // the rail, which has none
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return PopupsOf(m_window) == 0;
        }));
    End();
}

} // namespace vorn::test
