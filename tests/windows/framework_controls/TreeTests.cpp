#include "framework/controls/CImageList.h"
#include "framework/controls/CTreeCtrl.h"
#include "tests/windows/framework_controls/ControlHost.h"

#include <string>
#include <vector>

namespace
{
/// Two charts, the first with two layers, and a route.
class TreeTest : public ControlTest
{
protected:
    explicit TreeTest(DWORD style = TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT)
    {
        m_tree.Create(WS_CHILD | WS_VISIBLE | style, m_rect, &m_host, kId);
        m_chart = m_tree.InsertItem("Chart");
        m_airways = m_tree.InsertItem("Airways", m_chart);
        m_terrain = m_tree.InsertItem("Terrain", m_chart);
        m_route = m_tree.InsertItem("Route");
    }

    /// The texts of an item's children, in order.
    std::string Children(HTREEITEM item) const
    {
        std::string all;
        for (HTREEITEM child = m_tree.GetChildItem(item); child; child = m_tree.GetNextSiblingItem(child))
            all += std::string(all.empty() ? "" : " ") + m_tree.GetItemText(child).GetString();
        return all;
    }

    CTreeCtrl m_tree;
    HTREEITEM m_chart = nullptr;
    HTREEITEM m_airways = nullptr;
    HTREEITEM m_terrain = nullptr;
    HTREEITEM m_route = nullptr;
};

int CALLBACK ByNumberDown(LPARAM first, LPARAM second, LPARAM)
{
    return static_cast<int>(second - first);
}
} // namespace

TEST_F(TreeTest, ItemsStandBelowTheirParentsInOrder)
{
    EXPECT_EQ(4u, m_tree.GetCount());
    EXPECT_EQ("Chart Route", Children(TVI_ROOT));
    EXPECT_EQ("Airways Terrain", Children(m_chart));
    m_tree.InsertItem("Borders", m_chart, TVI_FIRST);
    m_tree.InsertItem("Cities", m_chart, m_airways);
    EXPECT_EQ("Borders Airways Cities Terrain", Children(m_chart));
    m_tree.InsertItem("Night", m_route, TVI_SORT);
    m_tree.InsertItem("Day", m_route, TVI_SORT);
    EXPECT_EQ("Day Night", Children(m_route));
}

TEST_F(TreeTest, EveryFormOfInsertionIsTaken)
{
    const HTREEITEM pictured = m_tree.InsertItem("pictured", 3, 4, m_route);
    int image = -1;
    int selected = -1;
    ASSERT_TRUE(m_tree.GetItemImage(pictured, image, selected));
    EXPECT_EQ(3, image);
    EXPECT_EQ(4, selected);

    const HTREEITEM full = m_tree.InsertItem(TVIF_TEXT | TVIF_STATE | TVIF_PARAM, "full", 0, 0, TVIS_BOLD, TVIS_BOLD,
                                             77, m_route, TVI_LAST);
    EXPECT_EQ("full", m_tree.GetItemText(full));
    EXPECT_EQ(static_cast<UINT>(TVIS_BOLD), m_tree.GetItemState(full, TVIS_BOLD));
    EXPECT_EQ(77u, m_tree.GetItemData(full));

    TVINSERTSTRUCTA record{};
    record.hParent = full;
    record.hInsertAfter = TVI_LAST;
    record.item.mask = TVIF_TEXT | TVIF_PARAM;
    char text[] = "record";
    record.item.pszText = text;
    record.item.lParam = -1;
    const HTREEITEM recorded = m_tree.InsertItem(&record);
    EXPECT_EQ(full, m_tree.GetParentItem(recorded));
    EXPECT_EQ(static_cast<DWORD_PTR>(-1), m_tree.GetItemData(recorded));
}

TEST_F(TreeTest, ValuesTextsAndStatesAreKept)
{
    EXPECT_EQ(0u, m_tree.GetItemData(m_chart));
    EXPECT_TRUE(m_tree.SetItemData(m_chart, 0xFEEDF00D));
    EXPECT_EQ(0xFEEDF00Du, m_tree.GetItemData(m_chart));
    EXPECT_TRUE(m_tree.SetItemText(m_chart, "Map"));
    EXPECT_EQ("Map", m_tree.GetItemText(m_chart));
    EXPECT_EQ(0u, m_tree.GetItemState(m_route, TVIS_BOLD | TVIS_CUT));
    m_tree.SetItemState(m_route, TVIS_CUT, TVIS_BOLD | TVIS_CUT);
    EXPECT_EQ(static_cast<UINT>(TVIS_CUT), m_tree.GetItemState(m_route, TVIS_BOLD | TVIS_CUT));
    EXPECT_EQ(0xFEEDF00Du, m_tree.GetItemData(m_chart)) << "the other properties stay";
}

TEST_F(TreeTest, LongTextsAreWhole)
{
    const std::string text(1000, 'x');
    m_tree.SetItemText(m_route, text.c_str());
    const CString read = m_tree.GetItemText(m_route);
    // The system may cut what it keeps; what it keeps is given whole.
    EXPECT_GE(read.GetLength(), 259);
    EXPECT_EQ(text.substr(0, static_cast<std::size_t>(read.GetLength())), read.GetString());
}

TEST_F(TreeTest, NoItemHasNoTextAndNoValue)
{
    EXPECT_EQ("", m_tree.GetItemText(nullptr));
    EXPECT_EQ(0u, m_tree.GetItemData(nullptr));
    EXPECT_FALSE(m_tree.SetItemData(nullptr, 1));
    CTreeCtrl windowless;
    EXPECT_EQ(nullptr, windowless.InsertItem("nowhere"));
    EXPECT_EQ(0u, windowless.GetCount());
    EXPECT_EQ("", windowless.GetItemText(m_chart));
}

TEST_F(TreeTest, RelativesAreFound)
{
    EXPECT_EQ(m_chart, m_tree.GetRootItem());
    EXPECT_EQ(m_airways, m_tree.GetChildItem(m_chart));
    EXPECT_EQ(m_terrain, m_tree.GetNextSiblingItem(m_airways));
    EXPECT_EQ(nullptr, m_tree.GetNextSiblingItem(m_terrain));
    EXPECT_EQ(m_airways, m_tree.GetPrevSiblingItem(m_terrain));
    EXPECT_EQ(m_chart, m_tree.GetParentItem(m_terrain));
    EXPECT_EQ(nullptr, m_tree.GetParentItem(m_chart));
    EXPECT_TRUE(m_tree.ItemHasChildren(m_chart));
    EXPECT_FALSE(m_tree.ItemHasChildren(m_route));
}

TEST_F(TreeTest, ClosedItemsHideTheirChildren)
{
    EXPECT_EQ(m_chart, m_tree.GetFirstVisibleItem());
    EXPECT_EQ(m_route, m_tree.GetNextVisibleItem(m_chart));
    CRect rect;
    EXPECT_FALSE(m_tree.GetItemRect(m_terrain, &rect, TRUE));
    EXPECT_TRUE(m_tree.Expand(m_chart, TVE_EXPAND));
    EXPECT_EQ(m_airways, m_tree.GetNextVisibleItem(m_chart));
    EXPECT_EQ(m_terrain, m_tree.GetPrevVisibleItem(m_route));
    EXPECT_NE(0u, m_tree.GetItemState(m_chart, TVIS_EXPANDED));
    EXPECT_TRUE(m_tree.Expand(m_chart, TVE_COLLAPSE));
    EXPECT_EQ(m_route, m_tree.GetNextVisibleItem(m_chart));
    m_tree.EnsureVisible(m_terrain);
    EXPECT_EQ(m_airways, m_tree.GetNextVisibleItem(m_chart)) << "its parent is opened";
}

TEST_F(TreeTest, DeletedItemsTakeTheirChildrenAlong)
{
    EXPECT_TRUE(m_tree.DeleteItem(m_chart));
    EXPECT_EQ(1u, m_tree.GetCount());
    EXPECT_EQ("Route", Children(TVI_ROOT));
    EXPECT_TRUE(m_tree.DeleteAllItems());
    EXPECT_EQ(0u, m_tree.GetCount());
    EXPECT_EQ(nullptr, m_tree.GetRootItem());
}

TEST_F(TreeTest, ChildrenAreSortedByTextOrByTheProgram)
{
    m_tree.InsertItem("Borders", m_chart);
    m_tree.SortChildren(m_chart);
    EXPECT_EQ("Airways Borders Terrain", Children(m_chart));
    m_tree.SetItemData(m_terrain, 2);
    m_tree.SetItemData(m_airways, 1);
    TVSORTCB sort{m_chart, ByNumberDown, 0};
    EXPECT_TRUE(m_tree.SortChildrenCB(&sort));
    EXPECT_EQ("Terrain Airways Borders", Children(m_chart));
}

TEST_F(TreeTest, HitTestFindsTheItem)
{
    CRect rect;
    ASSERT_TRUE(m_tree.GetItemRect(m_route, &rect, TRUE));
    UINT flags = 0;
    EXPECT_EQ(m_route, m_tree.HitTest(rect.CenterPoint(), &flags));
    EXPECT_NE(0u, flags & TVHT_ONITEM);
    EXPECT_EQ(nullptr, m_tree.HitTest(CPoint(100, 110)));
    CRect line;
    ASSERT_TRUE(m_tree.GetItemRect(m_route, &line, FALSE));
    EXPECT_GT(line.Width(), rect.Width());
    EXPECT_GT(m_tree.GetVisibleCount(), 2u);
}

TEST_F(TreeTest, LooksAreKept)
{
    m_tree.SetBkColor(RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), m_tree.GetBkColor());
    m_tree.SetTextColor(RGB(4, 5, 6));
    EXPECT_EQ(RGB(4, 5, 6), m_tree.GetTextColor());
    m_tree.SetItemHeight(30);
    EXPECT_EQ(30, m_tree.GetItemHeight());
    CRect first;
    CRect second;
    m_tree.GetItemRect(m_chart, &first, FALSE);
    m_tree.GetItemRect(m_route, &second, FALSE);
    EXPECT_EQ(30, second.top - first.top);
    m_tree.SetIndent(33);
    EXPECT_EQ(33u, m_tree.GetIndent());
    CImageList list;
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR, 1, 1));
    EXPECT_EQ(nullptr, m_tree.SetImageList(&list, TVSIL_NORMAL));
    EXPECT_EQ(&list, m_tree.GetImageList(TVSIL_NORMAL));
    EXPECT_EQ(&list, m_tree.SetImageList(nullptr, TVSIL_NORMAL));
}

namespace
{
/// Notes what it is told of its selection.
class NotingTree : public CTreeCtrl
{
public:
    std::vector<HTREEITEM> selected;

protected:
    afx_msg void OnSelection(NMHDR* header, LRESULT* result)
    {
        selected.push_back(reinterpret_cast<NMTREEVIEWA*>(header)->itemNew.hItem);
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(NotingTree, CTreeCtrl)
ON_NOTIFY_REFLECT(TVN_SELCHANGEDA, &NotingTree::OnSelection)
ON_NOTIFY_REFLECT(TVN_SELCHANGEDW, &NotingTree::OnSelection)
END_MESSAGE_MAP()
} // namespace

TEST_F(ControlTest, ATreeTellsOfItsSelection)
{
    NotingTree tree;
    ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE, m_rect, &m_host, kId));
    const HTREEITEM first = tree.InsertItem("first");
    const HTREEITEM below = tree.InsertItem("below", first);
    EXPECT_EQ(nullptr, tree.GetSelectedItem());
    EXPECT_TRUE(tree.SelectItem(below));
    EXPECT_EQ(below, tree.GetSelectedItem());
    EXPECT_NE(0u, tree.GetItemState(first, TVIS_EXPANDED)) << "a selected item can be seen";
    tree.SelectItem(below);
    tree.SendMessage(WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(first, tree.GetSelectedItem());
    EXPECT_EQ((std::vector<HTREEITEM>{below, first}), tree.selected) << "only changes are told";
    tree.SelectDropTarget(below);
    EXPECT_EQ(below, tree.GetDropHilightItem());
}

TEST_F(ControlTest, ATreeWithCheckBoxesKeepsTicks)
{
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE | TVS_CHECKBOXES, m_rect, &m_host, kId));
    const HTREEITEM item = tree.InsertItem("ticked");
    EXPECT_FALSE(tree.GetCheck(item));
    EXPECT_TRUE(tree.SetCheck(item));
    EXPECT_TRUE(tree.GetCheck(item));
    tree.SetCheck(item, FALSE);
    EXPECT_FALSE(tree.GetCheck(item));
}

TEST_F(ControlTest, TextsOfATreeAreEditedInPlace)
{
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE | TVS_EDITLABELS, m_rect, &m_host, kId));
    const HTREEITEM item = tree.InsertItem("before");
    tree.SetFocus();
    CWnd* const edit = reinterpret_cast<CWnd*>(tree.EditLabel(item));
    ASSERT_NE(nullptr, edit);
    EXPECT_EQ(edit, reinterpret_cast<CWnd*>(tree.GetEditControl()));
    CString text;
    edit->GetWindowText(text);
    EXPECT_EQ("before", text);
    tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
}
