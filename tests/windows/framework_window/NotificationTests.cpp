// What controls tell their parent reaches the handler that is named for it, and no other.
#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

namespace
{

constexpr UINT kControl = 300;
constexpr UINT kOther = 301;

#define NOTES(name)                                                                                                    \
    afx_msg void On##name()                                                                                            \
    {                                                                                                                  \
        seen += #name " ";                                                                                             \
    }

class NotifiedParent : public CWnd
{
public:
    std::string seen;
    UINT notified = 0;

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        notified = reinterpret_cast<const NMHDR*>(lParam)->code;
        return CWnd::OnNotify(wParam, lParam, result);
    }

protected:
    NOTES(ButtonClicked)
    NOTES(TextClicked)
    NOTES(EditSetFocus)
    NOTES(EditKillFocus)
    NOTES(EditChange)
    NOTES(ListSelChange)
    NOTES(ListDoubleClick)
    NOTES(MarkChanged)
    NOTES(ComboSelChange)
    NOTES(ComboSelEndOk)
    NOTES(ComboEditChange)
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(NotifiedParent, CWnd)
ON_BN_CLICKED(kControl, &NotifiedParent::OnButtonClicked)
ON_STN_CLICKED(kControl + 10, &NotifiedParent::OnTextClicked)
ON_EN_SETFOCUS(kControl, &NotifiedParent::OnEditSetFocus)
ON_EN_KILLFOCUS(kControl, &NotifiedParent::OnEditKillFocus)
ON_EN_CHANGE(kControl, &NotifiedParent::OnEditChange)
ON_LBN_SELCHANGE(kControl + 20, &NotifiedParent::OnListSelChange)
ON_LBN_DBLCLK(kControl + 20, &NotifiedParent::OnListDoubleClick)
ON_CLBN_CHKCHANGE(kControl + 20, &NotifiedParent::OnMarkChanged)
ON_CBN_SELCHANGE(kControl + 30, &NotifiedParent::OnComboSelChange)
ON_CBN_SELENDOK(kControl + 30, &NotifiedParent::OnComboSelEndOk)
ON_CBN_EDITCHANGE(kControl + 30, &NotifiedParent::OnComboEditChange)
END_MESSAGE_MAP()

class Notifications : public testing::Test
{
protected:
    Notifications()
    {
        CreatePopup(parent);
        CreateChild(child, parent, kControl);
    }
    std::string Tell(UINT id, UINT code)
    {
        parent.seen.clear();
        parent.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(child.m_hWnd));
        return parent.seen;
    }

    NotifiedParent parent;
    CWnd child;
};

} // namespace

TEST_F(Notifications, ReachTheirHandlers)
{
    EXPECT_EQ(Tell(kControl, BN_CLICKED), "ButtonClicked ");
    EXPECT_EQ(Tell(kControl + 10, STN_CLICKED), "TextClicked ");
    EXPECT_EQ(Tell(kControl, EN_SETFOCUS), "EditSetFocus ");
    EXPECT_EQ(Tell(kControl, EN_KILLFOCUS), "EditKillFocus ");
    EXPECT_EQ(Tell(kControl, EN_CHANGE), "EditChange ");
    EXPECT_EQ(Tell(kControl + 20, LBN_SELCHANGE), "ListSelChange ");
    EXPECT_EQ(Tell(kControl + 20, LBN_DBLCLK), "ListDoubleClick ");
    EXPECT_EQ(Tell(kControl + 20, 40), "MarkChanged ") << "of check list boxes";
    EXPECT_EQ(Tell(kControl + 30, CBN_SELCHANGE), "ComboSelChange ");
    EXPECT_EQ(Tell(kControl + 30, CBN_SELENDOK), "ComboSelEndOk ");
    EXPECT_EQ(Tell(kControl + 30, CBN_EDITCHANGE), "ComboEditChange ");
}

TEST_F(Notifications, OfOtherControlsAndOtherKindsReachNobody)
{
    EXPECT_EQ(Tell(kOther, BN_CLICKED), "");
    EXPECT_EQ(Tell(kControl, EN_UPDATE), "");
    EXPECT_EQ(Tell(kControl + 30, CBN_DROPDOWN), "");
}

TEST_F(Notifications, OfCommonControlsPassTheVirtualFunction)
{
    NMHDR header = {child.m_hWnd, kControl, NM_CLICK};
    parent.SendMessage(WM_NOTIFY, kControl, reinterpret_cast<LPARAM>(&header));
    EXPECT_EQ(parent.notified, NM_CLICK);
}
