#include "apps/planner/FuelDialog.h"
#include "apps/planner/GotoDialog.h"
#include "apps/planner/PrintDialog.h"
#include "apps/planner/RouteDialog.h"
#include "apps/planner/WeightDialog.h"
#include "apps/planner/resource.h"
#include "tests/support/DialogDriver.h"
#include "tests/windows/gallery/GalleryTest.h"

#include <algorithm>

// The planner's windows from the keyboard alone.
namespace vorn::test
{
namespace
{

char Mnemonic(const std::string& text)
{
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
    {
        if (text[i] == '&' && text[++i] != '&')
            return static_cast<char>(toupper(text[i]));
    }
    return 0;
}

bool IsOfClass(HWND control, const char* name)
{
    char own[16] = {};
    GetClassName(control, own, sizeof own);
    return lstrcmpi(own, name) == 0;
}

char MnemonicOf(HWND control)
{
    const bool isLabel =
        IsOfClass(control, "Static") && (GetWindowLong(control, GWL_STYLE) & static_cast<LONG>(SS_NOPREFIX)) == 0;
    return isLabel || IsOfClass(control, "Button") ? Mnemonic(TextOf(control)) : '\0';
}

std::vector<HWND> ChildrenOf(HWND window)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

std::string Mnemonics(const std::vector<HWND>& controls)
{
    std::string all;
    for (const HWND control : controls)
    {
        if (const char mnemonic = MnemonicOf(control))
            all += mnemonic;
    }
    std::sort(all.begin(), all.end());
    return all;
}

using KeyedWindow = GalleryWindowTest;

TEST_P(KeyedWindow, HasNoMnemonicTwice)
{
    for (int page = 0; page < m_open->Pages(); ++page)
    {
        m_open->ShowPage(page);
        // Of a dialog also those of the tab that is hidden; of a sheet those that are seen together.
        const bool isSheet = GetParam().isSheet;
        const std::string mnemonics = Mnemonics(isSheet ? ControlsOf(Window()) : ChildrenOf(m_open->ControlsOwner()));
        EXPECT_EQ(std::adjacent_find(mnemonics.begin(), mnemonics.end()), mnemonics.end()) << mnemonics;
        EXPECT_GE(mnemonics.size(), GetParam().name == std::string("Links") ? 0u : 1u);
    }
}

TEST_P(KeyedWindow, EveryLabelWithAMnemonicStandsBeforeAControlThatTakesTheFocus)
{
    for (int page = 0; page < m_open->Pages(); ++page)
    {
        m_open->ShowPage(page);
        for (const HWND control : ControlsOf(m_open->ControlsOwner()))
        {
            if (!IsOfClass(control, "Static") || MnemonicOf(control) == 0)
                continue;
            const HWND next = GetWindow(control, GW_HWNDNEXT);
            ASSERT_NE(next, nullptr) << TextOf(control);
            EXPECT_EQ(SendMessage(next, WM_GETDLGCODE, 0, 0) & DLGC_STATIC, 0) << TextOf(control);
        }
    }
}

/// What TAB reaches, from the first control on, once round.
std::vector<HWND> TabOrder(HWND window, bool backwards)
{
    std::vector<HWND> order;
    HWND control = GetNextDlgTabItem(window, nullptr, FALSE);
    const HWND first = control;
    do
    {
        order.push_back(control);
        control = GetNextDlgTabItem(window, control, backwards ? TRUE : FALSE);
    } while (control != nullptr && control != first && order.size() < 100);
    return order;
}

TEST_P(KeyedWindow, TabReachesEveryStopOnceAndComesRound)
{
    for (int page = 0; page < m_open->Pages(); ++page)
    {
        m_open->ShowPage(page);
        const HWND owner = m_open->ControlsOwner();
        const std::vector<HWND> order = TabOrder(owner, false);
        std::vector<HWND> back = TabOrder(owner, true);
        ASSERT_LT(order.size(), 100u);
        std::reverse(back.begin() + 1, back.end());
        EXPECT_EQ(back, order);
        for (const HWND control : ControlsOf(owner))
        {
            const auto style = static_cast<DWORD>(GetWindowLong(control, GWL_STYLE));
            if ((style & (WS_TABSTOP | WS_DISABLED)) == WS_TABSTOP)
            {
                EXPECT_EQ(std::count(order.begin(), order.end(), control), 1) << GetDlgCtrlID(control);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Gallery, KeyedWindow, testing::ValuesIn(GalleryWindows()), NameOfWindow);

/// A dialog in its loop.
struct RunDialog
{
    const char* name;
    INT_PTR (*run)(planner::PlannerData& data);
    INT_PTR byReturn; ///< its result when Return is pressed first of all
};

std::ostream& operator<<(std::ostream& stream, const RunDialog& dialog)
{
    return stream << dialog.name;
}

template <class Dialog>
INT_PTR Run(planner::PlannerData& data)
{
    return Dialog(data, nullptr).DoModal();
}

class EndedDialog : public GalleryTest, public testing::WithParamInterface<RunDialog>
{
protected:
    /// Its result after a key in the control that has the focus first.
    INT_PTR RunAndPress(WPARAM key)
    {
        const DialogDriver driver(
            [key]
            {
                const HWND focus = GetFocus();
                return focus != nullptr && IsWindowVisible(GetAncestor(focus, GA_ROOT)) &&
                       PostMessage(focus, WM_KEYDOWN, key, 0);
            });
        return GetParam().run(m_data);
    }
};

TEST_P(EndedDialog, ReturnPressesItsDefaultButtonAndEscapeCancels)
{
    EXPECT_EQ(RunAndPress(VK_RETURN), GetParam().byReturn);
    EXPECT_EQ(RunAndPress(VK_ESCAPE), IDCANCEL);
    EXPECT_EQ(RunAndPress(VK_RETURN), GetParam().byReturn) << "where it was left";
}

INSTANTIATE_TEST_SUITE_P(Gallery, EndedDialog,
                         testing::Values(RunDialog{"Route", Run<planner::RouteDialog>, IDOK},
                                         RunDialog{"Weight", Run<planner::WeightDialog>, IDOK},
                                         RunDialog{"Fuel", Run<planner::FuelDialog>, IDOK},
                                         RunDialog{"Print", Run<planner::PrintDialog>, IDOK},
                                         RunDialog{"Goto", Run<planner::GotoDialog>, IDOK}),
                         [](const testing::TestParamInfo<RunDialog>& dialog)
                         {
                             return std::string(dialog.param.name);
                         });

class GalleryKeys : public GalleryTest
{
protected:
    GalleryKeys()
    {
        m_data.showOnChart = [this](const LatLon& position)
        {
            m_shown.push_back(position);
        };
    }
    /// Runs the go-to dialog and gives it keys, one whenever its loop has come round. Its result.
    INT_PTR Run(const std::vector<WPARAM>& keys)
    {
        std::size_t next = 0;
        const DialogDriver driver(
            [&]
            {
                const HWND dialog = FindDialog("Go to");
                if (dialog == nullptr || GetFocus() == nullptr)
                    return false;
                m_foci.push_back(GetDlgCtrlID(GetFocus()));
                PostMessage(GetFocus(), WM_KEYDOWN, keys[next], 0);
                return ++next == keys.size();
            });
        planner::GotoDialog dialog(m_data, nullptr);
        return dialog.DoModal();
    }

    std::vector<int> m_foci;
    std::vector<LatLon> m_shown;
};

TEST_F(GalleryKeys, TabWalksThroughTheGoToDialogInReadingOrder)
{
    constexpr int kListOfASimpleCombo = 1001; // its field has the focus
    EXPECT_EQ(Run({VK_TAB, VK_TAB, VK_TAB, VK_TAB, VK_TAB, VK_TAB, VK_ESCAPE}), IDCANCEL);
    EXPECT_EQ(m_foci, (std::vector<int>{IDC_GOTO_BY_PLACE, IDC_GOTO_LATITUDE, IDC_GOTO_LONGITUDE, kListOfASimpleCombo,
                                        IDOK, IDCANCEL, IDC_GOTO_BY_PLACE}));
}

TEST_F(GalleryKeys, ReturnGoesWhereTheDialogSays)
{
    m_data.plan.departure = "EPH";
    EXPECT_EQ(Run({VK_TAB, VK_RETURN}), IDOK);
    ASSERT_EQ(m_shown.size(), 1u);
    EXPECT_EQ(m_shown[0], m_data.places[3].position);
}

TEST_F(GalleryKeys, EscapeGoesNowhere)
{
    EXPECT_EQ(Run({VK_TAB, VK_ESCAPE}), IDCANCEL);
    EXPECT_TRUE(m_shown.empty());
}

} // namespace
} // namespace vorn::test
