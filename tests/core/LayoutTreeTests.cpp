#include "tests/support/RandomLayout.h"
#include "toolkit/textlayout/core/TextLines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

using TextLayout::Alignment;
using TextLayout::Item;
using TextLayout::Root;
using TextLayout::Split;
using TextLayout::Table;
using vorn::test::GridText;
using vorn::test::NumberIn;
using vorn::test::SizedBox;
using vorn::test::TextIn;

namespace
{
constexpr int kDeep = 1000;

/// A text below a thousand boxes.
void LayDeep(const std::function<Item*(Item*)>& box)
{
    auto* text = new GridText("ab");
    Item* top = text;
    for (int i = 0; i < kDeep; ++i)
    {
        top = box(top);
    }
    Root root(100, 40, top);
    root.Set("x", 3);
    CSize size;
    int fontHeight = 0;
    EXPECT_TRUE(root.CalcSize(nullptr, size, fontHeight));
    EXPECT_TRUE(root.ComputeSize(nullptr));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(40, NumberIn(*text, "fontHeight"));
    int x = 0;
    EXPECT_TRUE(text->GetSum("x", x));
    EXPECT_EQ(3, x);
    root.Draw(nullptr);
}

Item* Nested(Item* child)
{
    auto* item = new Item;
    item->Add(child);
    return item;
}

std::vector<unsigned char> RandomBytes(std::mt19937& random)
{
    std::vector<unsigned char> bytes(random() % 300);
    const unsigned values = random() % 2 == 0 ? 256 : 40;
    for (unsigned char& byte : bytes)
    {
        byte = static_cast<unsigned char>(random() % values);
    }
    return bytes;
}

/// Whether a text has the size that it takes in its font, and fits its space unless that font is the smallest.
void ExpectFitted(const GridText& text)
{
    vorn::test::GridMeasure measure;
    const int font = NumberIn(text, "fontHeight");
    measure.UseFont(font);
    const std::vector<std::string> lines = vorn::TextLines(static_cast<LPCSTR>(TextIn(text, "text")));
    int width = 0;
    for (const std::string& line : lines)
    {
        width = std::max(width, measure.LineWidth(line));
    }
    EXPECT_EQ(width, NumberIn(text, "width"));
    EXPECT_EQ(font * static_cast<int>(lines.size()), NumberIn(text, "height"));
    const bool fits = width <= NumberIn(text, "maxWidth") && NumberIn(text, "height") <= NumberIn(text, "maxHeight");
    EXPECT_TRUE(fits || font == 9) << font;
}
} // namespace

TEST(LayoutTree, AThousandLevelsDeep)
{
    LayDeep(Nested);
    LayDeep(
        [](Item* child)
        {
            return new Alignment("left", child);
        });
    LayDeep(
        [](Item* child)
        {
            return new Table(nullptr, child, nullptr);
        });
    LayDeep(
        [](Item* child)
        {
            return new Split("-100%", child, new SizedBox(1, 1));
        });
}

TEST(LayoutTree, ATitleBlockOfEveryKindOfBox)
{
    auto* title = new GridText("ENROUTE");
    auto* scale = new GridText("one to half a million");
    auto* north = new GridText("N");
    auto* notes = new GridText("first\nsecond");
    auto* foot = new Split("|70%", notes, new Alignment("right bottom", north));
    auto* table = new Table("rows", title, scale);
    Root root(210, 120, new Split("-50%", table, foot));
    ASSERT_TRUE(root.ComputeLayout(nullptr));
    // The title's 7 letters in 210 by 60 are as high as the space, 60, and 210 wide. That leaves no height for the
    // scale: the smallest font, 21 characters of 4, one of them an i of 2.
    EXPECT_EQ(60, NumberIn(*title, "fontHeight"));
    EXPECT_EQ(210, NumberIn(*title, "width"));
    EXPECT_EQ(60, NumberIn(*scale, "y"));
    EXPECT_EQ(9, NumberIn(*scale, "fontHeight"));
    EXPECT_EQ(80, NumberIn(*scale, "width"));
    EXPECT_EQ(69, NumberIn(*table, "bottom"));
    // The foot begins where the table really ends, 51 are left of 120. The notes: 6 letters in 147 by 51.
    EXPECT_EQ(69, NumberIn(*foot, "y"));
    EXPECT_EQ(51, NumberIn(*foot, "maxHeight"));
    EXPECT_EQ(147, NumberIn(*notes, "maxWidth"));
    EXPECT_EQ(25, NumberIn(*notes, "fontHeight"));
    EXPECT_EQ(72, NumberIn(*notes, "right"));
    // The north mark fills the height of its 138, and stands in its corner.
    EXPECT_EQ(51, NumberIn(*north, "fontHeight"));
    EXPECT_EQ(25, NumberIn(*north, "width"));
    EXPECT_EQ(113, NumberIn(*north, "x"));
    EXPECT_EQ(0, NumberIn(*north, "y"));
    int x = 0;
    int y = 0;
    north->GetSum("x", x);
    north->GetSum("y", y);
    EXPECT_EQ(CPoint(185, 69), CPoint(x, y));
    CSize size;
    int fontHeight = 0;
    ASSERT_TRUE(root.CalcSize(nullptr, size, fontHeight));
    EXPECT_EQ(CSize(210, 120), size);
    EXPECT_EQ(9, fontHeight);
}

TEST(LayoutTree, EveryTextOfAnyTreeFitsOrIsCut)
{
    std::mt19937 random(5405);
    int texts = 0;
    for (int turn = 0; turn < 2000; ++turn)
    {
        const vorn::test::RandomLayout layout(RandomBytes(random), false);
        if (layout.root->ComputeLayout(nullptr))
        {
            for (const GridText* text : layout.texts)
            {
                ExpectFitted(*text);
                ++texts;
            }
        }
    }
    EXPECT_GT(texts, 300);
}

TEST(LayoutTree, AnyAttributesLeaveItAnEnd)
{
    std::mt19937 random(5406);
    int laid = 0;
    for (int turn = 0; turn < 2000; ++turn)
    {
        const vorn::test::RandomLayout layout(RandomBytes(random));
        laid += layout.root->ComputeLayout(nullptr) ? 1 : 0;
    }
    EXPECT_GT(laid, 500);
}
