#include "tests/windows/small_controls/IconFacts.h"
#include "tests/windows/small_controls/resource.h"
#include "toolkit/IconDlg.h"

#include <gtest/gtest.h>

namespace
{
class NoIconDlg : public IconDlg
{
public:
    NoIconDlg() : IconDlg(IDD_TEST_EMPTY)
    {
    }

protected:
    UINT GetIconID() override
    {
        return 4711;
    }
};
} // namespace

TEST(IconDlg, HasTheHostsIconInBothSizes)
{
    IconDlg dialog(IDD_TEST_EMPTY);
    ASSERT_TRUE(dialog.Create(IDD_TEST_EMPTY));
    EXPECT_TRUE(vorn::test::HasHostIcons(dialog));
    dialog.DestroyWindow();
}

TEST(IconDlg, CanBeMadeInEachWay)
{
    IconDlg byName(MAKEINTRESOURCE(IDD_TEST_EMPTY), nullptr);
    ASSERT_TRUE(byName.Create(MAKEINTRESOURCE(IDD_TEST_EMPTY)));
    EXPECT_NE(nullptr, byName.GetIcon(TRUE));
    byName.DestroyWindow();
    IconDlg plain;
    ASSERT_TRUE(plain.Create(IDD_TEST_EMPTY));
    EXPECT_NE(nullptr, plain.GetIcon(FALSE));
    plain.DestroyWindow();
    ASSERT_TRUE(plain.Create(IDD_TEST_EMPTY)) << "a second time";
    EXPECT_NE(nullptr, plain.GetIcon(FALSE));
    plain.DestroyWindow();
}

TEST(IconDlg, WithoutSuchAnIconNothingChanges)
{
    NoIconDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_TEST_EMPTY));
    EXPECT_EQ(nullptr, dialog.GetIcon(TRUE));
    dialog.DestroyWindow();
}
