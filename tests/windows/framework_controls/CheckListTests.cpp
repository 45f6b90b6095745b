#include "framework/controls/CCheckListBox.h"
#include "framework/dialog/CDialog.h"
#include "framework/dialog/DialogDataExchange.h"
#include "tests/support/DialogTemplateBuilder.h"
#include "tests/windows/framework_controls/ControlHost.h"

#include <string>

namespace
{
/// A parent that counts what the list tells it.
class CheckHost : public ControlHost
{
public:
    int checkChanges = 0;
    int selections = 0;
    bool destroyChild = false;

protected:
    afx_msg void OnCheckChange()
    {
        ++checkChanges;
        if (destroyChild)
            GetDlgItem(kList)->DestroyWindow();
    }
    afx_msg void OnSelection()
    {
        ++selections;
    }
    static constexpr UINT kList = 1234;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CheckHost, ControlHost)
ON_CLBN_CHKCHANGE(kList, &CheckHost::OnCheckChange)
ON_LBN_SELCHANGE(kList, &CheckHost::OnSelection)
END_MESSAGE_MAP()

class CheckListTest : public testing::Test
{
protected:
    void Make(DWORD style = 0)
    {
        const DWORD drawing = style & LBS_OWNERDRAWVARIABLE ? 0 : LBS_OWNERDRAWFIXED;
        ASSERT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY | LBS_HASSTRINGS | drawing | style,
                                  {10, 10, 160, 130}, &m_host, 1234));
        for (const char* text : {"Airways", "Borders", "Cities"})
            m_list.AddString(text);
    }

    std::string Checks() const
    {
        std::string all;
        for (int i = 0; i < m_list.GetCount(); ++i)
            all += static_cast<char>('0' + m_list.GetCheck(i));
        return all;
    }

    void Key(UINT key)
    {
        m_list.SendMessage(WM_KEYDOWN, key, 1);
        m_list.SendMessage(WM_KEYUP, key, 1);
    }

    /// @param x 5 is in the box, 60 in the text
    void Click(int index, int x, UINT message = WM_LBUTTONDOWN)
    {
        CRect rect;
        m_list.GetItemRect(index, &rect);
        const LPARAM point = MAKELPARAM(x, rect.CenterPoint().y);
        m_list.SendMessage(message, MK_LBUTTON, point);
        m_list.SendMessage(WM_LBUTTONUP, 0, point);
    }

    CheckHost m_host;
    CCheckListBox m_list;
};

constexpr int kBox = 5;
constexpr int kText = 60;
} // namespace

TEST_F(CheckListTest, ItemsAreUncheckedAndEnabledAtFirst)
{
    Make();
    EXPECT_EQ("000", Checks());
    EXPECT_TRUE(m_list.IsEnabled(2));
    EXPECT_EQ(static_cast<UINT>(BS_AUTOCHECKBOX), m_list.GetCheckStyle());
}

TEST_F(CheckListTest, ChecksAreSetWithoutNotification)
{
    Make();
    m_list.SetCheck(1, 1);
    EXPECT_EQ("010", Checks());
    m_list.SetCheck(1, 0);
    m_list.SetCheck(2, 2);
    EXPECT_EQ("002", Checks());
    EXPECT_EQ(0, m_host.checkChanges);
}

TEST_F(CheckListTest, ItemsThatDoNotExistAreUnchecked)
{
    Make();
    m_list.SetCheck(3, 1);
    m_list.SetCheck(-1, 1);
    m_list.Enable(7, FALSE);
    EXPECT_EQ(0, m_list.GetCheck(3));
    EXPECT_EQ(0, m_list.GetCheck(-1));
    EXPECT_FALSE(m_list.IsEnabled(-1));
    EXPECT_EQ("000", Checks());
}

TEST_F(CheckListTest, ValuesStandBesideTheChecks)
{
    Make();
    int marker = 0;
    m_list.SetItemDataPtr(1, &marker);
    m_list.SetCheck(1, 1);
    EXPECT_EQ(&marker, m_list.GetItemDataPtr(1));
    m_list.SetItemData(1, 0xFEEDF00D);
    EXPECT_EQ(1, m_list.GetCheck(1));
    EXPECT_EQ(0xFEEDF00Du, m_list.GetItemData(1));
}

TEST_F(CheckListTest, InsertedAndDeletedItemsTakeTheirChecksAlong)
{
    Make();
    m_list.SetCheck(1, 1);
    m_list.SetItemData(1, 11);
    m_list.Enable(2, FALSE);
    EXPECT_EQ(0, m_list.InsertString(0, "Aids"));
    EXPECT_EQ("0010", Checks());
    EXPECT_EQ(11u, m_list.GetItemData(2));
    EXPECT_FALSE(m_list.IsEnabled(3));
    m_list.DeleteString(1);
    EXPECT_EQ("010", Checks());
    EXPECT_EQ(11u, m_list.GetItemData(1));
    m_list.DeleteString(1);
    EXPECT_EQ("00", Checks());
    EXPECT_FALSE(m_list.IsEnabled(1));
    EXPECT_EQ(LB_ERR, m_list.DeleteString(9));
    EXPECT_EQ(2, m_list.InsertString(-1, "at the end"));
    EXPECT_EQ("000", Checks());
    m_list.ResetContent();
    m_list.AddString("fresh");
    EXPECT_EQ("0", Checks());
    EXPECT_TRUE(m_list.IsEnabled(0));
}

TEST_F(CheckListTest, ASortedListKeepsChecksWithTheirItems)
{
    Make(LBS_SORT);
    m_list.SetCheck(m_list.FindStringExact(-1, "Cities"), 1);
    m_list.AddString("Beacons");
    m_list.AddString("Zones");
    EXPECT_EQ("00010", Checks());
    EXPECT_EQ(3, m_list.FindStringExact(-1, "Cities"));
}

TEST_F(CheckListTest, ALineReplacedByItsOwnerKeepsWhatItIsGivenBack)
{
    Make();
    m_list.SetCheck(1, 1);
    m_list.SetItemData(1, 42);
    const DWORD_PTR data = m_list.GetItemData(1);
    const int check = m_list.GetCheck(1);
    m_list.DeleteString(1);
    const int index = m_list.InsertString(1, "Borders of states");
    m_list.SetItemData(index, data);
    m_list.SetCheck(index, check);
    EXPECT_EQ("010", Checks());
    EXPECT_EQ(42u, m_list.GetItemData(1));
}

TEST_F(CheckListTest, SpaceTogglesTheCurrentItemOnce)
{
    Make();
    m_list.SetCurSel(1);
    Key(VK_SPACE);
    EXPECT_EQ("010", Checks());
    EXPECT_EQ(1, m_host.checkChanges);
    m_list.SendMessage(WM_CHAR, ' ', 1);
    EXPECT_EQ("010", Checks());
    Key(VK_SPACE);
    EXPECT_EQ("000", Checks());
    EXPECT_EQ(2, m_host.checkChanges);
    EXPECT_EQ(1, m_list.GetCurSel());
}

TEST_F(CheckListTest, SpaceWithoutCurrentItemTogglesNothing)
{
    Make();
    Key(VK_SPACE);
    EXPECT_EQ("000", Checks());
    EXPECT_EQ(0, m_host.checkChanges);
}

TEST_F(CheckListTest, ArrowsMoveTheSelectionAsUsual)
{
    Make();
    m_list.SetFocus();
    m_list.SetCurSel(0);
    Key(VK_DOWN);
    EXPECT_EQ(1, m_list.GetCurSel());
    EXPECT_EQ("000", Checks());
}

TEST_F(CheckListTest, AClickOnTheBoxTogglesAndSelects)
{
    Make();
    Click(2, kBox);
    EXPECT_EQ("001", Checks());
    EXPECT_EQ(1, m_host.checkChanges);
    EXPECT_EQ(2, m_list.GetCurSel());
    EXPECT_EQ(1, m_host.selections);
    Click(2, kBox);
    EXPECT_EQ("000", Checks());
    EXPECT_EQ(2, m_host.checkChanges);
}

TEST_F(CheckListTest, AClickOnTheTextOnlySelects)
{
    Make();
    Click(1, kText);
    EXPECT_EQ("000", Checks());
    EXPECT_EQ(1, m_list.GetCurSel());
    EXPECT_EQ(0, m_host.checkChanges);
}

TEST_F(CheckListTest, TheSecondOfTwoQuickClicksTogglesToo)
{
    Make();
    Click(0, kBox);
    Click(0, kBox, WM_LBUTTONDBLCLK);
    EXPECT_EQ("000", Checks());
    EXPECT_EQ(2, m_host.checkChanges);
}

TEST_F(CheckListTest, AClickBelowTheItemsTogglesNothing)
{
    Make();
    m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(kBox, 110));
    m_list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(kBox, 110));
    EXPECT_EQ("000", Checks());
}

TEST_F(CheckListTest, DisabledItemsKeepTheirState)
{
    Make();
    m_list.SetCheck(1, 1);
    m_list.Enable(1, FALSE);
    EXPECT_FALSE(m_list.IsEnabled(1));
    Click(1, kBox);
    m_list.SetCurSel(1);
    Key(VK_SPACE);
    EXPECT_EQ("010", Checks());
    EXPECT_EQ(0, m_host.checkChanges);
    m_list.Enable(1);
    Key(VK_SPACE);
    EXPECT_EQ("000", Checks());
}

TEST_F(CheckListTest, ThreeStatesFollowEachOther)
{
    Make();
    m_list.SetCheckStyle(BS_AUTO3STATE);
    m_list.SetCurSel(0);
    Key(VK_SPACE);
    EXPECT_EQ("100", Checks());
    Key(VK_SPACE);
    EXPECT_EQ("200", Checks());
    Key(VK_SPACE);
    EXPECT_EQ("000", Checks());
}

TEST_F(CheckListTest, OtherStylesLeaveTogglingToTheProgram)
{
    Make();
    for (const UINT style : {BS_CHECKBOX, BS_3STATE})
    {
        m_list.SetCheckStyle(style);
        EXPECT_EQ(style, m_list.GetCheckStyle());
        Click(0, kBox);
        Key(VK_SPACE);
        EXPECT_EQ("000", Checks());
    }
    EXPECT_EQ(0, m_host.checkChanges);
}

TEST_F(CheckListTest, SpaceTogglesAllSelectedItems)
{
    Make(LBS_EXTENDEDSEL);
    m_list.SelItemRange(TRUE, 0, 1);
    m_list.SetCaretIndex(1);
    Key(VK_SPACE);
    EXPECT_EQ("110", Checks());
    EXPECT_EQ(2, m_list.GetSelCount());
    EXPECT_EQ(1, m_host.checkChanges);
}

TEST_F(CheckListTest, AClickOnTheBoxOfOneOfSeveralSelectedItemsTogglesThemAll)
{
    Make(LBS_EXTENDEDSEL);
    m_list.SelItemRange(TRUE, 0, 1);
    Click(0, kBox);
    EXPECT_EQ("110", Checks());
    EXPECT_EQ(2, m_list.GetSelCount());
}

TEST_F(CheckListTest, TheListMayBeDestroyedByItsParentsHandler)
{
    Make();
    m_host.destroyChild = true;
    Click(0, kBox);
    EXPECT_EQ(nullptr, m_list.m_hWnd);
    EXPECT_EQ(1, m_host.checkChanges);
}

TEST_F(CheckListTest, ItemsAreAsHighAsTextAndBox)
{
    Make();
    const int usual = m_list.GetItemHeight(0);
    EXPECT_GE(usual, ::GetSystemMetrics(SM_CYMENUCHECK) + 2);
    const HFONT font = ::CreateFontA(-40, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    m_list.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font));
    EXPECT_GT(m_list.GetItemHeight(0), 40);
    m_list.SendMessage(WM_SETFONT, 0);
    EXPECT_EQ(usual, m_list.GetItemHeight(0));
    ::DeleteObject(font);
}

TEST_F(CheckListTest, VariableItemsAreMeasuredToo)
{
    Make(LBS_OWNERDRAWVARIABLE);
    EXPECT_GE(m_list.GetItemHeight(1), ::GetSystemMetrics(SM_CYMENUCHECK) + 2);
    m_list.SetCheck(1, 1);
    EXPECT_EQ("010", Checks());
}

namespace
{
/// How many pixels of an area are darker than grey.
int DarkPixels(HWND window, const CRect& area)
{
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    const HDC dc = ::GetDC(window);
    int count = 0;
    for (int y = static_cast<int>(area.top); y < area.bottom; ++y)
        for (int x = static_cast<int>(area.left); x < area.right; ++x)
            count += GetGValue(::GetPixel(dc, x, y)) < 100;
    ::ReleaseDC(window, dc);
    return count;
}
} // namespace

TEST_F(CheckListTest, ATickIsDrawnInsideTheBox)
{
    Make();
    CRect rect;
    m_list.GetItemRect(1, &rect);
    const CPoint middle(1 + ::GetSystemMetrics(SM_CXMENUCHECK) / 2, rect.CenterPoint().y);
    const CRect inside(middle.x - 3, middle.y - 3, middle.x + 4, middle.y + 4);
    EXPECT_EQ(0, DarkPixels(m_list.m_hWnd, inside));
    m_list.SetCheck(1, 1);
    EXPECT_GT(DarkPixels(m_list.m_hWnd, inside), 4);
}

TEST_F(CheckListTest, TextsAreDrawnBesideTheBoxAndGreyWhenDisabled)
{
    Make();
    CRect rect;
    m_list.GetItemRect(0, &rect);
    rect.left = ::GetSystemMetrics(SM_CXMENUCHECK) + 3;
    EXPECT_GT(DarkPixels(m_list.m_hWnd, rect), 20);
    m_list.Enable(0, FALSE);
    EXPECT_LT(DarkPixels(m_list.m_hWnd, rect), 10);
}

namespace
{
/// Puts its boxes at the right and draws no texts.
class RightBoxes : public CCheckListBox
{
public:
    int texts = 0;
    CRect OnGetCheckPosition(CRect item, CRect checkBox) override
    {
        checkBox.OffsetRect(item.right - checkBox.right - 2, 0);
        return checkBox;
    }
    void DrawItem(LPDRAWITEMSTRUCT) override
    {
        ++texts;
    }
};
} // namespace

TEST_F(CheckListTest, ADerivedListPlacesItsBoxesAndDrawsItsTexts)
{
    RightBoxes list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY, {10, 10, 160, 130}, &m_host, 1234))
        << "the styles that it needs are added";
    list.AddString("one");
    list.RedrawWindow();
    EXPECT_GT(list.texts, 0);
    CRect client;
    list.GetClientRect(&client);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right - 6, 6));
    list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(client.right - 6, 6));
    EXPECT_EQ(1, list.GetCheck(0));
}

namespace
{
class ListDialog : public CDialog
{
public:
    CCheckListBox list;

protected:
    BOOL OnInitDialog() override
    {
        GetDlgItem(5)->SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("before"));
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Control(exchange, 5, list);
    }
};
} // namespace

TEST(CheckListInDialog, TakesOverTheListWithItsItems)
{
    DialogTemplateBuilder builder;
    const auto bytes =
        builder.Style(WS_POPUP | WS_CAPTION)
            .At({0, 0, 100, 100})
            .Add(DialogTemplateBuilder::ListBox, 5,
                 WS_CHILD | WS_VISIBLE | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, {5, 5, 90, 90})
            .Bytes();
    ListDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(reinterpret_cast<LPCDLGTEMPLATE>(bytes.data())));
    EXPECT_EQ(1, dialog.list.GetCount());
    dialog.list.SetCheck(0, 1);
    EXPECT_EQ(1, dialog.list.GetCheck(0));
    EXPECT_GE(dialog.list.GetItemHeight(0), ::GetSystemMetrics(SM_CYMENUCHECK) + 2);
    dialog.DestroyWindow();
}
