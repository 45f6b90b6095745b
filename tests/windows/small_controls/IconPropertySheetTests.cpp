#include "tests/windows/small_controls/IconFacts.h"
#include "tests/windows/small_controls/resource.h"
#include "toolkit/IconPropertySheet.h"
#include "toolkit/layout/LayoutPropertySheet.h"

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
} // namespace

TEST(IconPropertySheet, HasTheHostsIconInBothSizes)
{
    CPropertyPage page(IDD_TEST_EMPTY);
    IconPropertySheet sheet("Planning");
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create());
    EXPECT_TRUE(vorn::test::HasHostIcons(sheet));
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

TEST(IconPropertySheet, OneThatLaysItselfOutHasItToo)
{
    CPropertyPage page(IDD_TEST_EMPTY);
    LayoutManagement::LayoutPropertySheet sheet("Planning", nullptr, 0, nullptr);
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create());
    EXPECT_TRUE(vorn::test::HasHostIcons(sheet));
    sheet.DestroyWindow();
    ASSERT_TRUE(sheet.Create()) << "a second time";
    EXPECT_TRUE(vorn::test::HasHostIcons(sheet));
    sheet.DestroyWindow();
}

namespace
{
class OtherIconSheet : public LayoutManagement::LayoutPropertySheet
{
public:
    OtherIconSheet() : LayoutPropertySheet("Planning", nullptr, 0, nullptr)
    {
    }

protected:
    UINT GetIconID() override
    {
        return 4711;
    }
};
} // namespace

TEST(IconPropertySheet, OneThatLaysItselfOutMayChooseAnother)
{
    CPropertyPage page(IDD_TEST_EMPTY);
    OtherIconSheet sheet;
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create());
    EXPECT_FALSE(vorn::test::HasHostIcons(sheet)) << "there is none of that number";
    sheet.DestroyWindow();
}

TEST(IconPropertySheet, OneThatLaysItselfOutKeepsAnIconOfItsOwn)
{
    CPropertyPage page(IDD_TEST_EMPTY);
    LayoutManagement::LayoutPropertySheet sheet("Planning", nullptr, 0, nullptr);
    sheet.m_psh.dwFlags |= PSH_USEHICON;
    sheet.m_psh.hIcon = ::LoadIcon(nullptr, IDI_WARNING);
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create());
    EXPECT_FALSE(vorn::test::HasHostIcons(sheet));
    sheet.DestroyWindow();
}
