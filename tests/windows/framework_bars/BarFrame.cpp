#include "tests/windows/framework_bars/BarFrame.h"

#include "tests/support/PumpUntil.h"

namespace vorn::test
{
namespace
{

class TestApp : public CWinApp
{
public:
    TestApp() : CWinApp("BarTests")
    {
    }
};

TestApp theApp;

BOOL CALLBACK CountChild(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountWindows(HWND window, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    ::EnumChildWindows(window, CountChild, count);
    return TRUE;
}

BOOL CALLBACK CountFloating(HWND window, LPARAM count)
{
    if (DYNAMIC_DOWNCAST(CFloatingBarFrame, CWnd::FromHandlePermanent(window)))
    {
        ++*reinterpret_cast<int*>(count);
    }
    return TRUE;
}

/// What the bars leave of the frame.
class Middle : public CWnd
{
public:
    Middle()
    {
        ++Living();
    }
    ~Middle() override
    {
        --Living();
    }

protected:
    void PostNcDestroy() override
    {
        delete this; // made with new by the frame, ends with its window
    }
};

} // namespace

std::string& Notes()
{
    static std::string notes;
    return notes;
}

int& Living()
{
    static int count = 0;
    return count;
}

int FloatingFrames()
{
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountFloating, reinterpret_cast<LPARAM>(&count));
    return count;
}

int WindowsOfThisThread()
{
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWindows, reinterpret_cast<LPARAM>(&count));
    return count;
}

SizedBar::SizedBar(CSize lyingSize, CSize standingSize) : lying(lyingSize), standing(standingSize)
{
}

SizedBar::~SizedBar()
{
    if (saysWhenItEnds)
    {
        Notes() += "~bar ";
    }
}

BOOL SizedBar::Create(CWnd* parent, UINT id, DWORD barStyle, const char* title)
{
    m_dwStyle = barStyle & CBRS_ALL;
    return CWnd::Create(nullptr, title, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), parent, id);
}

CSize SizedBar::CalcDynamicLayout(int, DWORD mode)
{
    modes.push_back(mode);
    if (mode & LM_STRETCH)
    {
        return mode & LM_HORZ ? CSize(32767, lying.cy) : CSize(standing.cx, 32767);
    }
    if ((mode & LM_MRUWIDTH) && floating.cx > 0)
    {
        return floating;
    }
    return WithGripper(mode & LM_HORZ ? lying : standing, (mode & LM_HORZ) != 0);
}

void SizedBar::OnUpdateCmdUI(CFrameWnd* target, BOOL)
{
    updatedFor = target;
}

BEGIN_MESSAGE_MAP(BarFrame, CFrameWnd)
ON_COMMAND(ID_TEST_GO, &BarFrame::OnGo)
ON_COMMAND(ID_TEST_ACCEL, &BarFrame::OnAccel)
ON_EN_CHANGE(ID_TEST_NAME, &BarFrame::OnNameChanged)
ON_UPDATE_COMMAND_UI(ID_TEST_GO, &BarFrame::OnUpdateGo)
END_MESSAGE_MAP()

BarFrame::BarFrame()
{
    ++Living();
}

BarFrame::~BarFrame()
{
    --Living();
    Notes() += "~frame ";
}

BOOL BarFrame::Show(CSize client)
{
    CRect rect(CPoint(100, 100), client);
    ::AdjustWindowRect(&rect, WS_OVERLAPPEDWINDOW, FALSE);
    if (!Create(nullptr, "Bars", WS_OVERLAPPEDWINDOW, rect))
    {
        return FALSE;
    }
    auto* middle = new Middle;
    middle->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST);
    ShowWindow(SW_SHOW);
    RecalcLayout();
    UpdateWindow();
    return TRUE;
}

CRect BarFrame::ClientOnScreen() const
{
    CRect rect;
    GetClientRect(&rect);
    ClientToScreen(&rect);
    return rect;
}

CDockBar* BarFrame::Dock(UINT id)
{
    return DYNAMIC_DOWNCAST(CDockBar, GetControlBar(id));
}

LRESULT BarFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCACTIVATE)
    {
        captionLooks.push_back(wParam != 0);
    }
    return CFrameWnd::WindowProc(message, wParam, lParam);
}

void BarFrame::OnGo()
{
    Notes() += "go ";
}

void BarFrame::OnAccel()
{
    Notes() += "accelerator ";
}

void BarFrame::OnNameChanged()
{
    Notes() += "name ";
}

void BarFrame::OnUpdateGo(CCmdUI* cmdUI)
{
    cmdUI->Enable(TRUE);
}

BarsTest::BarsTest() : frame(new BarFrame)
{
    Notes().clear();
    theApp.m_pMainWnd = nullptr;
    EXPECT_TRUE(frame->Show());
}

BarsTest::~BarsTest()
{
    if (frame)
    {
        frame->DestroyWindow();
    }
    PumpWaiting();
    EXPECT_EQ(0, Living()) << "every frame ends with its test";
    EXPECT_EQ(0, FloatingFrames());
}

void BarsTest::Make(SizedBar& bar, UINT id, DWORD barStyle)
{
    ASSERT_TRUE(bar.Create(frame, id, barStyle));
    bar.EnableDocking(CBRS_ALIGN_ANY);
}

CRect BarsTest::OnScreen(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return rect;
}

CRect BarsTest::PlaceOf(const CWnd& window) const
{
    CRect rect = OnScreen(window);
    frame->ScreenToClient(&rect);
    return rect;
}

CRect BarsTest::ViewPlace() const
{
    return PlaceOf(*frame->GetDlgItem(AFX_IDW_PANE_FIRST));
}

CFloatingBarFrame* BarsTest::FrameOf(const CControlBar& bar) const
{
    return DYNAMIC_DOWNCAST(CFloatingBarFrame, bar.GetParentFrame());
}

} // namespace vorn::test
