#include "framework/controls/CListBox.h"
#include "tests/windows/framework_controls/ControlHost.h"

#include <cstring>
#include <vector>

namespace
{
class ListBoxTest : public ControlTest
{
protected:
    void Make(DWORD style)
    {
        ASSERT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | style, m_rect, &m_host, kId));
        for (const char* text : {"VOR", "NDB", "Airport"})
            m_list.AddString(text);
    }

    std::string TextOf(int index) const
    {
        CString text = "before";
        m_list.GetText(index, text);
        return text.GetString();
    }

    CListBox m_list;
};

/// Owner-drawn list that notes what it is asked.
class DrawnList : public CListBox
{
public:
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        m_drawn.push_back(item->itemID);
    }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        item->itemHeight = 31;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        return static_cast<int>(items->itemData1) - static_cast<int>(items->itemData2);
    }
    void DeleteItem(LPDELETEITEMSTRUCT item) override
    {
        m_deleted.push_back(item->itemData);
    }
    int VKeyToItem(UINT key, UINT) override
    {
        m_key = key;
        return 1;
    }

    std::vector<UINT> m_drawn;
    std::vector<ULONG_PTR> m_deleted;
    UINT m_key = 0;
};
} // namespace

TEST_F(ListBoxTest, ItemsAreAddedInsertedAndDeleted)
{
    Make(0);
    EXPECT_EQ(m_list.GetCount(), 3);
    EXPECT_EQ(m_list.InsertString(1, "ILS"), 1);
    EXPECT_EQ(TextOf(1), "ILS");
    EXPECT_EQ(TextOf(3), "Airport");
    EXPECT_EQ(m_list.DeleteString(0), 3);
    EXPECT_EQ(TextOf(0), "ILS");
    m_list.ResetContent();
    EXPECT_EQ(m_list.GetCount(), 0);
}

TEST_F(ListBoxTest, SortedListSorts)
{
    Make(LBS_SORT);
    EXPECT_EQ(TextOf(0), "Airport");
    EXPECT_EQ(TextOf(2), "VOR");
}

TEST_F(ListBoxTest, IndexOutsideGivesAnEmptyText)
{
    Make(0);
    EXPECT_EQ(TextOf(3), "");
    EXPECT_EQ(TextOf(-1), "");
    EXPECT_EQ(m_list.GetTextLen(7), LB_ERR);
    EXPECT_EQ(m_list.DeleteString(7), LB_ERR);
}

TEST_F(ListBoxTest, SelectionAndValues)
{
    Make(0);
    EXPECT_EQ(m_list.GetCurSel(), LB_ERR);
    m_list.SetCurSel(2);
    EXPECT_EQ(m_list.GetCurSel(), 2);
    EXPECT_EQ(m_list.SelectString(-1, "nd"), 1);
    m_list.SetItemData(1, 0xfeedf00d);
    EXPECT_EQ(m_list.GetItemData(1), 0xfeedf00du);
    int marker = 0;
    m_list.SetItemDataPtr(0, &marker);
    EXPECT_EQ(m_list.GetItemDataPtr(0), &marker);
}

TEST_F(ListBoxTest, Searching)
{
    Make(0);
    EXPECT_EQ(m_list.FindString(-1, "air"), 2);
    EXPECT_EQ(m_list.FindStringExact(-1, "air"), LB_ERR);
    EXPECT_EQ(m_list.FindStringExact(-1, "AIRPORT"), 2);
}

TEST_F(ListBoxTest, SeveralItemsAreSelected)
{
    Make(LBS_EXTENDEDSEL);
    EXPECT_EQ(m_list.SelItemRange(TRUE, 0, 1), 0);
    int indices[3] = {-1, -1, -1};
    EXPECT_EQ(m_list.GetSelCount(), 2);
    EXPECT_EQ(m_list.GetSelItems(3, indices), 2);
    EXPECT_EQ(indices[0], 0);
    EXPECT_EQ(indices[1], 1);
    m_list.SetSel(0, FALSE);
    EXPECT_EQ(m_list.GetSel(0), 0);
    EXPECT_GT(m_list.GetSel(1), 0);
    m_list.SetCaretIndex(2);
    EXPECT_EQ(m_list.GetCaretIndex(), 2);
}

namespace
{
/// Notes how the system is asked to scroll to the caret.
class CaretList : public CListBox
{
public:
    LPARAM asked = -1;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == LB_SETCARETINDEX)
            asked = lParam;
        return CListBox::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST_F(ListBoxTest, CaretIsScrolledPartlyIntoViewUnlessTold)
{
    CaretList list;
    ASSERT_TRUE(list.Create(WS_CHILD | LBS_MULTIPLESEL, m_rect, &m_host, kId + 1));
    list.AddString("one");
    list.SetCaretIndex(0);
    EXPECT_EQ(list.asked, MAKELPARAM(TRUE, 0)) << "at least a part";
    list.SetCaretIndex(0, FALSE);
    EXPECT_EQ(list.asked, MAKELPARAM(FALSE, 0)) << "the whole item";
}

TEST_F(ListBoxTest, ItemsLieBelowEachOther)
{
    Make(LBS_NOINTEGRALHEIGHT);
    RECT second{};
    ASSERT_NE(m_list.GetItemRect(1, &second), LB_ERR);
    EXPECT_EQ(second.top, m_list.GetItemHeight(0));
    BOOL outside = TRUE;
    EXPECT_EQ(m_list.ItemFromPoint(CPoint(1, second.top + 1), outside), 1u);
    EXPECT_FALSE(outside);
}

TEST_F(ListBoxTest, OwnerDrawingIsReflected)
{
    DrawnList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED, m_rect, &m_host, kId));
    EXPECT_EQ(list.GetItemHeight(0), 31); // asked while the window was being created
    list.InsertString(-1, reinterpret_cast<LPCSTR>(11));
    list.InsertString(-1, reinterpret_cast<LPCSTR>(22));
    list.RedrawWindow();
    EXPECT_GE(list.m_drawn.size(), 2u);
    list.DeleteString(0);
    EXPECT_EQ(list.m_deleted, std::vector<ULONG_PTR>{11});
}

TEST_F(ListBoxTest, OwnerSortingIsReflected)
{
    DrawnList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_SORT, m_rect, &m_host, kId));
    for (const int value : {30, 10, 20})
        list.AddString(reinterpret_cast<LPCSTR>(value));
    EXPECT_EQ(list.GetItemData(0), 10u);
    EXPECT_EQ(list.GetItemData(1), 20u);
    EXPECT_EQ(list.GetItemData(2), 30u);
}

TEST_F(ListBoxTest, KeysAreReflected)
{
    DrawnList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_WANTKEYBOARDINPUT | LBS_HASSTRINGS, m_rect, &m_host, kId));
    list.AddString("a");
    list.AddString("b");
    list.SendMessage(WM_KEYDOWN, VK_F5, 1);
    EXPECT_EQ(list.m_key, static_cast<UINT>(VK_F5));
}

TEST_F(ListBoxTest, SelectionChangeIsReflected)
{
    class Reflecting : public CListBox
    {
    public:
        BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            if (message == WM_COMMAND && HIWORD(wParam) == LBN_SELCHANGE)
                ++m_changes;
            return CListBox::OnChildNotify(message, wParam, lParam, result);
        }
        int m_changes = 0;
    };
    Reflecting list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY, m_rect, &m_host, kId));
    list.AddString("a");
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    EXPECT_EQ(list.m_changes, 1);
}
