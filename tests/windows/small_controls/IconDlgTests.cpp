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

CSize SizeOf(HICON icon)
{
    ICONINFO info{};
    ::GetIconInfo(icon, &info);
    BITMAP bitmap{};
    ::GetObject(info.hbmMask, sizeof(bitmap), &bitmap);
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
    return CSize(bitmap.bmWidth, info.hbmColor != nullptr ? bitmap.bmHeight : bitmap.bmHeight / 2);
}
} // namespace

TEST(IconDlg, HasTheHostsIconInBothSizes)
{
    IconDlg dialog(IDD_TEST_EMPTY);
    ASSERT_TRUE(dialog.Create(IDD_TEST_EMPTY));
    ASSERT_NE(nullptr, dialog.GetIcon(TRUE));
    ASSERT_NE(nullptr, dialog.GetIcon(FALSE));
    EXPECT_EQ(CSize(::GetSystemMetrics(SM_CXICON), ::GetSystemMetrics(SM_CYICON)), SizeOf(dialog.GetIcon(TRUE)));
    EXPECT_EQ(CSize(::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON)), SizeOf(dialog.GetIcon(FALSE)));
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
