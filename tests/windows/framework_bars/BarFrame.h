#pragma once

#include "framework/include/afxcmn.h"
#include "framework/include/afxext.h"
#include "framework/include/afxwin.h"
#include "tests/windows/framework_bars/resource.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vorn::test
{

/// What the test classes note down, in order; emptied before each test.
std::string& Notes();
/// Frames and bars made with new that live.
int& Living();

/// A bar of a fixed size, other when it stands.
class SizedBar : public CControlBar
{
public:
    explicit SizedBar(CSize lying = CSize(100, 20), CSize standing = CSize(30, 80));
    ~SizedBar() override;
    BOOL Create(CWnd* parent, UINT id, DWORD barStyle = CBRS_TOP, const char* title = "Bar");
    CSize CalcDynamicLayout(int length, DWORD mode) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

    CSize lying;
    CSize standing;
    CSize floating{0, 0}; ///< empty: as it lies
    std::vector<DWORD> modes;
    CFrameWnd* updatedFor = nullptr;
    bool saysWhenItEnds = false;
    using CControlBar::m_dwDockStyle;
};

/// A frame with a view of colour, and a command that it notes.
class BarFrame : public CFrameWnd
{
public:
    BarFrame();
    ~BarFrame() override;
    /// Shown, with a client area of that size at (100, 100).
    BOOL Show(CSize client = CSize(400, 300));
    CRect ClientOnScreen() const;
    /// The dock at a side, of AFX_IDW_DOCKBAR_; null when there is none.
    CDockBar* Dock(UINT id);
    std::vector<bool> captionLooks; ///< what WM_NCACTIVATE said

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnGo();
    afx_msg void OnAccel();
    afx_msg void OnNameChanged();
    afx_msg void OnUpdateGo(CCmdUI* cmdUI);
    DECLARE_MESSAGE_MAP()
};

class BarsTest : public testing::Test
{
protected:
    BarsTest();
    ~BarsTest() override;

    /// A bar that may be docked everywhere.
    void Make(SizedBar& bar, UINT id, DWORD barStyle = CBRS_TOP);
    /// Place in the frame's client area.
    CRect PlaceOf(const CWnd& window) const;
    static CRect OnScreen(const CWnd& window);
    CFloatingBarFrame* FrameOf(const CControlBar& bar) const;
    CRect ViewPlace() const;

    BarFrame* frame;
};

/// The floating frames that exist on this thread.
int FloatingFrames();
/// Windows of this thread, children included.
int WindowsOfThisThread();

constexpr UINT kFirst = 0xE830;
constexpr UINT kSecond = 0xE831;
constexpr UINT kThird = 0xE832;

} // namespace vorn::test
