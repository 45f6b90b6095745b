#include "framework/dialog/CColorDialog.h"
#include "framework/dialog/CFontDialog.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

namespace
{
bool IsShown(const CWnd& window)
{
    return window.m_hWnd && ::IsWindowVisible(window.m_hWnd);
}

/// Runs the dialog and presses a button once it is shown.
INT_PTR Press(
    CDialog& dialog, int button, const std::function<void()>& before = [] {})
{
    DialogDriver driver(
        [&]
        {
            if (!IsShown(dialog))
                return false;
            before();
            return ::PostMessageA(dialog.m_hWnd, WM_COMMAND, static_cast<WPARAM>(button), 0) != FALSE;
        });
    return dialog.DoModal();
}
} // namespace

TEST(ColorDialog, RecordIsPrepared)
{
    CColorDialog dialog(RGB(1, 2, 3), CC_FULLOPEN);
    EXPECT_EQ(dialog.m_cc.lStructSize, sizeof(CHOOSECOLORA));
    EXPECT_EQ(dialog.m_cc.Flags & (CC_FULLOPEN | CC_RGBINIT), static_cast<DWORD>(CC_FULLOPEN | CC_RGBINIT));
    EXPECT_EQ(dialog.GetColor(), RGB(1, 2, 3));
    EXPECT_EQ(dialog.m_cc.lpCustColors, CColorDialog::GetSavedCustomColors());
    EXPECT_EQ(CColorDialog::GetSavedCustomColors()[15], RGB(255, 255, 255));
}

TEST(ColorDialog, OkKeepsTheColour)
{
    OwnerWindow owner;
    CColorDialog dialog(RGB(255, 0, 0), 0, &owner);
    BOOL ownerEnabled = TRUE;
    EXPECT_EQ(Press(dialog, IDOK,
                    [&]
                    {
                        ownerEnabled = owner.IsWindowEnabled();
                    }),
              IDOK);
    EXPECT_FALSE(ownerEnabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.GetColor(), RGB(255, 0, 0));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ColorDialog, CancelIsIdCancelAndItRunsAgain)
{
    CColorDialog dialog;
    EXPECT_EQ(Press(dialog, IDCANCEL), IDCANCEL);
    EXPECT_EQ(Press(dialog, IDOK), IDOK);
}

TEST(ColorDialog, DerivedClassSeesInitialisationAndOk)
{
    class Derived : public CColorDialog
    {
    public:
        BOOL OnInitDialog() override
        {
            ++m_inits;
            return CColorDialog::OnInitDialog();
        }
        void OnOK() override
        {
            ++m_oks;
            CColorDialog::OnOK();
        }
        int m_inits = 0;
        int m_oks = 0;
    };
    Derived dialog;
    EXPECT_EQ(Press(dialog, IDOK), IDOK);
    EXPECT_EQ(dialog.m_inits, 1);
    EXPECT_EQ(dialog.m_oks, 1);
}

TEST(ColorDialog, ForeignExceptionOfTheInitialisationStaysInside)
{
    class Thrower : public CColorDialog
    {
    public:
        BOOL OnInitDialog() override
        {
            throw 4;
        }
    };
    Thrower dialog;
    EXPECT_EQ(Press(dialog, IDOK), IDOK);
}

TEST(FontDialog, RecordIsPrepared)
{
    LOGFONTA font{};
    font.lfHeight = -13;
    ::lstrcpyA(font.lfFaceName, "Arial");
    CFontDialog dialog(&font, CF_SCREENFONTS);
    EXPECT_EQ(dialog.m_cf.lStructSize, sizeof(CHOOSEFONTA));
    EXPECT_EQ(dialog.m_cf.lpLogFont, &dialog.m_lf);
    EXPECT_TRUE(dialog.m_cf.Flags & CF_INITTOLOGFONTSTRUCT);
    EXPECT_TRUE(dialog.m_cf.Flags & CF_SCREENFONTS);
    EXPECT_EQ(dialog.GetFaceName(), "Arial");
    LOGFONTA current{};
    dialog.GetCurrentFont(&current);
    EXPECT_EQ(current.lfHeight, -13);
}

TEST(FontDialog, WeightsAndStylesAreToldFromTheRecord)
{
    LOGFONTA font{};
    font.lfWeight = FW_BOLD;
    font.lfItalic = TRUE;
    CFontDialog dialog(&font);
    EXPECT_TRUE(dialog.IsBold());
    EXPECT_TRUE(dialog.IsItalic());
    EXPECT_FALSE(dialog.IsUnderline());
    EXPECT_FALSE(dialog.IsStrikeOut());
    EXPECT_EQ(dialog.GetWeight(), FW_BOLD);
    dialog.m_lf.lfWeight = FW_MEDIUM;
    EXPECT_FALSE(dialog.IsBold());
}

TEST(FontDialog, CancelIsIdCancel)
{
    CFontDialog dialog;
    EXPECT_EQ(Press(dialog, IDCANCEL), IDCANCEL);
}
