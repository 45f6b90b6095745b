#include "framework/core/DialogTemplate.h"

#include "tests/support/DialogTemplateBuilder.h"

#include <gtest/gtest.h>

using vorn::ReadDialogTemplate;
using Layout = DialogTemplateBuilder::Layout;

namespace
{
DialogTemplateBuilder Sample(Layout layout)
{
    DialogTemplateBuilder builder(layout);
    builder.Style(0x80c80000, 0x100).Title("Flight").At({1, -2, 180, 90}).Font(8, "MS Shell Dlg");
    builder.Add(DialogTemplateBuilder::Edit, 1001, 0x10000, {5, 6, 70, 12}, "x");
    builder.Add("msctls_progress32", 1002, 1, {5, 20, 70, 12});
    builder.CreationData({1, 2, 3});
    return builder.Add(DialogTemplateBuilder::Button, 1, 0, {7, 40, 50, 14}, "OK");
}

class EachLayout : public testing::TestWithParam<Layout>
{
};
} // namespace

INSTANTIATE_TEST_SUITE_P(DialogTemplate, EachLayout, testing::Values(Layout::Plain, Layout::Extended));

TEST_P(EachLayout, HeadIsRead)
{
    const auto bytes = Sample(GetParam()).Bytes();
    const auto read = ReadDialogTemplate(bytes);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->extended, GetParam() == Layout::Extended);
    EXPECT_EQ(read->style, 0x80c80040u);
    EXPECT_EQ(read->exStyle, 0x100u);
    EXPECT_EQ(read->title, u"Flight");
    EXPECT_EQ(read->rect.y, -2);
    EXPECT_EQ(read->rect.cx, 180);
    EXPECT_EQ(read->pointSize, 8);
    EXPECT_EQ(read->typeface, u"MS Shell Dlg");
}

TEST_P(EachLayout, ItemsAreRead)
{
    const auto read = ReadDialogTemplate(Sample(GetParam()).Bytes());
    ASSERT_TRUE(read);
    ASSERT_EQ(read->items.size(), 3u);
    EXPECT_EQ(read->items[0].windowClass.ordinal, 0x81);
    EXPECT_EQ(read->items[0].title.text, u"x");
    EXPECT_EQ(read->items[0].style, 0x50010000u);
    EXPECT_EQ(read->items[1].id, 1002u);
    EXPECT_EQ(read->items[1].windowClass.text, u"msctls_progress32");
    EXPECT_EQ(read->items[1].creationData, (std::vector<std::uint8_t>{1, 2, 3}));
    EXPECT_EQ(read->items[2].title.text, u"OK");
    EXPECT_EQ(read->items[2].rect.cx, 50);
}

TEST_P(EachLayout, EveryShorterTemplateIsRefused)
{
    const auto bytes = Sample(GetParam()).Bytes();
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(ReadDialogTemplate(std::span(bytes).first(size))) << size;
}

TEST_P(EachLayout, BytesAfterTheLastControlAreIgnored)
{
    auto bytes = Sample(GetParam()).Bytes();
    const std::size_t size = bytes.size();
    bytes.insert(bytes.end(), 7, 0xff);
    const auto read = ReadDialogTemplate(bytes);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->size, size);
}

TEST(DialogTemplate, WithoutFontHasNoPointSize)
{
    const auto read = ReadDialogTemplate(DialogTemplateBuilder().Style(0x80000000).Bytes());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->pointSize, 0);
    EXPECT_TRUE(read->items.empty());
}

TEST(DialogTemplate, UnknownExtendedVersionIsRefused)
{
    auto bytes = Sample(Layout::Extended).Bytes();
    bytes[0] = 2;
    EXPECT_FALSE(ReadDialogTemplate(bytes));
}

TEST(DialogTemplate, NoBytesAreRefused)
{
    EXPECT_FALSE(ReadDialogTemplate({}));
}
