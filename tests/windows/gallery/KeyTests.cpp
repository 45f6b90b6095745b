#include "apps/planner/GotoDialog.h"
#include "apps/planner/resource.h"
#include "tests/support/DialogDriver.h"
#include "tests/windows/gallery/GalleryTest.h"

#include <algorithm>

// The planner's dialogs from the keyboard alone.
namespace vorn::test
{
namespace
{

std::string TextOf(HWND window)
{
    std::string text(256, '\0');
    text.resize(static_cast<std::size_t>(GetWindowText(window, text.data(), 256)));
    return text;
}

char Mnemonic(const std::string& text)
{
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
    {
        if (text[i] == '&' && text[++i] != '&')
            return static_cast<char>(toupper(text[i]));
    }
    return 0;
}

/// Of all controls, shown or not, whose texts have mnemonics.
std::string Mnemonics(HWND dialog)
{
    std::string all;
    for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        const auto style = static_cast<DWORD>(GetWindowLong(child, GWL_STYLE));
        char className[16] = {};
        GetClassName(child, className, sizeof className);
        const bool isLabel = lstrcmpi(className, "Static") == 0 && (style & SS_NOPREFIX) == 0;
        const char mnemonic = isLabel || lstrcmpi(className, "Button") == 0 ? Mnemonic(TextOf(child)) : '\0';
        if (mnemonic != 0)
            all += mnemonic;
    }
    return all;
}

class KeyedDialog : public GalleryTest, public testing::WithParamInterface<GalleryDialog>
{
};

TEST_P(KeyedDialog, HasNoMnemonicTwice)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    std::string mnemonics = Mnemonics(*dialog);
    std::sort(mnemonics.begin(), mnemonics.end());
    EXPECT_EQ(std::adjacent_find(mnemonics.begin(), mnemonics.end()), mnemonics.end()) << mnemonics;
    Close(dialog);
}

TEST_P(KeyedDialog, EveryLabelWithAMnemonicStandsBeforeAControlThatTakesTheFocus)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    for (HWND child = GetWindow(*dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        char className[16] = {};
        GetClassName(child, className, sizeof className);
        const HWND next = GetWindow(child, GW_HWNDNEXT);
        const auto style = static_cast<DWORD>(GetWindowLong(child, GWL_STYLE));
        if (lstrcmpi(className, "Static") == 0 && (style & SS_NOPREFIX) == 0 && Mnemonic(TextOf(child)) != 0)
        {
            ASSERT_NE(next, nullptr) << TextOf(child);
            EXPECT_EQ(SendMessage(next, WM_GETDLGCODE, 0, 0) & DLGC_STATIC, 0) << TextOf(child);
        }
    }
    Close(dialog);
}

/// What TAB reaches, from the first control on, once round.
std::vector<int> TabOrder(HWND dialog, bool backwards)
{
    std::vector<int> order;
    HWND control = GetNextDlgTabItem(dialog, nullptr, FALSE);
    const HWND first = control;
    do
    {
        order.push_back(GetDlgCtrlID(control));
        control = GetNextDlgTabItem(dialog, control, backwards ? TRUE : FALSE);
    } while (control != nullptr && control != first && order.size() < 100);
    return order;
}

TEST_P(KeyedDialog, TabReachesEveryStopOnceAndComesRound)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    std::vector<int> order = TabOrder(*dialog, false);
    std::vector<int> back = TabOrder(*dialog, true);
    ASSERT_LT(order.size(), 100u);
    std::reverse(back.begin() + 1, back.end());
    EXPECT_EQ(back, order);
    for (HWND child = GetWindow(*dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        const auto style = static_cast<DWORD>(GetWindowLong(child, GWL_STYLE));
        const DWORD stop = WS_TABSTOP | WS_VISIBLE;
        if ((style & (stop | WS_DISABLED)) == stop)
        {
            EXPECT_EQ(std::count(order.begin(), order.end(), GetDlgCtrlID(child)), 1) << GetDlgCtrlID(child);
        }
    }
    Close(dialog);
}

INSTANTIATE_TEST_SUITE_P(Gallery, KeyedDialog, testing::ValuesIn(GalleryDialogs()), NameOfDialog);

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
