#include "framework/window/ModuleState.h"
#include "tests/support/PumpUntil.h"
#include "toolkit/options/OptionTree.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace
{

/// A window that hears of selections.
class Target : public CWnd
{
public:
    Target()
    {
        CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE, 30, 30, 300, 300, nullptr, nullptr);
    }
    ~Target() override
    {
        DestroyWindow();
    }

    std::vector<HTREEITEM> told;
    std::vector<WPARAM> firstParameters;

protected:
    afx_msg LRESULT OnSelection(WPARAM wParam, LPARAM lParam)
    {
        firstParameters.push_back(wParam);
        told.push_back(reinterpret_cast<HTREEITEM>(lParam));
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Target, CWnd)
ON_MESSAGE(1391, &Target::OnSelection)
END_MESSAGE_MAP()

/// Notes the calls of its handler.
class NotingTree : public OptionTree
{
public:
    void OnSelchanged(HTREEITEM item) override
    {
        calls.push_back(item);
        if (then)
        {
            then();
        }
        OptionTree::OnSelchanged(item);
    }
    std::vector<HTREEITEM> calls;
    std::function<void()> then;
};

class OptionTreeTest : public testing::Test
{
protected:
    void Make(DWORD style = WS_VISIBLE)
    {
        ASSERT_TRUE(m_tree.Create(WS_CHILD | style, {0, 0, 200, 200}, &m_target, 5));
    }

    /// The tree as text: "A(B C(D)) E".
    std::string Shape(HTREEITEM item = TVI_ROOT) const
    {
        std::string all;
        for (HTREEITEM child = m_tree.GetChildItem(item); child != nullptr; child = m_tree.GetNextSiblingItem(child))
        {
            all += all.empty() ? "" : " ";
            all += m_tree.GetItemText(child).GetString();
            const std::string below = Shape(child);
            if (!below.empty())
            {
                all += '(';
                all += below;
                all += ')';
            }
        }
        return all;
    }
    DWORD_PTR Number(LPCSTR path) const
    {
        return m_tree.GetItemData(m_tree.GetCategoryItem(path));
    }

    Target m_target;
    NotingTree m_tree;
};

} // namespace

TEST_F(OptionTreeTest, PathsWithACommonBeginningShareItsNode)
{
    Make();
    const HTREEITEM b = m_tree.AddOptionCategory("A|B");
    const HTREEITEM c = m_tree.AddOptionCategory("A|C");
    EXPECT_EQ("A(B C)", Shape());
    EXPECT_EQ("B", m_tree.GetItemText(b));
    EXPECT_EQ("C", m_tree.GetItemText(c));
    EXPECT_EQ(m_tree.GetCategoryItem("A"), m_tree.GetParentItem(b));
}

TEST_F(OptionTreeTest, APathGivenTwiceIsOneNode)
{
    Make();
    const HTREEITEM first = m_tree.AddOptionCategory("A|B");
    EXPECT_EQ(first, m_tree.AddOptionCategory("A|B"));
    EXPECT_EQ("A(B)", Shape());
    EXPECT_EQ(2, m_tree.GetCategoryCount()) << "it is listed all the same";
    EXPECT_EQ(0u, m_tree.GetItemData(first)) << "and keeps its first number";
}

TEST_F(OptionTreeTest, EqualTextsBelowDifferentNodesAreDifferent)
{
    Make();
    m_tree.AddOptionCategory("Chart|General");
    m_tree.AddOptionCategory("Route|General");
    EXPECT_EQ("Chart(General) Route(General)", Shape());
    EXPECT_NE(m_tree.GetCategoryItem("Chart|General"), m_tree.GetCategoryItem("Route|General"));
}

TEST_F(OptionTreeTest, EmptyLevelsDoNotCount)
{
    Make();
    const HTREEITEM b = m_tree.AddOptionCategory("A|B");
    EXPECT_EQ(b, m_tree.AddOptionCategory("A||B"));
    EXPECT_EQ(b, m_tree.AddOptionCategory("|A|B|"));
    EXPECT_EQ(b, m_tree.GetCategoryItem("A|B||"));
    EXPECT_EQ("A(B)", Shape());
}

TEST_F(OptionTreeTest, BlanksAndCaseMakeADifference)
{
    Make();
    m_tree.AddOptionCategory("A");
    m_tree.AddOptionCategory("a");
    m_tree.AddOptionCategory(" A ");
    EXPECT_EQ("A a  A ", Shape());
    EXPECT_EQ(nullptr, m_tree.GetCategoryItem("A "));
}

TEST_F(OptionTreeTest, APathWithoutLevelsAddsNothing)
{
    Make();
    EXPECT_EQ(nullptr, m_tree.AddOptionCategory(nullptr));
    EXPECT_EQ(nullptr, m_tree.AddOptionCategory(""));
    EXPECT_EQ(nullptr, m_tree.AddOptionCategory("|"));
    EXPECT_EQ(0, m_tree.GetCategoryCount());
    EXPECT_EQ("", Shape());
}

TEST_F(OptionTreeTest, NumbersFollowTheOrderOfPaths)
{
    Make();
    m_tree.AddOptionCategory("A|B|C");
    m_tree.AddOptionCategory("A|D");
    m_tree.AddOptionCategory("E");
    EXPECT_EQ(0u, Number("A|B|C"));
    EXPECT_EQ(1u, Number("A|D"));
    EXPECT_EQ(2u, Number("E"));
    EXPECT_EQ(0u, Number("A")) << "only passed through";
    EXPECT_EQ(0u, Number("A|B"));
}

TEST_F(OptionTreeTest, APathThatNamesANodeInBetweenGivesItItsNumber)
{
    Make();
    m_tree.AddOptionCategory("A|B");
    const HTREEITEM a = m_tree.AddOptionCategory("A");
    EXPECT_EQ(m_tree.GetCategoryItem("A"), a);
    EXPECT_EQ("A(B)", Shape());
    EXPECT_EQ(1u, Number("A"));
    m_tree.AddOptionCategory("A|C");
    EXPECT_EQ(1u, Number("A")) << "passing through changes nothing";
    m_tree.AddOptionCategory("A");
    EXPECT_EQ(1u, Number("A")) << "nor does naming it again";
}

TEST_F(OptionTreeTest, NumberZeroIsANumberToo)
{
    Make();
    m_tree.AddOptionCategory("A");
    m_tree.AddOptionCategory("A|B");
    m_tree.AddOptionCategory("A");
    EXPECT_EQ(0u, Number("A"));
}

TEST_F(OptionTreeTest, NodesAreOpen)
{
    Make();
    const HTREEITEM c = m_tree.AddOptionCategory("A|B|C");
    for (const char* path : {"A", "A|B", "A|B|C"})
    {
        EXPECT_NE(0u, m_tree.GetItemState(m_tree.GetCategoryItem(path), TVIS_EXPANDED)) << path;
    }
    CRect rect;
    EXPECT_TRUE(m_tree.GetItemRect(c, &rect, TRUE)) << "it can be seen";
}

TEST_F(OptionTreeTest, TheDeepestItemOfTheFirstPathIsSelected)
{
    Make();
    const HTREEITEM b = m_tree.AddOptionCategory("A|B");
    EXPECT_EQ(b, m_tree.GetSelectedItem());
    m_tree.AddOptionCategory("C");
    EXPECT_EQ(b, m_tree.GetSelectedItem()) << "something is selected already";
    m_tree.SelectItem(nullptr);
    const HTREEITEM d = m_tree.AddOptionCategory("D");
    EXPECT_EQ(d, m_tree.GetSelectedItem());
}

TEST_F(OptionTreeTest, BeforeTheWindowExistsPathsAreListedOnly)
{
    EXPECT_EQ(nullptr, m_tree.AddOptionCategory("A|B"));
    EXPECT_EQ(nullptr, m_tree.AddOptionCategory("C"));
    EXPECT_EQ(2, m_tree.GetCategoryCount());
    EXPECT_EQ(nullptr, m_tree.GetCategoryItem("A|B"));
    m_tree.Init();
    EXPECT_TRUE(m_tree.calls.empty()) << "there is no window yet";
    Make();
    EXPECT_EQ("", Shape());
    m_tree.Init();
    EXPECT_EQ("A(B) C", Shape());
    EXPECT_EQ(1u, Number("C"));
    EXPECT_EQ(m_tree.GetCategoryItem("A|B"), m_tree.GetSelectedItem());
    ASSERT_FALSE(m_tree.calls.empty());
    EXPECT_EQ(m_tree.GetCategoryItem("A|B"), m_tree.calls.back());
}

TEST_F(OptionTreeTest, FillingAgainMakesNoDoubles)
{
    m_tree.AddOptionCategory("A|B");
    Make();
    m_tree.Init();
    const HTREEITEM b = m_tree.GetCategoryItem("A|B");
    m_tree.calls.clear();
    m_tree.Init();
    EXPECT_EQ("A(B)", Shape());
    EXPECT_EQ(b, m_tree.GetCategoryItem("A|B"));
    EXPECT_EQ((std::vector<HTREEITEM>{b}), m_tree.calls) << "told of it although the selection stays";
}

TEST_F(OptionTreeTest, AnEmptyTreeSelectsNothing)
{
    Make();
    m_tree.Init();
    EXPECT_TRUE(m_tree.calls.empty());
    EXPECT_EQ(nullptr, m_tree.GetSelectedItem());
}

TEST_F(OptionTreeTest, ANewWindowStartsClean)
{
    m_tree.AddOptionCategory("A|B");
    Make();
    m_tree.Init();
    const HTREEITEM former = m_tree.GetCategoryItem("A");
    m_tree.DestroyWindow();
    EXPECT_EQ(nullptr, m_tree.GetCategoryItem("A"));
    EXPECT_EQ("", m_tree.GetCategoryPath(former));
    EXPECT_EQ(1, m_tree.GetCategoryCount());
    Make();
    m_tree.Init();
    EXPECT_EQ("A(B)", Shape());
    EXPECT_EQ("A|B", m_tree.GetCategoryPath(m_tree.GetSelectedItem()));
}

TEST_F(OptionTreeTest, ItemsKnowTheirPaths)
{
    Make();
    const HTREEITEM c = m_tree.AddOptionCategory("A||B|C");
    EXPECT_EQ("A|B|C", m_tree.GetCategoryPath(c));
    EXPECT_EQ("A|B", m_tree.GetCategoryPath(m_tree.GetParentItem(c)));
    EXPECT_EQ("", m_tree.GetCategoryPath(nullptr));
    EXPECT_EQ(nullptr, m_tree.GetCategoryItem("A|C"));
    EXPECT_EQ(nullptr, m_tree.GetCategoryItem(nullptr));
    EXPECT_EQ(nullptr, m_tree.GetCategoryItem(""));
}

TEST_F(OptionTreeTest, CategoriesAreSelectedByItemAndByPath)
{
    Make();
    const HTREEITEM a = m_tree.AddOptionCategory("A");
    const HTREEITEM b = m_tree.AddOptionCategory("B");
    m_tree.SelectCategory("B");
    EXPECT_EQ(b, m_tree.GetSelectedItem());
    m_tree.SelectCategory(a);
    EXPECT_EQ(a, m_tree.GetSelectedItem());
    m_tree.SelectCategory("unknown");
    m_tree.SelectCategory(static_cast<LPCSTR>(nullptr));
    m_tree.SelectCategory(static_cast<HTREEITEM>(nullptr));
    EXPECT_EQ(a, m_tree.GetSelectedItem());
}

TEST_F(OptionTreeTest, ChangesOfTheSelectionReachTheHandler)
{
    Make();
    const HTREEITEM a = m_tree.AddOptionCategory("A");
    const HTREEITEM b = m_tree.AddOptionCategory("B");
    EXPECT_EQ((std::vector<HTREEITEM>{a}), m_tree.calls);
    m_tree.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ((std::vector<HTREEITEM>{a, b}), m_tree.calls);
    CRect rect;
    m_tree.GetItemRect(a, &rect, TRUE);
    const CPoint middle = rect.CenterPoint();
    m_tree.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(middle.x, middle.y)); // the control waits for it
    m_tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(middle.x, middle.y));
    EXPECT_EQ((std::vector<HTREEITEM>{a, b, a}), m_tree.calls);
}

TEST_F(OptionTreeTest, BothFormsOfTheNotificationCount)
{
    Make();
    const HTREEITEM a = m_tree.AddOptionCategory("A");
    for (const UINT code : {TVN_SELCHANGEDA, TVN_SELCHANGEDW})
    {
        m_tree.calls.clear();
        NMTREEVIEWA record{};
        record.hdr = {m_tree.m_hWnd, 5, code};
        record.itemNew.hItem = a;
        m_target.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&record));
        EXPECT_EQ((std::vector<HTREEITEM>{a}), m_tree.calls);
    }
}

TEST_F(OptionTreeTest, TheTargetIsToldLater)
{
    Make();
    m_tree.SetNotifyTarget(m_target.m_hWnd);
    const HTREEITEM a = m_tree.AddOptionCategory("A");
    EXPECT_TRUE(m_target.told.empty()) << "posted, not sent";
    vorn::test::PumpWaiting();
    EXPECT_EQ((std::vector<HTREEITEM>{a}), m_target.told);
    EXPECT_EQ((std::vector<WPARAM>{0}), m_target.firstParameters);
}

TEST_F(OptionTreeTest, WithoutTargetNobodyIsTold)
{
    Make();
    m_tree.SetNotifyTarget(m_target.m_hWnd);
    m_tree.SetNotifyTarget(nullptr);
    m_tree.AddOptionCategory("A");
    vorn::test::PumpWaiting();
    EXPECT_TRUE(m_target.told.empty());
    EXPECT_EQ(1u, m_tree.calls.size());
}

TEST_F(OptionTreeTest, AHandlerMayAddCategories)
{
    m_tree.AddOptionCategory("A");
    m_tree.AddOptionCategory("B");
    Make();
    bool added = false;
    m_tree.then = [&]
    {
        if (!std::exchange(added, true))
        {
            m_tree.AddOptionCategory("A|C");
        }
    };
    m_tree.Init();
    EXPECT_EQ("A(C) B", Shape());
    EXPECT_EQ(2u, Number("A|C"));
}

TEST_F(OptionTreeTest, AHiddenTreeStaysHidden)
{
    m_tree.AddOptionCategory("A");
    Make(0);
    m_tree.Init();
    EXPECT_FALSE(m_tree.IsWindowVisible());
    EXPECT_EQ(0u, m_tree.GetStyle() & WS_VISIBLE);
    EXPECT_EQ("A", Shape());
}

TEST_F(OptionTreeTest, AFilledTreeIsPainted)
{
    m_tree.AddOptionCategory("A");
    Make();
    m_tree.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(m_tree.m_hWnd, nullptr, FALSE));
    m_tree.Init();
    EXPECT_TRUE(::GetUpdateRect(m_tree.m_hWnd, nullptr, FALSE));
    EXPECT_NE(0u, m_tree.GetStyle() & WS_VISIBLE);
}

namespace
{
/// Refuses insertions after some.
class FullTree : public OptionTree
{
public:
    int room = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == TVM_INSERTITEMA && room-- <= 0)
        {
            return 0;
        }
        return OptionTree::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST_F(OptionTreeTest, AFailedInsertionLeavesWhatWasMade)
{
    FullTree tree;
    ASSERT_TRUE(tree.Create(WS_CHILD, {0, 0, 200, 200}, &m_target, 6));
    EXPECT_EQ(nullptr, tree.AddOptionCategory("X")) << "the root is no item";
    EXPECT_EQ(nullptr, tree.GetSelectedItem());
    EXPECT_EQ(1, tree.GetCategoryCount()) << "it stays listed";
    tree.room = 1;
    const HTREEITEM a = tree.AddOptionCategory("A|B");
    ASSERT_NE(nullptr, a);
    EXPECT_EQ("A", tree.GetCategoryPath(a)) << "the last level that could be made";
    EXPECT_EQ(nullptr, tree.GetCategoryItem("A|B"));
    EXPECT_EQ(0u, tree.GetItemData(a)) << "it is not the path's last level";
    tree.room = 10;
    tree.Init();
    EXPECT_NE(nullptr, tree.GetCategoryItem("X"));
    EXPECT_EQ(a, tree.GetParentItem(tree.GetCategoryItem("A|B")));
    EXPECT_EQ(1u, tree.GetItemData(tree.GetCategoryItem("A|B")));
}

TEST_F(OptionTreeTest, ManyPathsKeepOrderAndNumbers)
{
    for (int i = 0; i < 500; ++i)
    {
        m_tree.AddOptionCategory(("Group " + std::to_string(i / 10) + "|Page " + std::to_string(i)).c_str());
    }
    Make();
    m_tree.Init();
    EXPECT_EQ(550u, m_tree.GetCount());
    EXPECT_EQ(499u, Number("Group 49|Page 499"));
    EXPECT_EQ("Group 0|Page 0", m_tree.GetCategoryPath(m_tree.GetSelectedItem()));
}
