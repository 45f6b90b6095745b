#include "framework/dialog/DialogDataExchange.h"
#include "framework/window/CWinApp.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/UserCount.h"
#include "tests/windows/option_tree/resource.h"
#include "toolkit/options/BaseOptionTreeDlg.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

/// Three categories: "Chart|Night" with two fields, "Chart|Fonts" with a list, "Units" with a button.
class PreferencesDlg : public BaseOptionTreeDlg
{
    DECLARE_DYNAMIC(PreferencesDlg)

public:
    explicit PreferencesDlg(bool bindsByExchange = false)
        : BaseOptionTreeDlg(IDD_PREFERENCES, nullptr), m_bindsByExchange(bindsByExchange)
    {
    }

    BOOL OnInitDialog() override
    {
        if (addsFirst)
        {
            GetOptionTree().AddOptionCategory("First");
        }
        BaseOptionTreeDlg::OnInitDialog();
        OptionTree& tree = GetOptionTree();
        night = tree.AddOptionCategory("Chart|Night");
        fonts = tree.AddOptionCategory("Chart|Fonts");
        units = tree.AddOptionCategory("Units");
        AddControlMapping(night, IDC_SCALE, IDC_DUSK, 0);
        AddControlMapping(fonts, {IDC_FONT});
        AddControlMapping(units, IDC_UNITS, 0);
        DeclarePanes();
        return TRUE;
    }
    /// All categories' controls below each other at the right of the tree.
    void DeclarePanes()
    {
        CPane root = CreateRoot(Vertical, 5, 0);
        CPane both = pane(Horizontal, Greedy, 5, 0, 0);
        CPane right = pane(Vertical, Greedy, 5, 0, 0);
        for (const UINT id : {IDC_SCALE, IDC_DUSK, IDC_FONT, IDC_UNITS, IDC_ALWAYS})
        {
            right << item(id, FixedHeight, 0, 0, 40, 0);
        }
        both << item(IDC_TREE, PercentWidth, 40, 0, 60, 80) << right;
        CPane buttons = pane(Horizontal, FixedHeight, 5, 0, 0);
        buttons << itemSpace(Horizontal) << item(IDOK, FixedBoth, 0, 0, 0, 0) << item(IDCANCEL, FixedBoth, 0, 0, 0, 0);
        root << both << buttons;
        UpdateLayout(false);
    }
    void DoDataExchange(CDataExchange* exchange) override
    {
        BaseOptionTreeDlg::DoDataExchange(exchange);
        if (m_bindsByExchange)
        {
            DDX_Control(exchange, IDC_TREE, mOptionTree);
        }
    }
    void UpdateLayout(bool redraw) override
    {
        layouts.push_back(redraw);
        BaseOptionTreeDlg::UpdateLayout(redraw);
    }
    void OnSelectCategory(HTREEITEM item) override
    {
        shown.push_back(item);
        BaseOptionTreeDlg::OnSelectCategory(item);
    }

    /// The letters of the controls that are shown: Scale, Dusk, Font, Units, Always.
    std::string Shown() const
    {
        struct Known
        {
            int id;
            char letter;
        };
        constexpr Known kKnown[] = {
            {IDC_SCALE, 'S'}, {IDC_DUSK, 'D'}, {IDC_FONT, 'F'}, {IDC_UNITS, 'U'}, {IDC_ALWAYS, 'A'}};
        std::string all;
        for (const auto& [id, letter] : kKnown)
        {
            if ((GetDlgItem(id)->GetStyle() & WS_VISIBLE) != 0)
            {
                all += letter;
            }
        }
        return all;
    }
    int Top(int id) const
    {
        CRect rect;
        GetDlgItem(id)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        return static_cast<int>(rect.top);
    }
    void Choose(LPCSTR path)
    {
        GetOptionTree().SelectCategory(path);
        vorn::test::PumpWaiting();
    }

    bool addsFirst = false;
    HTREEITEM night = nullptr;
    HTREEITEM fonts = nullptr;
    HTREEITEM units = nullptr;
    std::vector<HTREEITEM> shown;
    std::vector<bool> layouts; ///< whether each was to be painted anew

private:
    bool m_bindsByExchange;
};

IMPLEMENT_DYNAMIC(PreferencesDlg, BaseOptionTreeDlg)

/// An application whose profile must not be touched.
class UntouchedApp : public CWinApp
{
public:
    UntouchedApp() : CWinApp("OptionDialogTests")
    {
    }
    BOOL GetProfileBinary(LPCTSTR, LPCTSTR, LPBYTE*, UINT*) override
    {
        ++touched;
        return FALSE;
    }
    BOOL WriteProfileBinary(LPCTSTR, LPCTSTR, LPBYTE, UINT) override
    {
        ++touched;
        return TRUE;
    }
    int touched = 0;
};

UntouchedApp g_app;

class OptionDialog : public testing::Test
{
protected:
    PreferencesDlg& Show(bool visible = true)
    {
        EXPECT_TRUE(m_dialog.Create(static_cast<UINT>(IDD_PREFERENCES)));
        if (visible)
        {
            m_dialog.ShowWindow(SW_SHOW);
        }
        vorn::test::PumpWaiting();
        return m_dialog;
    }
    ~OptionDialog() override
    {
        m_dialog.DestroyWindow();
    }

    PreferencesDlg m_dialog;
};

} // namespace

TEST_F(OptionDialog, ItShowsTheControlsOfTheFirstCategory)
{
    PreferencesDlg& dialog = Show();
    EXPECT_EQ(dialog.night, dialog.GetOptionTree().GetSelectedItem());
    EXPECT_EQ("SDA", dialog.Shown());
}

TEST_F(OptionDialog, AnotherCategoryShowsItsOwn)
{
    PreferencesDlg& dialog = Show();
    dialog.Choose("Chart|Fonts");
    EXPECT_EQ("FA", dialog.Shown());
    dialog.Choose("Units");
    EXPECT_EQ("UA", dialog.Shown());
    dialog.Choose("Chart|Night");
    EXPECT_EQ("SDA", dialog.Shown());
}

TEST_F(OptionDialog, ANodeInBetweenShowsNone)
{
    PreferencesDlg& dialog = Show();
    dialog.Choose("Chart");
    EXPECT_EQ("A", dialog.Shown());
}

TEST_F(OptionDialog, ControlsWithoutCategoryAreNeverHidden)
{
    PreferencesDlg& dialog = Show();
    for (const char* path : {"Chart|Fonts", "Chart", "Units", "Chart|Night"})
    {
        dialog.Choose(path);
        EXPECT_NE(std::string::npos, dialog.Shown().find('A')) << path;
    }
    EXPECT_TRUE(dialog.GetDlgItem(IDOK)->IsWindowVisible());
}

TEST_F(OptionDialog, HiddenControlsLeaveTheirRoomToTheShownOnes)
{
    PreferencesDlg& dialog = Show();
    const int first = dialog.Top(IDC_SCALE);
    EXPECT_LT(first, dialog.Top(IDC_DUSK));
    dialog.Choose("Chart|Fonts");
    EXPECT_EQ(first, dialog.Top(IDC_FONT));
    dialog.Choose("Units");
    EXPECT_EQ(first, dialog.Top(IDC_UNITS));
    dialog.Choose("Chart");
    EXPECT_EQ(first, dialog.Top(IDC_ALWAYS));
}

TEST_F(OptionDialog, ItWorksBeforeItCanBeSeen)
{
    PreferencesDlg& dialog = Show(false);
    EXPECT_EQ("SDA", dialog.Shown());
    dialog.Choose("Chart|Fonts");
    EXPECT_EQ("FA", dialog.Shown());
    EXPECT_EQ(dialog.Top(IDC_TREE), dialog.Top(IDC_FONT));
}

TEST_F(OptionDialog, ItIsToldByThePostedMessage)
{
    PreferencesDlg& dialog = Show();
    dialog.shown.clear();
    dialog.PostMessage(WM_USER + 367, 0, reinterpret_cast<LPARAM>(dialog.units));
    EXPECT_TRUE(dialog.shown.empty());
    vorn::test::PumpWaiting();
    EXPECT_EQ((std::vector<HTREEITEM>{dialog.units}), dialog.shown);
    EXPECT_EQ("UA", dialog.Shown());
}

TEST_F(OptionDialog, AnItemThatIsGoneHidesAll)
{
    PreferencesDlg& dialog = Show();
    dialog.SendMessage(WM_USER + 367, 0, 0x12345);
    EXPECT_EQ("A", dialog.Shown());
    dialog.SendMessage(WM_USER + 367, 0, 0);
    EXPECT_EQ("A", dialog.Shown());
}

TEST_F(OptionDialog, TheFocusLeavesAControlThatIsHidden)
{
    PreferencesDlg& dialog = Show();
    dialog.SetForegroundWindow();
    dialog.GetDlgItem(IDC_DUSK)->SetFocus();
    dialog.Choose("Units");
    EXPECT_EQ(dialog.GetOptionTree().m_hWnd, ::GetFocus());
    dialog.GetDlgItem(IDC_UNITS)->SetFocus();
    dialog.Choose("Units");
    EXPECT_EQ(IDC_UNITS, ::GetDlgCtrlID(::GetFocus())) << "it stays in one that is shown";
}

TEST_F(OptionDialog, TheFocusLeavesTheInnerWindowOfAHiddenControl)
{
    PreferencesDlg& dialog = Show();
    dialog.SetForegroundWindow();
    dialog.Choose("Chart|Fonts");
    const HWND inner = ::FindWindowEx(dialog.GetDlgItem(IDC_FONT)->m_hWnd, nullptr, "Edit", nullptr);
    ASSERT_NE(nullptr, inner);
    ::SetFocus(inner);
    dialog.Choose("Units");
    EXPECT_EQ(dialog.GetOptionTree().m_hWnd, ::GetFocus());
}

TEST_F(OptionDialog, KeysInTheTreeChangeTheCategory)
{
    PreferencesDlg& dialog = Show();
    dialog.GetOptionTree().SetFocus();
    dialog.GetOptionTree().SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    vorn::test::PumpWaiting();
    EXPECT_EQ(dialog.fonts, dialog.GetOptionTree().GetSelectedItem());
    EXPECT_EQ("FA", dialog.Shown());
    dialog.GetOptionTree().SendMessage(WM_KEYDOWN, VK_END, 1);
    vorn::test::PumpWaiting();
    EXPECT_EQ("UA", dialog.Shown());
}

TEST_F(OptionDialog, AControlHasOneCategory)
{
    PreferencesDlg& dialog = Show();
    dialog.AddControlMapping(dialog.units, IDC_DUSK, 0);
    EXPECT_EQ("SDA", dialog.Shown()) << "nothing changes at once";
    dialog.Choose("Chart|Fonts");
    dialog.Choose("Chart|Night");
    EXPECT_EQ("SA", dialog.Shown());
    dialog.Choose("Units");
    EXPECT_EQ("DUA", dialog.Shown());
}

TEST_F(OptionDialog, AControlTakenOutIsLeftAsItIs)
{
    PreferencesDlg& dialog = Show();
    dialog.RemoveControlMapping(IDC_SCALE, IDC_FONT, 0);
    EXPECT_EQ("SDA", dialog.Shown());
    dialog.Choose("Units");
    EXPECT_EQ("SUA", dialog.Shown());
    dialog.RemoveControlMapping({IDC_UNITS});
    dialog.Choose("Chart|Fonts");
    EXPECT_EQ("SUA", dialog.Shown()) << "and the list stays hidden";
}

TEST_F(OptionDialog, WithoutItemControlsAreHiddenByEveryCategory)
{
    PreferencesDlg& dialog = Show();
    dialog.AddControlMapping(nullptr, {IDC_ALWAYS});
    dialog.Choose("Units");
    EXPECT_EQ("U", dialog.Shown());
    dialog.SendMessage(WM_USER + 367, 0, 0);
    EXPECT_EQ("", dialog.Shown());
}

TEST_F(OptionDialog, IdsWithoutControlAreRemembered)
{
    PreferencesDlg& dialog = Show();
    dialog.AddControlMapping(dialog.units, 3000, 3001, 0);
    dialog.Choose("Chart|Fonts");
    const HWND late = ::CreateWindowA("Static", "late", WS_CHILD | WS_VISIBLE, 0, 0, 5, 5, dialog.m_hWnd,
                                      reinterpret_cast<HMENU>(static_cast<UINT_PTR>(3001)), nullptr, nullptr);
    dialog.Choose("Chart|Night");
    EXPECT_EQ(0, ::GetWindowLong(late, GWL_STYLE) & WS_VISIBLE);
    dialog.Choose("Units");
    EXPECT_NE(0, ::GetWindowLong(late, GWL_STYLE) & WS_VISIBLE);
}

TEST_F(OptionDialog, EmptyListsMapNothing)
{
    PreferencesDlg& dialog = Show();
    dialog.AddControlMapping(dialog.units, 0);
    dialog.AddControlMapping(dialog.units, {});
    dialog.RemoveControlMapping(0);
    dialog.Choose("Units");
    EXPECT_EQ("UA", dialog.Shown());
}

TEST_F(OptionDialog, MoreControlsThanTheMapHasRoomForAtFirst)
{
    PreferencesDlg& dialog = Show();
    std::vector<HWND> controls;
    for (UINT id = 2000; id < 2200; ++id)
    {
        controls.push_back(::CreateWindowA("Static", "", WS_CHILD | WS_VISIBLE, 0, 0, 5, 5, dialog.m_hWnd,
                                           reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr));
        dialog.AddControlMapping(id % 2 == 0 ? dialog.units : dialog.fonts, id, 0);
    }
    dialog.Choose("Units");
    for (std::size_t i = 0; i < controls.size(); ++i)
    {
        EXPECT_EQ(i % 2 == 0, (::GetWindowLong(controls[i], GWL_STYLE) & WS_VISIBLE) != 0) << i;
    }
}

TEST_F(OptionDialog, CategoriesListedBeforeTheWindowAreThereFromTheStart)
{
    m_dialog.GetOptionTree().AddOptionCategory("Zero");
    PreferencesDlg& dialog = Show();
    EXPECT_EQ("Zero", dialog.GetOptionTree().GetCategoryPath(dialog.GetOptionTree().GetSelectedItem()));
    EXPECT_EQ("A", dialog.Shown()) << "it has no controls";
}

TEST_F(OptionDialog, CategoriesMayBeAddedBeforeTheBaseInitialises)
{
    m_dialog.addsFirst = true;
    PreferencesDlg& dialog = Show();
    EXPECT_EQ(dialog.GetOptionTree().GetCategoryItem("First"), dialog.GetOptionTree().GetSelectedItem());
}

TEST_F(OptionDialog, ItIsResizableAndLaysItselfOut)
{
    PreferencesDlg& dialog = Show();
    EXPECT_NE(0u, dialog.GetStyle() & WS_THICKFRAME);
    CRect before;
    dialog.GetOptionTree().GetWindowRect(&before);
    CRect window;
    dialog.GetWindowRect(&window);
    dialog.MoveWindow(window.left, window.top, window.Width() + 100, window.Height() + 60);
    CRect after;
    dialog.GetOptionTree().GetWindowRect(&after);
    EXPECT_EQ(before.Height() + 60, after.Height());
    EXPECT_NEAR(before.Width() + 40, after.Width(), 1);
}

TEST_F(OptionDialog, AnotherCategoryIsLaidOutOnceAndPaintedAnew)
{
    PreferencesDlg& dialog = Show();
    dialog.UpdateWindow();
    ASSERT_FALSE(::GetUpdateRect(dialog.m_hWnd, nullptr, FALSE));
    dialog.layouts.clear();
    dialog.SendMessage(WM_USER + 367, 0, reinterpret_cast<LPARAM>(dialog.fonts));
    EXPECT_EQ((std::vector<bool>{true}), dialog.layouts) << "with redraw";
    CRect client;
    CRect unpainted;
    dialog.GetClientRect(&client);
    EXPECT_TRUE(::GetUpdateRect(dialog.m_hWnd, &unpainted, FALSE));
    EXPECT_EQ(client, unpainted);
}

TEST_F(OptionDialog, ItExplainsItsControls)
{
    PreferencesDlg& dialog = Show();
    const UINT tips[] = {IDC_SCALE, 999, IDC_UNITS, 700};
    dialog.AddTips(tips, 2);
    EXPECT_EQ(2, dialog.GetToolTipCtrl().GetToolCount());
    CString text;
    dialog.GetToolTipCtrl().GetText(text, dialog.GetDlgItem(IDC_SCALE), IDC_SCALE);
    EXPECT_EQ("Enter the weight.", text);
}

TEST(OptionDialogs, TheTreeMayBeBoundByExchange)
{
    PreferencesDlg dialog(true);
    ASSERT_TRUE(dialog.Create(static_cast<UINT>(IDD_PREFERENCES)));
    EXPECT_EQ(::GetDlgItem(dialog.m_hWnd, IDC_TREE), dialog.GetOptionTree().m_hWnd);
    vorn::test::PumpWaiting();
    EXPECT_EQ("SDA", dialog.Shown());
    dialog.DestroyWindow();
}

TEST(OptionDialogs, NothingIsKeptInTheProfile)
{
    {
        PreferencesDlg dialog;
        ASSERT_TRUE(dialog.Create(static_cast<UINT>(IDD_PREFERENCES)));
        dialog.DestroyWindow();
    }
    EXPECT_EQ(0, g_app.touched);
}

TEST(OptionDialogs, ADialogIsShownTwice)
{
    PreferencesDlg dialog;
    for (int round = 0; round < 2; ++round)
    {
        ASSERT_TRUE(dialog.Create(static_cast<UINT>(IDD_PREFERENCES))) << round;
        vorn::test::PumpWaiting();
        EXPECT_EQ("SDA", dialog.Shown()) << round;
        EXPECT_EQ(4u, dialog.GetOptionTree().GetCount()) << round;
        dialog.DestroyWindow();
    }
}

TEST(OptionDialogs, AModalDialogIsDrivenByItsTree)
{
    PreferencesDlg dialog;
    std::string seen;
    int step = 0;
    DialogDriver driver(
        [&]
        {
            if (FindDialog("Preferences") == nullptr)
            {
                return false;
            }
            if (step++ == 0)
            {
                dialog.GetOptionTree().SelectCategory("Units");
                return false;
            }
            seen = dialog.Shown();
            dialog.PostMessage(WM_COMMAND, IDOK);
            return true;
        });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ("UA", seen);
}

TEST(OptionDialogs, ManyOpeningsLeaveNoHandleBehind)
{
    const auto openAndClose = []
    {
        PreferencesDlg dialog;
        dialog.Create(static_cast<UINT>(IDD_PREFERENCES));
        vorn::test::PumpWaiting();
    };
    openAndClose();
    const unsigned drawing = vorn::test::CountGdiObjects();
    const unsigned user = vorn::test::CountUserObjects();
    for (int i = 0; i < 100; ++i)
    {
        openAndClose();
    }
    EXPECT_EQ(drawing, vorn::test::CountGdiObjects());
    EXPECT_EQ(user, vorn::test::CountUserObjects());
}
