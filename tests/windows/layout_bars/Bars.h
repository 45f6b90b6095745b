#pragma once

#include "framework/include/afxext.h"
#include "framework/include/afxwin.h"
#include "tests/windows/layout_bars/resource.h"
#include "toolkit/ResizableDialogBar.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace vorn::test
{

constexpr UINT kBarId = 28674;

/// A field and a list that grow, and a button at their right end.
template <typename Base>
class ListBar : public Base
{
public:
    using Base::Base;
    using Base::LayoutMinimum;
    using Base::m_dwStyle;
    using Base::m_strSection;
    using LayoutManagement::LayoutMgr::GetTrackSizes;
    using LayoutManagement::LayoutMgr::LockLayout;
    using LayoutManagement::LayoutMgr::SetRootBorders;

    bool declares = true;
    bool isBounded = false;
    int initialised = 0;

protected:
    BOOL OnInitDialog() override
    {
        using LayoutManagement::LayoutMgr;
        const BOOL result = Base::OnInitDialog();
        ++initialised;
        if (declares && isBounded)
        {
            this->CreateRoot(LayoutMgr::Vertical, 5, 0) << this->item(IDC_AIDS, LayoutMgr::FixedBoth, 120, 80);
        }
        else if (declares)
        {
            auto buttons = this->pane(LayoutMgr::Horizontal, LayoutMgr::FixedHeight, 5);
            buttons << this->itemSpace(LayoutMgr::Horizontal) << this->item(IDC_SHOW, LayoutMgr::FixedBoth);
            this->CreateRoot(LayoutMgr::Vertical, 5, 0)
                << this->item(IDC_FIND, LayoutMgr::FixedHeight, 0, 0, 80)
                << this->item(IDC_AIDS, LayoutMgr::Greedy, 0, 0, 80, 40) << buttons;
        }
        return result;
    }
};

/// A bar that notes what its tracker inverts, and what is written.
class AidsBar : public ListBar<ResizableDialogBar>
{
public:
    std::map<std::vector<LONG>, int> inverted; ///< how often each rectangle
    std::vector<CRect> tracks;                 ///< in order
    int writes = 0;

    void WriteSizes() override
    {
        ++writes;
        ResizableDialogBar::WriteSizes();
    }

protected:
    void OnInvertTracker(const CRect& rect) override
    {
        ++inverted[{rect.left, rect.top, rect.right, rect.bottom}];
        tracks.push_back(rect);
        ResizableDialogBar::OnInvertTracker(rect);
    }
};

/// A frame of 400 x 300 pixels of client area at (100, 100), and its settings.
class LayoutBars : public testing::Test
{
protected:
    LayoutBars();
    ~LayoutBars() override;

    void Restart();
    CRect PlaceOf(const CWnd& window) const;
    static CRect OnScreen(const CWnd& window);
    static CSize SizeOf(const CWnd& bar, int id);
    /// The smallest client area of the three controls: the field, the list and the button below one another, 5 between
    /// them and 5 around. Across, the list's least width or gap, spacing and button count.
    static CSize LeastClient(const CWnd& bar);
    /// What the settings hold under an entry; empty for nothing.
    static std::string Stored(const char* entry);
    static void Store(const char* entry, const char* value);

    CFrameWnd* frame = nullptr;
};

} // namespace vorn::test
