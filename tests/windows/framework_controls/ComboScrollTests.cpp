#include "framework/controls/CComboBox.h"
#include "framework/controls/CScrollBar.h"
#include "tests/windows/framework_controls/ControlHost.h"

namespace
{
class ComboBoxTest : public ControlTest
{
protected:
    void Make(DWORD style)
    {
        ASSERT_TRUE(m_combo.Create(WS_CHILD | WS_VISIBLE | style, m_rect, &m_host, kId));
        for (const char* text : {"NM", "SM", "KM"})
            m_combo.AddString(text);
    }
    CComboBox m_combo;
};
class ScrollBarTest : public ControlTest
{
};
} // namespace

TEST_F(ComboBoxTest, SelectionTextsAndValues)
{
    Make(CBS_DROPDOWNLIST);
    EXPECT_EQ(m_combo.GetCount(), 3);
    EXPECT_EQ(m_combo.GetCurSel(), CB_ERR);
    EXPECT_EQ(m_combo.SetCurSel(1), 1);
    CString text;
    m_combo.GetLBText(1, text);
    EXPECT_EQ(text, "SM");
    m_combo.GetLBText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    m_combo.SetItemData(2, 77);
    EXPECT_EQ(m_combo.GetItemData(2), 77u);
    EXPECT_EQ(m_combo.FindStringExact(-1, "km"), 2);
    EXPECT_EQ(m_combo.SelectString(-1, "n"), 0);
    m_combo.DeleteString(0);
    EXPECT_EQ(m_combo.GetCount(), 2);
    m_combo.ResetContent();
    EXPECT_EQ(m_combo.GetCount(), 0);
}

TEST_F(ComboBoxTest, FieldOfAnEditableCombo)
{
    Make(CBS_DROPDOWN | CBS_AUTOHSCROLL);
    m_combo.SetWindowText("nautical");
    m_combo.SetEditSel(0, 4);
    EXPECT_EQ(m_combo.GetEditSel(), static_cast<DWORD>(MAKELONG(0, 4)));
    m_combo.Clear();
    CString text;
    m_combo.GetWindowText(text);
    EXPECT_EQ(text, "ical");
    m_combo.LimitText(5);
    COMBOBOXINFO info{};
    ASSERT_TRUE(m_combo.GetComboBoxInfo(&info));
    EXPECT_EQ(::SendMessageA(info.hwndItem, EM_GETLIMITTEXT, 0, 0), 5);
}

TEST_F(ComboBoxTest, ListDropsDown)
{
    Make(CBS_DROPDOWN);
    EXPECT_FALSE(m_combo.GetDroppedState());
    m_combo.ShowDropDown();
    EXPECT_TRUE(m_combo.GetDroppedState());
    RECT rect{};
    m_combo.GetDroppedControlRect(&rect);
    EXPECT_GT(rect.bottom, rect.top);
    m_combo.ShowDropDown(FALSE);
    EXPECT_FALSE(m_combo.GetDroppedState());
    m_combo.SetExtendedUI();
    EXPECT_TRUE(m_combo.GetExtendedUI());
    EXPECT_EQ(m_combo.SetDroppedWidth(300), 300);
}

TEST_F(ComboBoxTest, PartsAreKnown)
{
    Make(CBS_DROPDOWN);
    COMBOBOXINFO info{};
    ASSERT_TRUE(m_combo.GetComboBoxInfo(&info));
    EXPECT_EQ(info.hwndCombo, m_combo.m_hWnd);
    EXPECT_EQ(::GetParent(info.hwndItem), m_combo.m_hWnd);
}

TEST_F(ComboBoxTest, OwnerDrawingIsReflected)
{
    class Drawn : public CComboBox
    {
    public:
        void DrawItem(LPDRAWITEMSTRUCT item) override
        {
            m_window = item->hwndItem;
        }
        void MeasureItem(LPMEASUREITEMSTRUCT item) override
        {
            item->itemHeight = 25;
        }
        void DeleteItem(LPDELETEITEMSTRUCT item) override
        {
            m_deleted = item->itemData;
        }
        HWND m_window = nullptr;
        ULONG_PTR m_deleted = 0;
    };
    Drawn combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED, m_rect, &m_host, kId));
    EXPECT_EQ(combo.GetItemHeight(0), 25);
    combo.AddString(reinterpret_cast<LPCSTR>(5));
    combo.SetCurSel(0);
    combo.RedrawWindow();
    EXPECT_EQ(combo.m_window, combo.m_hWnd);
    combo.DeleteString(0);
    EXPECT_EQ(combo.m_deleted, 5u);
}

TEST_F(ScrollBarTest, PositionStaysInItsRange)
{
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, m_rect, &m_host, kId));
    bar.SetScrollRange(-10, 90);
    EXPECT_EQ(bar.SetScrollPos(40), 0);
    EXPECT_EQ(bar.GetScrollPos(), 40);
    bar.SetScrollPos(500);
    EXPECT_EQ(bar.GetScrollPos(), 90);
    int lowest = 0;
    int highest = 0;
    bar.GetScrollRange(&lowest, &highest);
    EXPECT_EQ(lowest, -10);
    EXPECT_EQ(highest, 90);
}

TEST_F(ScrollBarTest, PageSizeLowersTheLimit)
{
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, m_rect, &m_host, kId));
    SCROLLINFO info{};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 99;
    info.nPage = 20;
    info.nPos = 5;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(bar.GetScrollLimit(), 80);
    SCROLLINFO read{};
    EXPECT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(read.nPos, 5);
    EXPECT_EQ(read.nPage, 20u);
}
