#include "apps/planner/shots/TipFacts.h"
#include "apps/planner/shots/WindowFacts.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/UserCount.h"
#include "tests/windows/preferences/PreferencesTest.h"

#include <algorithm>

// The dialog around its categories: tree, room, keys, tips, and what its buttons do.
namespace vorn::test
{
namespace
{

using preferences::Category;
using preferences::PreferencesDialog;

class Preferences : public PreferencesTest
{
protected:
    std::string Faults() const
    {
        std::string text;
        for (const std::string& fault : planner::FaultsOf(planner::FactsOf(Dialog())))
            text += fault + '\n';
        return text;
    }
    void SizeTo(int width, int height) const
    {
        Dialog().SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    CRect Place() const
    {
        CRect place;
        Dialog().GetWindowRect(&place);
        return place;
    }
    std::vector<HWND> VisibleControls() const
    {
        std::vector<HWND> controls;
        for (HWND child = GetWindow(Dialog(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        {
            if (IsWindowVisible(child))
                controls.push_back(child);
        }
        return controls;
    }
};

std::string WindowText(HWND window)
{
    std::string text(256, '\0');
    text.resize(static_cast<std::size_t>(GetWindowText(window, text.data(), 256)));
    return text;
}

bool IsOfClass(HWND window, const char* name)
{
    char own[32] = {};
    GetClassName(window, own, sizeof own);
    return lstrcmpi(own, name) == 0;
}

char Mnemonic(HWND control)
{
    if (!IsOfClass(control, "Static") && !IsOfClass(control, "Button"))
        return 0;
    const std::string text = WindowText(control);
    const std::size_t mark = text.find('&');
    return mark != std::string::npos && mark + 1 < text.size() ? static_cast<char>(toupper(text[mark + 1])) : '\0';
}

TEST_F(Preferences, HaveTheirCategoriesInATree)
{
    OptionTree& tree = Open().GetOptionTree();
    std::string paths;
    for (int number = 0; const std::unique_ptr<Category>& category : Dialog().Categories())
    {
        const HTREEITEM item = tree.GetCategoryItem(category->Path());
        ASSERT_NE(item, nullptr) << category->Path();
        EXPECT_EQ(tree.GetItemData(item), static_cast<DWORD_PTR>(number++)) << category->Path();
        paths += std::string(category->Path()) + '\n';
    }
    EXPECT_EQ(paths, "General\nGeneral|Folders\nGeneral|Messages\nGeneral|Statistics\nUnits\nUnits|Positions\n"
                     "Units|Altitudes\nChart\nChart|Night\nNetwork\n");
    EXPECT_EQ(tree.GetSelectedItem(), tree.GetCategoryItem("General"));
    EXPECT_EQ(TextOf(IDC_OPT_FRAME), "General");
}

TEST_F(Preferences, ShowTheControlsOfOneCategoryAndNoOthers)
{
    Open();
    for (const std::unique_ptr<Category>& chosen : Dialog().Categories())
    {
        Choose(chosen->Path());
        for (HWND child = GetWindow(Dialog(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        {
            const auto id = static_cast<UINT>(GetDlgCtrlID(child));
            const bool ofDialog = id < IDC_OPT_GENERAL_FIRST;
            EXPECT_EQ(IsWindowVisible(child) != FALSE, ofDialog || chosen->Owns(id)) << chosen->Path() << ' ' << id;
        }
    }
    Choose("Units|Positions");
    EXPECT_EQ(TextOf(IDC_OPT_FRAME), "Units: Positions");
}

TEST_F(Preferences, HaveNoFaultAtAnySizeInAnyCategory)
{
    Open();
    const CRect first = Place();
    SizeTo(1, 1);
    const CRect least = Place();
    EXPECT_LE(least.Width(), first.Width());
    for (const std::unique_ptr<Category>& category : Dialog().Categories())
    {
        Choose(category->Path());
        for (const int more : {0, 15, 60, 250})
        {
            SizeTo(least.Width() + more, least.Height() + more / 2);
            EXPECT_EQ(Faults(), "") << category->Path() << " by " << more;
        }
        SizeTo(1, 1);
        EXPECT_EQ(Place().Size(), least.Size()) << category->Path();
    }
}

TEST_F(Preferences, KeepTheirSizeWhileTheUserGoesThroughTheCategories)
{
    Open();
    const CRect first = Place();
    for (const std::unique_ptr<Category>& category : Dialog().Categories())
    {
        Choose(category->Path());
        EXPECT_EQ(Place(), first) << category->Path();
    }
}

TEST_F(Preferences, ComeBackWhereTheyWere)
{
    Open();
    Dialog().SetWindowPos(nullptr, 40, 30, Place().Width() + 77, Place().Height() + 33, SWP_NOZORDER);
    const CRect left = Place();
    Close();
    Open();
    EXPECT_EQ(Place(), left);
}

TEST_F(Preferences, HaveNoMnemonicTwiceInACategory)
{
    Open();
    for (const std::unique_ptr<Category>& category : Dialog().Categories())
    {
        Choose(category->Path());
        std::string all;
        for (const HWND control : VisibleControls())
        {
            if (const char letter = Mnemonic(control); letter != 0)
                all += letter;
        }
        std::sort(all.begin(), all.end());
        EXPECT_EQ(std::adjacent_find(all.begin(), all.end()), all.end()) << category->Path() << ' ' << all;
    }
}

TEST_F(Preferences, HaveTheTabOrderOfReading)
{
    Open();
    for (const std::unique_ptr<Category>& category : Dialog().Categories())
    {
        Choose(category->Path());
        CRect before(0, 0, 0, 0);
        HWND control = GetNextDlgTabItem(Dialog(), nullptr, FALSE);
        EXPECT_EQ(GetDlgCtrlID(control), IDC_OPT_TREE);
        for (control = GetNextDlgTabItem(Dialog(), control, FALSE); GetDlgCtrlID(control) != IDC_OPT_TREE;
             control = GetNextDlgTabItem(Dialog(), control, FALSE))
        {
            CRect place;
            GetWindowRect(control, &place);
            EXPECT_TRUE(place.top >= before.bottom || place.left >= before.right)
                << category->Path() << ' ' << GetDlgCtrlID(control);
            before = place;
        }
    }
}

TEST_F(Preferences, ExplainEveryControl)
{
    Open();
    for (const std::unique_ptr<Category>& category : Dialog().Categories())
    {
        Choose(category->Path());
        EXPECT_EQ(planner::UnexplainedControls(Dialog()), std::vector<std::string>()) << category->Path();
    }
    Dialog().GetToolTipCtrl().DelTool(Dialog().GetDlgItem(IDC_OPT_PROXIES), IDC_OPT_PROXIES);
    EXPECT_EQ(planner::UnexplainedControls(Dialog()),
              std::vector<std::string>{"control 3602 \"&Proxies...\" has no tip"});
}

TEST_F(Preferences, StoreNothingWhenNothingWasChanged)
{
    Open();
    for (const std::unique_ptr<Category>& category : Dialog().Categories())
        Choose(category->Path());
    Press(IDOK);
    EXPECT_EQ(Stored(), "");
    EXPECT_EQ(m_changes, 0);
    EXPECT_FALSE(IsOpen());
}

TEST_F(Preferences, StoreNothingAtCancel)
{
    Open();
    Click(IDC_OPT_TIPS);
    Click(IDC_OPT_DISCLAIMER);
    Choose("General|Folders");
    Type(IDC_OPT_FOLDER + 1, "D:\\Nav");
    Choose("General|Messages");
    Select(IDC_OPT_DETAIL, "All messages");
    Choose("General|Statistics");
    Click(IDC_OPT_STATISTICS_CLEAR);
    Choose("Units");
    Click(IDC_OPT_METRIC);
    Choose("Units|Positions");
    Click(IDC_OPT_SECONDS);
    Choose("Units|Altitudes");
    Type(IDC_OPT_LEVEL, "5000");
    Choose("Chart");
    Select(IDC_OPT_COLOR_SET, "Night");
    Choose("Chart|Night");
    Type(IDC_OPT_SCALE + 1, "0.9");
    Press(IDCANCEL);
    EXPECT_EQ(Stored(), "");
    EXPECT_EQ(m_changes, 0);
    EXPECT_EQ(m_clearings, 0);
    EXPECT_FALSE(IsNightVision());
    EXPECT_EQ(FLAltToString(18000), "FL180");
    EXPECT_NE(FLAltToString(5000), "FL050");
}

TEST_F(Preferences, CanBeAppliedOnceSomethingHasChanged)
{
    Open();
    const CWnd& apply = *Dialog().GetDlgItem(IDC_OPT_APPLY);
    EXPECT_FALSE(apply.IsWindowEnabled());
    Click(IDC_OPT_START);
    EXPECT_TRUE(apply.IsWindowEnabled());
    Dialog().GetDlgItem(IDC_OPT_APPLY)->SetFocus();
    Press(IDC_OPT_APPLY);
    EXPECT_FALSE(apply.IsWindowEnabled());
    EXPECT_NE(GetFocus(), apply.m_hWnd);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Stored(), "Startup\\ShowDialog=0\n");
    EXPECT_EQ(m_changes, 1);
    Click(IDC_OPT_START);
    Press(IDCANCEL);
    EXPECT_EQ(Stored(), "Startup\\ShowDialog=0\n") << "what was applied stays";
    EXPECT_EQ(m_changes, 1);
}

TEST_F(Preferences, ShowARefusedEntryAndStoreNothing)
{
    Open();
    Choose("Units");
    Click(IDC_OPT_METRIC);
    Choose("Units|Altitudes");
    Type(IDC_OPT_LEVEL, "high");
    Choose("Network");
    Press(IDOK);
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(Shows(IDC_OPT_LEVEL));
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDC_OPT_LEVEL);
    EXPECT_EQ(RefusalText(), "Flight levels begin at a whole number of feet from 0 to 100,000.");
    EXPECT_EQ(Stored(), "");
    Type(IDC_OPT_LEVEL, "4,500");
    Press(IDOK);
    EXPECT_FALSE(IsOpen());
    EXPECT_NE(Stored().find("Altitude\\Flight Level=4500\n"), std::string::npos) << Stored();
}

TEST_F(Preferences, LeaveNoHandleBehind)
{
    Open();
    Close();
    PumpWaiting();
    const unsigned before = vorn::test::CountUserObjects();
    for (int i = 0; i < 5; ++i)
    {
        Open();
        Choose("Chart|Night");
        Close();
    }
    PumpWaiting();
    EXPECT_EQ(vorn::test::CountUserObjects(), before);
}

} // namespace
} // namespace vorn::test
