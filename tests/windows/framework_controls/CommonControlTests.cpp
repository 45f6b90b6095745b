#include "framework/controls/CHeaderCtrl.h"
#include "framework/controls/CImageList.h"
#include "framework/controls/CListCtrl.h"
#include "framework/controls/CProgressCtrl.h"
#include "framework/controls/CSliderCtrl.h"
#include "framework/controls/CSpinButtonCtrl.h"
#include "framework/controls/CToolTipCtrl.h"
#include "tests/windows/framework_controls/ControlHost.h"

namespace
{
class CommonControlTest : public ControlTest
{
};

class ListControlTest : public ControlTest
{
protected:
    ListControlTest()
    {
        m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, m_rect, &m_host, kId);
        m_list.InsertColumn(0, "Name", LVCFMT_LEFT, 80);
        m_list.InsertColumn(1, "Value", LVCFMT_RIGHT, 50, 1);
        for (int i = 0; i < 3; ++i)
        {
            m_list.InsertItem(i, std::string(1, static_cast<char>('a' + i)).c_str());
            m_list.SetItemText(i, 1, std::to_string(i * 10).c_str());
            m_list.SetItemData(i, static_cast<DWORD_PTR>(100 + i));
        }
    }
    CListCtrl m_list;
};

int CALLBACK Backwards(LPARAM first, LPARAM second, LPARAM)
{
    return static_cast<int>(second - first);
}
} // namespace

TEST_F(CommonControlTest, ProgressStepsRoundItsRange)
{
    CProgressCtrl bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE, m_rect, &m_host, kId));
    bar.SetRange32(100, 70000);
    int lower = 0;
    int upper = 0;
    bar.GetRange(lower, upper);
    EXPECT_EQ(lower, 100);
    EXPECT_EQ(upper, 70000);
    bar.SetPos(500);
    EXPECT_EQ(bar.OffsetPos(20), 500);
    EXPECT_EQ(bar.GetPos(), 520);
    EXPECT_EQ(bar.SetStep(7), 10);
    bar.StepIt();
    EXPECT_EQ(bar.GetPos(), 527);
}

TEST_F(CommonControlTest, SliderKeepsRangeSelectionAndSizes)
{
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(WS_CHILD | WS_VISIBLE | TBS_ENABLESELRANGE, m_rect, &m_host, kId));
    slider.SetRange(5, 25);
    int lowest = 0;
    int highest = 0;
    slider.GetRange(lowest, highest);
    EXPECT_EQ(lowest, 5);
    EXPECT_EQ(highest, 25);
    slider.SetPos(99);
    EXPECT_EQ(slider.GetPos(), 25);
    slider.SetSelection(7, 9);
    slider.GetSelection(lowest, highest);
    EXPECT_EQ(lowest, 7);
    EXPECT_EQ(highest, 9);
    slider.SetPageSize(4);
    EXPECT_EQ(slider.GetPageSize(), 4);
    slider.SetLineSize(2);
    EXPECT_EQ(slider.GetLineSize(), 2);
}

TEST_F(CommonControlTest, SpinButtonKeepsRangeAndBuddy)
{
    CWnd buddy;
    ASSERT_TRUE(buddy.CreateEx(0, "EDIT", "", WS_CHILD | WS_VISIBLE, 200, 10, 50, 20, m_host.m_hWnd, nullptr));
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT, m_rect, &m_host, kId));
    spin.SetBuddy(&buddy);
    EXPECT_EQ(spin.GetBuddy(), &buddy);
    spin.SetRange32(-100000, 100000);
    int lower = 0;
    int upper = 0;
    spin.GetRange32(lower, upper);
    EXPECT_EQ(lower, -100000);
    EXPECT_EQ(upper, 100000);
    spin.SetPos32(70000);
    BOOL invalid = TRUE;
    EXPECT_EQ(spin.GetPos32(&invalid), 70000);
    EXPECT_FALSE(invalid);
    spin.SetRange(-5, 5);
    spin.GetRange(lower, upper);
    EXPECT_EQ(lower, -5);
    EXPECT_EQ(upper, 5);
}

TEST_F(CommonControlTest, HeaderKeepsItemsInOrder)
{
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(WS_CHILD | WS_VISIBLE | HDS_HORZ, m_rect, &m_host, kId));
    HDITEMA item{};
    item.mask = HDI_WIDTH;
    item.cxy = 60;
    EXPECT_EQ(header.InsertItem(0, &item), 0);
    EXPECT_EQ(header.InsertItem(1, &item), 1);
    EXPECT_EQ(header.GetItemCount(), 2);
    int order[2] = {1, 0};
    EXPECT_TRUE(header.SetOrderArray(2, order));
    int read[2] = {-1, -1};
    EXPECT_TRUE(header.GetOrderArray(read));
    EXPECT_EQ(read[0], 1);
    EXPECT_EQ(header.OrderToIndex(1), 0);
    EXPECT_TRUE(header.DeleteItem(0));
}

TEST_F(CommonControlTest, ToolTipKnowsToolsOfWindowsAndRectangles)
{
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_host));
    CWnd child;
    ASSERT_TRUE(child.CreateEx(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, m_host.m_hWnd, nullptr));
    EXPECT_TRUE(tip.AddTool(&child, "a child"));
    const RECT area{30, 30, 60, 60};
    EXPECT_TRUE(tip.AddTool(&m_host, "an area", &area, 7));
    EXPECT_EQ(tip.GetToolCount(), 2);
    CString text;
    tip.GetText(text, &child);
    EXPECT_EQ(text, "a child");
    tip.UpdateTipText("changed", &m_host, 7);
    tip.GetText(text, &m_host, 7);
    EXPECT_EQ(text, "changed");
    tip.DelTool(&child);
    EXPECT_EQ(tip.GetToolCount(), 1);
}

TEST_F(CommonControlTest, ToolTipRefusesHalfATool)
{
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_host));
    const RECT area{0, 0, 5, 5};
    EXPECT_FALSE(tip.AddTool(&m_host, "rectangle without id", &area, 0));
    EXPECT_FALSE(tip.AddTool(&m_host, "id without rectangle", nullptr, 3));
    EXPECT_FALSE(tip.AddTool(nullptr, "no window"));
    EXPECT_FALSE(tip.AddTool(&m_host, 64999u));
    EXPECT_EQ(tip.GetToolCount(), 0);
}

TEST_F(CommonControlTest, ToolTipTimesAndWidth)
{
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_host));
    tip.SetDelayTime(TTDT_INITIAL, 321);
    EXPECT_EQ(tip.GetDelayTime(TTDT_INITIAL), 321);
    EXPECT_EQ(tip.SetMaxTipWidth(250), -1);
    EXPECT_EQ(tip.GetMaxTipWidth(), 250);
    tip.SetTipBkColor(RGB(1, 2, 3));
    EXPECT_EQ(tip.GetTipBkColor(), RGB(1, 2, 3));
    tip.Activate(TRUE);
    MSG move{};
    move.hwnd = m_host.m_hWnd;
    move.message = WM_MOUSEMOVE;
    tip.RelayEvent(&move);
}

TEST_F(ListControlTest, TextsOfColumns)
{
    EXPECT_EQ(m_list.GetItemCount(), 3);
    EXPECT_EQ(m_list.GetItemText(2, 0), "c");
    EXPECT_EQ(m_list.GetItemText(2, 1), "20");
    EXPECT_EQ(m_list.GetItemText(9, 0), "");
    char buffer[2] = {'?', '?'};
    EXPECT_EQ(m_list.GetItemText(1, 1, buffer, 2), 1);
    EXPECT_EQ(buffer[0], '1');
    EXPECT_EQ(m_list.GetItemText(1, 1, nullptr, 5), 0);
}

TEST_F(ListControlTest, LongTextIsWhole)
{
    const std::string text(1000, 'x');
    m_list.SetItemText(0, 1, text.c_str());
    // The control itself keeps at most 259 characters of a text that it shows; what it keeps is given whole.
    const CString read = m_list.GetItemText(0, 1);
    EXPECT_GE(read.GetLength(), 259);
    EXPECT_EQ(std::string(read.GetString()), text.substr(0, static_cast<std::size_t>(read.GetLength())));
}

TEST_F(ListControlTest, SelectedItemsAreWalked)
{
    EXPECT_EQ(m_list.GetFirstSelectedItemPosition(), nullptr);
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(m_list.GetSelectedCount(), 2u);
    POSITION position = m_list.GetFirstSelectedItemPosition();
    EXPECT_EQ(m_list.GetNextSelectedItem(position), 0);
    EXPECT_EQ(m_list.GetNextSelectedItem(position), 2);
    EXPECT_EQ(position, nullptr);
    EXPECT_EQ(m_list.GetNextSelectedItem(position), -1);
}

TEST_F(ListControlTest, SortsByValues)
{
    EXPECT_TRUE(m_list.SortItems(Backwards, 0));
    EXPECT_EQ(m_list.GetItemText(0, 0), "c");
    EXPECT_EQ(m_list.GetItemData(0), 102u);
}

TEST_F(ListControlTest, ChecksNeedTheExtendedStyle)
{
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    EXPECT_EQ(m_list.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT));
    EXPECT_FALSE(m_list.GetCheck(1));
    EXPECT_TRUE(m_list.SetCheck(1));
    EXPECT_TRUE(m_list.GetCheck(1));
    m_list.SetCheck(1, FALSE);
    EXPECT_FALSE(m_list.GetCheck(1));
}

TEST_F(ListControlTest, ColumnsAndHeader)
{
    EXPECT_EQ(m_list.GetColumnWidth(0), 80);
    m_list.SetColumnWidth(0, 95);
    EXPECT_EQ(m_list.GetColumnWidth(0), 95);
    ASSERT_NE(m_list.GetHeaderCtrl(), nullptr);
    EXPECT_EQ(m_list.GetHeaderCtrl()->GetItemCount(), 2);
    EXPECT_TRUE(m_list.DeleteColumn(1));
    EXPECT_EQ(m_list.GetHeaderCtrl()->GetItemCount(), 1);
}

TEST_F(ListControlTest, HitTestFindsTheItem)
{
    RECT rect{};
    ASSERT_TRUE(m_list.GetItemRect(1, &rect, LVIR_LABEL));
    UINT flags = 0;
    EXPECT_EQ(m_list.HitTest(CPoint(rect.left + 2, rect.top + 2), &flags), 1);
    EXPECT_TRUE(flags & LVHT_ONITEM);
}

namespace
{
// Gives each text as "row/column" when it is asked for it, and the row whose number is typed.
class AskingList : public CListCtrl
{
public:
    int m_asked = 0;

protected:
    afx_msg void OnDisplayInfo(NMHDR* header, LRESULT* result)
    {
        LVITEMA& item = reinterpret_cast<NMLVDISPINFOA*>(header)->item;
        ++m_asked;
        if (item.mask & LVIF_TEXT)
            lstrcpyn(item.pszText, (std::to_string(item.iItem) + '/' + std::to_string(item.iSubItem)).c_str(),
                     item.cchTextMax);
        *result = 0;
    }

    afx_msg void OnFindItem(NMHDR* header, LRESULT* result)
    {
        *result = std::atoi(reinterpret_cast<NMLVFINDITEMA*>(header)->lvfi.psz);
    }

    // Wine asks in wide characters, whatever the window's own are.
    afx_msg void OnFindWideItem(NMHDR* header, LRESULT* result)
    {
        *result = _wtoi(reinterpret_cast<NMLVFINDITEMW*>(header)->lvfi.psz);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(AskingList, CListCtrl)
ON_NOTIFY_REFLECT(LVN_GETDISPINFOA, &AskingList::OnDisplayInfo)
ON_NOTIFY_REFLECT(LVN_ODFINDITEMA, &AskingList::OnFindItem)
ON_NOTIFY_REFLECT(LVN_ODFINDITEMW, &AskingList::OnFindWideItem)
END_MESSAGE_MAP()

class OwnerDataListTest : public ControlTest
{
protected:
    OwnerDataListTest()
    {
        m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, m_rect, &m_host, kId);
        m_list.InsertColumn(0, "Name", LVCFMT_LEFT, 80);
        m_list.InsertColumn(1, "Value", LVCFMT_RIGHT, 50, 1);
    }
    AskingList m_list;
};
} // namespace

TEST_F(OwnerDataListTest, AsksForTextsOfItemsThatItDoesNotHold)
{
    EXPECT_TRUE(m_list.SetItemCountEx(200000));
    EXPECT_EQ(m_list.GetItemCount(), 200000);
    EXPECT_EQ(m_list.GetItemText(199999, 1), "199999/1");
    EXPECT_EQ(m_list.GetItemText(7, 0), "7/0");
}

TEST_F(OwnerDataListTest, PaintsByAskingForWhatIsShownAlone)
{
    m_list.SetItemCountEx(200000, 0);
    m_list.EnsureVisible(150000, FALSE);
    m_list.m_asked = 0;
    m_list.Invalidate();
    m_list.UpdateWindow();
    EXPECT_GT(m_list.m_asked, 0);
    EXPECT_LE(m_list.m_asked, 8 * (m_list.GetCountPerPage() + 2));
}

TEST_F(OwnerDataListTest, AsksWhichItemIsMeant)
{
    m_list.SetItemCountEx(1000);
    LVFINDINFOA find{};
    find.flags = LVFI_STRING;
    find.psz = "321";
    EXPECT_EQ(m_list.FindItem(&find), 321);
}

TEST_F(OwnerDataListTest, KeepsTheSelectionWhenItemsGo)
{
    m_list.SetItemCountEx(10);
    m_list.SetItemState(4, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemCountEx(6, LVSICF_NOSCROLL);
    EXPECT_EQ(m_list.GetItemCount(), 6);
    EXPECT_EQ(m_list.GetNextItem(-1, LVNI_SELECTED), 4);
}

TEST_F(ListControlTest, NotificationIsReflected)
{
    class Reflecting : public CListCtrl
    {
    public:
        BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            if (message == WM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->code == static_cast<UINT>(LVN_INSERTITEM))
                ++m_inserted;
            return CListCtrl::OnChildNotify(message, wParam, lParam, result);
        }
        int m_inserted = 0;
    };
    Reflecting list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_LIST, m_rect, &m_host, kId + 1));
    list.InsertItem(0, "x");
    EXPECT_EQ(list.m_inserted, 1);
}

TEST(ImageListTest, AnswersForANullPointer)
{
    const CImageList* const volatile none = nullptr; // the compiler must not see it
    EXPECT_EQ(none->GetSafeHandle(), nullptr);
}

TEST(ImageListTest, OwnsItsHandle)
{
    HIMAGELIST handle = nullptr;
    {
        CImageList list;
        ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
        EXPECT_FALSE(list.Create(16, 16, ILC_COLOR24, 0, 4));
        handle = list.m_hImageList;
        EXPECT_EQ(CImageList::FromHandlePermanent(handle), &list);
        EXPECT_EQ(list.Add(::LoadIconA(nullptr, MAKEINTRESOURCEA(32512))), 0);
        EXPECT_EQ(list.GetImageCount(), 1);
    }
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(::ImageList_GetImageCount(handle), 0);
}

TEST(ImageListTest, DetachedHandleLives)
{
    CImageList list;
    ASSERT_TRUE(list.Create(8, 8, ILC_COLOR24, 2, 2));
    const HIMAGELIST handle = list.Detach();
    EXPECT_EQ(list.m_hImageList, nullptr);
    EXPECT_FALSE(list.DeleteImageList());
    CImageList other;
    EXPECT_TRUE(other.Attach(handle));
    EXPECT_FALSE(other.Attach(handle));
    EXPECT_FALSE(other.Create(&list));
}

TEST_F(ListControlTest, BorrowsItsImageList)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24, 0, 1));
    EXPECT_EQ(m_list.SetImageList(&images, LVSIL_SMALL), nullptr);
    EXPECT_EQ(m_list.GetImageList(LVSIL_SMALL), &images);
    EXPECT_EQ(m_list.SetImageList(nullptr, LVSIL_SMALL), &images);
}
