#include "config/AppRegMgr.h"
#include "frame/VornCommonApp.h"
#include "frame/WindowPlacement.h"
#include "framework/include/afxext.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <string>

namespace
{
/// A host whose settings are kept in memory.
class MemoryHost : public VornCommonApp
{
public:
    CString GetSettingString(const char* section, const char* key, const char* defaultValue) override
    {
        const auto found = section && key ? texts.find(std::string(section) + '/' + key) : texts.end();
        return found == texts.end() ? CString(defaultValue) : CString(found->second.c_str());
    }

    void WriteSettingString(const char* section, const char* key, const char* value) override
    {
        texts[std::string(section) + '/' + key] = value;
    }

    std::map<std::string, std::string> texts;
};

/// A frame that lives in its test instead of deleting itself.
class TestFrame : public CFrameWnd
{
public:
    ~TestFrame() override
    {
        if (m_hWnd)
        {
            DestroyWindow();
        }
    }
    void PostNcDestroy() override
    {
    }
};

class StoredPlacement : public testing::Test
{
protected:
    StoredPlacement()
    {
        VornCommonApp::Inst(&host);
    }
    ~StoredPlacement() override
    {
        VornCommonApp::FreeInst();
        AppRegMgr::FreeInst();
    }

    void Store(const std::string& text)
    {
        host.texts["Window/Main"] = text;
    }

    bool Read()
    {
        std::memset(&placement, 0x55, sizeof placement);
        return ReadWindowPlacement("Window", "Main", &placement);
    }

    bool IsUntouched() const
    {
        WINDOWPLACEMENT pattern;
        std::memset(&pattern, 0x55, sizeof pattern);
        return std::memcmp(&pattern, &placement, sizeof pattern) == 0;
    }

    MemoryHost host;
    WINDOWPLACEMENT placement{};
};

/// The same with a real, hidden frame window of 300 by 200 pixels.
class ShownFrame : public StoredPlacement
{
protected:
    ShownFrame()
    {
        CreateFrame();
    }

    void CreateFrame()
    {
        ASSERT_TRUE(frame.Create(nullptr, "placement", WS_OVERLAPPEDWINDOW, CRect(10, 10, 310, 210)));
    }

    WINDOWPLACEMENT Placed()
    {
        WINDOWPLACEMENT result{};
        result.length = sizeof result;
        frame.GetWindowPlacement(&result);
        return result;
    }

    TestFrame frame;
};

constexpr char kBarsKey[] = "Software\\VornTestBars";

/// The frame with a status bar, and an application that keeps a bar state in which the status bar is hidden.
class FrameWithBars : public ShownFrame
{
protected:
    FrameWithBars() : application("VornTestBars")
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, kBarsKey);
        application.SetRegistryKey("VornTestBars");
        MakeBar();
        bar.ShowWindow(SW_HIDE);
        frame.SaveBarState("Bars");
        bar.ShowWindow(SW_SHOW);
    }
    ~FrameWithBars() override
    {
        RegDeleteTreeA(HKEY_CURRENT_USER, kBarsKey);
    }

    void MakeBar()
    {
        ASSERT_TRUE(bar.Create(&frame));
    }

    bool BarIsShown()
    {
        return (bar.GetStyle() & WS_VISIBLE) != 0;
    }

    CWinApp application;
    CStatusBar bar;
};

void ExpectRect(const RECT& rect, LONG left, LONG top, LONG right, LONG bottom)
{
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.bottom, bottom);
}
} // namespace

TEST_F(StoredPlacement, HasEveryFieldOfItsText)
{
    Store("2,3,-1,-2,-8,-9,10,20,810,620");
    ASSERT_TRUE(Read());
    EXPECT_EQ(placement.length, sizeof placement);
    EXPECT_EQ(placement.length, 44u);
    EXPECT_EQ(placement.flags, 2u);
    EXPECT_EQ(placement.showCmd, 3u);
    EXPECT_EQ(placement.ptMinPosition.x, -1);
    EXPECT_EQ(placement.ptMinPosition.y, -2);
    EXPECT_EQ(placement.ptMaxPosition.x, -8);
    EXPECT_EQ(placement.ptMaxPosition.y, -9);
    ExpectRect(placement.rcNormalPosition, 10, 20, 810, 620);
}

TEST_F(StoredPlacement, IsUntouchedUnlessAllNumbersAreThere)
{
    EXPECT_FALSE(Read());
    EXPECT_TRUE(IsUntouched());
    for (const char* text : {"", "2,3,-1,-2,-8,-9,10,20,810", "nonsense", "2,3,-1,-2,-8,-9,10,20,810,\xFF"})
    {
        Store(text);
        EXPECT_FALSE(Read()) << text;
        EXPECT_TRUE(IsUntouched()) << text;
    }
}

TEST_F(StoredPlacement, ComesOntoTheScreen)
{
    const int height = GetSystemMetrics(SM_CYSCREEN);
    Store("0,1,0,0,0,0,10," + std::to_string(height - 100) + ",400," + std::to_string(height + 100));
    ASSERT_TRUE(Read());
    ExpectRect(placement.rcNormalPosition, 10, 50, 400, 250);
    Store("0,1,0,0,0,0,10,-1,400,299");
    ASSERT_TRUE(Read());
    ExpectRect(placement.rcNormalPosition, 10, 50, 400, 350);
}

TEST_F(StoredPlacement, StaysAtTheVeryEdgesOfTheScreen)
{
    const int height = GetSystemMetrics(SM_CYSCREEN);
    Store("0,1,0,0,0,0,-5000,0,9000," + std::to_string(height));
    ASSERT_TRUE(Read());
    ExpectRect(placement.rcNormalPosition, -5000, 0, 9000, height);
}

TEST_F(StoredPlacement, IsWrittenAsTenNumbers)
{
    placement = {sizeof placement, 2, 3, {-1, -2}, {-8, -9}, {10, -20, 810, 620}};
    WriteWindowPlacement("Window", "Main", &placement);
    EXPECT_EQ(host.texts["Window/Main"], "2,3,-1,-2,-8,-9,10,-20,810,620");
}

TEST_F(StoredPlacement, OfNothingIsNothing)
{
    Store("2,3,-1,-2,-8,-9,10,20,810,620");
    EXPECT_FALSE(ReadWindowPlacement("Window", "Main", nullptr));
    EXPECT_FALSE(ReadWindowPlacement(nullptr, nullptr, &placement));
    host.texts.clear();
    WriteWindowPlacement("Window", "Main", nullptr);
    EXPECT_TRUE(host.texts.empty());
    VornCommonApp::FreeInst();
    EXPECT_FALSE(ReadWindowPlacement("Window", "Main", &placement));
    WriteWindowPlacement("Window", "Main", &placement);
    InitialShowMainFrame(nullptr, "Window", "Main", "Bars", SW_SHOW);
    InitialShowChildFrame(nullptr, "Window", "Main");
}

TEST_F(ShownFrame, MainWindowIsJustShownWithoutPlacement)
{
    InitialShowMainFrame(&frame, "Window", "Main", "Bars", SW_SHOWMAXIMIZED);
    EXPECT_TRUE(frame.IsZoomed());
    ExpectRect(Placed().rcNormalPosition, 10, 10, 310, 210);
}

TEST_F(ShownFrame, MainWindowIsJustShownWithAPlacementThatIsCutShort)
{
    Store("0,3,0,0,0,0,100,120,500");
    InitialShowMainFrame(&frame, "Window", "Main", "Bars", SW_SHOWNORMAL);
    EXPECT_TRUE(frame.IsWindowVisible());
    EXPECT_FALSE(frame.IsZoomed());
    ExpectRect(Placed().rcNormalPosition, 10, 10, 310, 210);
}

TEST_F(ShownFrame, MainWindowComesUpAsStored)
{
    Store("0,1,0,0,0,0,100,120,500,420");
    InitialShowMainFrame(&frame, "Window", "Main", nullptr, SW_SHOWNORMAL);
    EXPECT_TRUE(frame.IsWindowVisible());
    ExpectRect(Placed().rcNormalPosition, 100, 120, 500, 420);
}

TEST_F(ShownFrame, MainWindowComesUpMaximisedAsStored)
{
    Store("0,3,0,0,0,0,100,120,500,420");
    InitialShowMainFrame(&frame, "Window", "Main", "", SW_SHOWNORMAL);
    EXPECT_TRUE(frame.IsZoomed());
    ExpectRect(Placed().rcNormalPosition, 100, 120, 500, 420);
}

TEST_F(ShownFrame, CallersCommandReplacesTheStoredOne)
{
    Store("0,1,0,0,0,0,100,120,500,420");
    InitialShowMainFrame(&frame, "Window", "Main", nullptr, SW_SHOWMAXIMIZED);
    EXPECT_TRUE(frame.IsZoomed());
    ExpectRect(Placed().rcNormalPosition, 100, 120, 500, 420);
}

TEST_F(ShownFrame, CallersHideReplacesTheStoredCommandToo)
{
    Store("0,3,0,0,0,0,100,120,500,420");
    InitialShowMainFrame(&frame, "Window", "Main", nullptr, SW_HIDE);
    EXPECT_FALSE(frame.IsWindowVisible());
}

TEST_F(ShownFrame, ChildWindowIsMaximisedWithoutPlacement)
{
    InitialShowChildFrame(&frame, "Window", "Main");
    EXPECT_TRUE(frame.IsZoomed());
}

TEST_F(ShownFrame, ChildWindowComesUpAsStored)
{
    Store("0,1,0,0,0,0,100,120,500,420");
    InitialShowChildFrame(&frame, "Window", "Main");
    EXPECT_TRUE(frame.IsWindowVisible());
    EXPECT_FALSE(frame.IsZoomed());
    ExpectRect(Placed().rcNormalPosition, 100, 120, 500, 420);
}

TEST_F(ShownFrame, PlacementSurvivesARestart)
{
    Store("0,1,0,0,0,0,100,120,500,420");
    InitialShowMainFrame(&frame, "Window", "Main", nullptr, SW_SHOWNORMAL);
    frame.SetWindowPos(nullptr, 130, 140, 440, 330, SWP_NOZORDER | SWP_NOACTIVATE);
    WINDOWPLACEMENT left = Placed();
    WriteWindowPlacement("Window", "Main", &left);
    frame.DestroyWindow();
    CreateFrame();
    InitialShowMainFrame(&frame, "Window", "Main", nullptr, SW_SHOWNORMAL);
    ExpectRect(Placed().rcNormalPosition, 130, 140, 570, 470);
}

TEST_F(FrameWithBars, LoadsItsBarsWithAPlacement)
{
    Store("0,1,0,0,0,0,100,120,500,420");
    InitialShowMainFrame(&frame, "Window", "Main", "Bars", SW_SHOWNORMAL);
    EXPECT_FALSE(BarIsShown());
}

TEST_F(FrameWithBars, LoadsNoBarsWithoutTheirSection)
{
    Store("0,1,0,0,0,0,100,120,500,420");
    InitialShowMainFrame(&frame, "Window", "Main", "", SW_SHOWNORMAL);
    EXPECT_TRUE(BarIsShown());
    InitialShowMainFrame(&frame, "Window", "Main", nullptr, SW_SHOWNORMAL);
    EXPECT_TRUE(BarIsShown());
}

TEST_F(FrameWithBars, LoadsNoBarsWithoutAPlacement)
{
    InitialShowMainFrame(&frame, "Window", "Main", "Bars", SW_SHOWNORMAL);
    EXPECT_TRUE(BarIsShown());
}
