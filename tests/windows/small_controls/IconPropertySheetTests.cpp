#include "tests/windows/small_controls/resource.h"
#include "toolkit/IconPropertySheet.h"

#include <gtest/gtest.h>

namespace
{
class NoIconSheet : public IconPropertySheet
{
public:
    NoIconSheet() : IconPropertySheet("Planning")
    {
    }

protected:
    UINT GetIconID() override
    {
        return 4711;
    }
};

int WidthOf(HICON icon)
{
    ICONINFO info{};
    ::GetIconInfo(icon, &info);
    BITMAP bitmap{};
    ::GetObject(info.hbmMask, sizeof(bitmap), &bitmap);
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
    return static_cast<int>(bitmap.bmWidth);
}
} // namespace

TEST(IconPropertySheet, HasTheHostsIconInBothSizes)
{
    CPropertyPage page(IDD_TEST_EMPTY);
    IconPropertySheet sheet("Planning");
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create());
    ASSERT_NE(nullptr, sheet.GetIcon(TRUE));
    ASSERT_NE(nullptr, sheet.GetIcon(FALSE));
    EXPECT_EQ(::GetSystemMetrics(SM_CXICON), WidthOf(sheet.GetIcon(TRUE)));
    EXPECT_EQ(::GetSystemMetrics(SM_CXSMICON), WidthOf(sheet.GetIcon(FALSE)));
    sheet.DestroyWindow();
}

TEST(IconPropertySheet, WithoutSuchAnIconNothingChanges)
{
    CPropertyPage page(IDD_TEST_EMPTY);
    CPropertySheet plain("Planning");
    plain.AddPage(&page);
    ASSERT_TRUE(plain.Create());
    const HICON before = plain.GetIcon(TRUE);
    plain.DestroyWindow();
    NoIconSheet sheet;
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create());
    EXPECT_EQ(before, sheet.GetIcon(TRUE));
    sheet.DestroyWindow();
}

TEST(IconPropertySheet, CanBeMadeInEachWay)
{
    const HBITMAP bitmap = ::CreateBitmap(8, 8, 1, 1, nullptr);
    IconPropertySheet byText("Planning", nullptr, 1);
    EXPECT_STREQ("Planning", byText.m_psh.pszCaption);
    EXPECT_EQ(1U, byText.m_psh.nStartPage);
    IconPropertySheet byId(4711U, nullptr, 2);
    EXPECT_STREQ("", byId.m_psh.pszCaption) << "no such text";
    EXPECT_EQ(2U, byId.m_psh.nStartPage);
    IconPropertySheet decorated("Planning", nullptr, 0, bitmap, nullptr, bitmap);
    EXPECT_EQ(bitmap, decorated.m_psh.hbmWatermark);
    EXPECT_EQ(bitmap, decorated.m_psh.hbmHeader);
    IconPropertySheet decoratedById(4711U, nullptr, 0, bitmap);
    EXPECT_EQ(bitmap, decoratedById.m_psh.hbmWatermark);
    EXPECT_EQ(nullptr, decoratedById.m_psh.hbmHeader);
    ::DeleteObject(bitmap);
}
