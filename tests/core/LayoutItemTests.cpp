#include "tests/support/GridText.h"
#include "toolkit/textlayout/core/Root.h"
#include "toolkit/textlayout/core/Split.h"
#include "toolkit/textlayout/core/Table.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>

using TextLayout::Item;
using TextLayout::Root;
using vorn::test::GridText;
using vorn::test::NumberIn;
using vorn::test::SizedBox;
using vorn::test::TextIn;

namespace
{
/// Counts how often it was asked, and fails from some call on.
class Probe : public Item
{
public:
    explicit Probe(bool works, int fontHeight = 12) : m_works(works), m_fontHeight(fontHeight)
    {
    }
    bool ComputeSize(CDC*) override
    {
        ++calls;
        return m_works;
    }
    bool ComputeLayout(CDC*) override
    {
        ++calls;
        return m_works;
    }
    bool CalcSize(CDC*, CSize& size, int& fontHeight) override
    {
        ++calls;
        size = CSize(30, 10);
        fontHeight = m_fontHeight;
        return m_works;
    }
    void Draw(CDC*) override
    {
        ++draws;
    }
    int calls = 0;
    int draws = 0;

private:
    bool m_works;
    int m_fontHeight;
};

class Ending : public Item
{
public:
    explicit Ending(int& ended) : m_ended(ended)
    {
    }
    ~Ending() override
    {
        ++m_ended;
    }

private:
    int& m_ended;
};

Item* Added(Item& parent, Item* child)
{
    EXPECT_TRUE(parent.Add(child));
    return child;
}
} // namespace

TEST(LayoutItem, IsASerialisableObjectOfTheFamily)
{
    const Item item;
    const TarnObject& base = item;
    EXPECT_NE(nullptr, dynamic_cast<const Item*>(&base));
}

TEST(LayoutItem, KeepsAttributesAsTexts)
{
    Item item;
    item.Set("face", "Arial");
    item.Set("x", -17);
    EXPECT_EQ("Arial", TextIn(item, "face"));
    EXPECT_EQ("-17", TextIn(item, "x"));
    EXPECT_EQ(-17, NumberIn(item, "x"));
    item.Set("x", 4);
    EXPECT_EQ("4", TextIn(item, "x"));
    item.Set("x", INT_MIN);
    EXPECT_EQ(INT_MIN, NumberIn(item, "x"));
}

TEST(LayoutItem, NamesAreExact)
{
    Item item;
    item.Set("maxWidth", 5);
    EXPECT_FALSE(item.Has("MaxWidth"));
    EXPECT_FALSE(item.Has("maxWidt"));
    EXPECT_FALSE(item.Has("maxWidth "));
    EXPECT_FALSE(item.Has(""));
    item.Set("", "nameless");
    EXPECT_EQ("nameless", TextIn(item, ""));
}

TEST(LayoutItem, ReadsNumbersFromTheStartOfTheirText)
{
    Item item;
    const auto number = [&item](const char* text)
    {
        item.Set("n", text);
        return NumberIn(item, "n");
    };
    EXPECT_EQ(34, number("34px"));
    EXPECT_EQ(0, number("wide"));
    EXPECT_EQ(0, number(""));
    EXPECT_EQ(-8, number("  -8.9"));
    EXPECT_EQ(8, number("+8"));
    EXPECT_EQ(0, number("0x10"));
    EXPECT_EQ(10, number("010"));
    EXPECT_EQ(INT_MAX, number("2147483647"));
    EXPECT_EQ(INT_MAX, number("2147483648"));
    EXPECT_EQ(INT_MAX, number("99999999999999999999999999"));
    EXPECT_EQ(INT_MIN, number("-99999999999999999999999999"));
}

TEST(LayoutItem, AMissingAttributeLeavesTheArgumentAlone)
{
    const Item item;
    int number = 7;
    CString text = "before";
    EXPECT_FALSE(item.Get("x", number, true));
    EXPECT_FALSE(item.Get("x", text, true));
    EXPECT_EQ(7, number);
    EXPECT_STREQ("before", text);
}

TEST(LayoutItem, NullNamesAreIgnoredAndNullTextsEmpty)
{
    Item item;
    item.Set(nullptr, "text");
    item.Set(nullptr, 5);
    int number = 7;
    CString text = "before";
    EXPECT_FALSE(item.Has(nullptr));
    EXPECT_FALSE(item.Get(nullptr, number));
    EXPECT_FALSE(item.Get(nullptr, text));
    EXPECT_FALSE(item.GetSum(nullptr, number));
    EXPECT_EQ(0, number);
    item.Set("text", static_cast<LPCSTR>(nullptr));
    EXPECT_TRUE(item.Has("text"));
    EXPECT_EQ("", TextIn(item, "text"));
    EXPECT_FALSE(item.Copy(nullptr, &item));
    EXPECT_FALSE(item.Copy("text", nullptr, &item));
}

TEST(LayoutItem, LooksInTheAncestorsOnlyWhenAsked)
{
    Item top;
    top.Set("face", "Tahoma");
    top.Set("weight", 700);
    Item* middle = Added(top, new Item);
    middle->Set("weight", 300);
    const Item* leaf = Added(*middle, new Item);
    CString face;
    int weight = 0;
    EXPECT_FALSE(leaf->Get("face", face, false));
    EXPECT_FALSE(leaf->Has("face", false));
    EXPECT_TRUE(leaf->Has("face", true));
    EXPECT_TRUE(leaf->Get("face", face, true));
    EXPECT_STREQ("Tahoma", face);
    EXPECT_TRUE(leaf->Get("weight", weight, true));
    EXPECT_EQ(300, weight) << "the nearest ancestor's";
    EXPECT_FALSE(leaf->Has("weight", false));
}

TEST(LayoutItem, SumsOverItselfAndItsAncestors)
{
    Item top;
    top.Set("x", 100);
    Item* middle = Added(top, new Item);
    Item* leaf = Added(*middle, new Item);
    leaf->Set("x", -30);
    leaf->Set("y", 5);
    int sum = 1;
    EXPECT_TRUE(leaf->GetSum("x", sum));
    EXPECT_EQ(70, sum);
    EXPECT_TRUE(middle->GetSum("x", sum));
    EXPECT_EQ(100, sum);
    EXPECT_TRUE(leaf->GetSum("y", sum));
    EXPECT_EQ(5, sum);
    EXPECT_FALSE(middle->GetSum("y", sum));
    EXPECT_EQ(0, sum) << "nobody has one";
}

TEST(LayoutItem, SumsStopAtTheEndsOfTheirType)
{
    Item top;
    top.Set("x", INT_MAX);
    Item* leaf = Added(top, new Item);
    leaf->Set("x", INT_MAX);
    int sum = 0;
    EXPECT_TRUE(leaf->GetSum("x", sum));
    EXPECT_EQ(INT_MAX, sum);
    top.Set("x", INT_MIN);
    leaf->Set("x", -1);
    EXPECT_TRUE(leaf->GetSum("x", sum));
    EXPECT_EQ(INT_MIN, sum);
}

TEST(LayoutItem, CopiesWhatTheOtherItselfHas)
{
    Item top;
    top.Set("width", 80);
    Item* other = Added(top, new Item);
    Item item;
    item.Set("maxWidth", 5);
    EXPECT_TRUE(item.Copy("width", "maxWidth", &top));
    EXPECT_EQ(80, NumberIn(item, "maxWidth"));
    EXPECT_FALSE(item.Has("width"));
    EXPECT_TRUE(item.Copy("width", &top));
    EXPECT_EQ(80, NumberIn(item, "width"));
    EXPECT_FALSE(item.Copy("width", "maxWidth", other)) << "not what it inherits";
    EXPECT_FALSE(item.Copy("width", nullptr));
    EXPECT_FALSE(item.Copy("height", &top));
    EXPECT_EQ(80, NumberIn(item, "maxWidth"));
    EXPECT_TRUE(item.Copy("width", "height", &item)) << "from itself";
    EXPECT_EQ(80, NumberIn(item, "height"));
}

TEST(LayoutItem, RefusesChildrenThatWouldNotMakeATree)
{
    Item top;
    Item* middle = Added(top, new Item);
    Item* leaf = Added(*middle, new Item);
    EXPECT_FALSE(top.Add(nullptr));
    EXPECT_FALSE(leaf->Add(leaf)) << "itself";
    EXPECT_FALSE(leaf->Add(&top)) << "its ancestor";
    EXPECT_FALSE(leaf->Add(middle)) << "has a parent";
    Item other;
    EXPECT_FALSE(other.Add(leaf)) << "has a parent";
    EXPECT_FALSE(other.Add(&other));
}

TEST(LayoutItem, DeletesItsChildren)
{
    int ended = 0;
    {
        Item top;
        Item* first = Added(top, new Ending(ended));
        Added(*first, new Ending(ended));
        Added(top, new Ending(ended));
        EXPECT_EQ(0, ended);
    }
    EXPECT_EQ(3, ended);
}

TEST(LayoutItem, ARefusedChildStaysTheCallers)
{
    int ended = 0;
    const auto loop = std::make_unique<Ending>(ended);
    EXPECT_FALSE(loop->Add(loop.get()));
    EXPECT_EQ(0, ended);
}

TEST(LayoutItem, HandsItsSpaceToChildrenWithoutOne)
{
    Root root(200, 90, nullptr);
    Item* without = Added(root, new Item);
    Item* with = Added(root, new Item);
    with->Set("maxWidth", 40);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(200, NumberIn(*without, "maxWidth"));
    EXPECT_EQ(90, NumberIn(*without, "maxHeight"));
    EXPECT_EQ(40, NumberIn(*with, "maxWidth"));
    EXPECT_EQ(90, NumberIn(*with, "maxHeight"));
}

TEST(LayoutItem, ImposesItsOwnSizeOnItsChildren)
{
    Root root(200, 90, nullptr);
    root.Set("width", 150);
    Item* child = Added(root, new Item);
    child->Set("maxWidth", 40);
    child->Set("maxHeight", 30);
    EXPECT_TRUE(root.ComputeSize(nullptr));
    EXPECT_EQ(150, NumberIn(*child, "maxWidth"));
    EXPECT_EQ(30, NumberIn(*child, "maxHeight")) << "each direction for itself";
    root.Set("height", 60);
    EXPECT_TRUE(root.ComputeSize(nullptr));
    EXPECT_EQ(60, NumberIn(*child, "maxHeight"));
}

TEST(LayoutItem, HandsItsFontHeightToChildrenWithoutOne)
{
    Item top;
    top.Set("fontHeight", 14);
    Item* without = Added(top, new Item);
    Item* with = Added(top, new Item);
    with->Set("fontHeight", 20);
    CSize size;
    int fontHeight = 0;
    EXPECT_TRUE(top.CalcSize(nullptr, size, fontHeight));
    EXPECT_EQ(14, NumberIn(*without, "fontHeight"));
    EXPECT_EQ(20, NumberIn(*with, "fontHeight"));
}

TEST(LayoutItem, SplitsAndTablesHandTheirFontHeightDownToo)
{
    auto* left = new GridText("ab");
    auto* right = new GridText("cd");
    right->Set("fontHeight", 20);
    auto* split = new TextLayout::Split("|50%", left, right);
    split->Set("fontHeight", 14);
    auto* upper = new GridText("ef");
    auto* table = new TextLayout::Table(nullptr, upper, nullptr);
    table->Set("fontHeight", 11);
    Root root(400, 100, split);
    root.Add(table);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(14, NumberIn(*left, "fontHeight")) << "the most that it may be, though there is room for more";
    EXPECT_EQ(20, NumberIn(*right, "fontHeight"));
    EXPECT_EQ(11, NumberIn(*upper, "fontHeight"));
}

TEST(LayoutItem, WithoutSpaceChildrenGetNone)
{
    Item top;
    const Item* child = Added(top, new Item);
    EXPECT_TRUE(top.ComputeLayout(nullptr));
    EXPECT_FALSE(child->Has("maxWidth"));
    EXPECT_FALSE(child->Has("maxHeight"));
    EXPECT_FALSE(child->Has("fontHeight"));
}

TEST(LayoutItem, TheFirstChildThatFailsEndsTheWork)
{
    Item top;
    auto* first = new Probe(true);
    auto* second = new Probe(false);
    auto* third = new Probe(true);
    top.Add(first);
    top.Add(second);
    top.Add(third);
    CSize size;
    int fontHeight = 0;
    EXPECT_FALSE(top.ComputeLayout(nullptr));
    EXPECT_FALSE(top.ComputeSize(nullptr));
    EXPECT_FALSE(top.CalcSize(nullptr, size, fontHeight));
    EXPECT_GE(first->calls, 3);
    EXPECT_EQ(3, second->calls);
    EXPECT_EQ(0, third->calls);
    top.Draw(nullptr);
    EXPECT_EQ(1, first->draws);
    EXPECT_EQ(1, third->draws);
}

TEST(LayoutItem, TellsTheLargestSizeAndTheSmallestFontOfItsChildren)
{
    Item top;
    CSize size(1, 1);
    int fontHeight = 1;
    EXPECT_TRUE(top.CalcSize(nullptr, size, fontHeight));
    EXPECT_EQ(CSize(0, 0), size);
    EXPECT_EQ(9999, fontHeight) << "no text at all";
    top.Add(new Probe(true, 21));
    top.Add(new Probe(true, 17));
    top.Add(new Probe(true, 19));
    EXPECT_TRUE(top.CalcSize(nullptr, size, fontHeight));
    EXPECT_EQ(CSize(30, 10), size);
    EXPECT_EQ(17, fontHeight);
}

TEST(LayoutItem, StoresASizeWithItsEnds)
{
    Item item;
    CSize size(40, 25);
    int fontHeight = 11;
    item.SetSize(size, fontHeight);
    EXPECT_EQ(40, NumberIn(item, "width"));
    EXPECT_EQ(25, NumberIn(item, "height"));
    EXPECT_EQ(11, NumberIn(item, "fontHeight"));
    EXPECT_EQ(40, NumberIn(item, "right"));
    EXPECT_EQ(25, NumberIn(item, "bottom"));
    item.Set("x", 3);
    item.Set("y", -5);
    item.SetSize(size, fontHeight);
    EXPECT_EQ(43, NumberIn(item, "right"));
    EXPECT_EQ(20, NumberIn(item, "bottom"));
}

TEST(LayoutRoot, IsAsLargeAsItIsTold)
{
    const Root root(300, 80, nullptr);
    EXPECT_EQ(300, NumberIn(root, "maxWidth"));
    EXPECT_EQ(80, NumberIn(root, "maxHeight"));
    EXPECT_FALSE(root.Has("width"));
    const Root other(CSize(7, 9), nullptr);
    EXPECT_EQ(7, NumberIn(other, "maxWidth"));
    EXPECT_EQ(9, NumberIn(other, "maxHeight"));
}

TEST(LayoutRoot, LaysItsTextOut)
{
    auto* text = new GridText("ab");
    Root root(CSize(100, 40), text);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(40, NumberIn(*text, "fontHeight"));
    EXPECT_EQ(40, NumberIn(*text, "width")) << "two letters of 20";
    EXPECT_EQ(40, NumberIn(*text, "bottom"));
}

TEST(LayoutText, WithoutSpaceItCannotBeMeasured)
{
    GridText text("ab");
    CSize size(3, 4);
    int fontHeight = 5;
    EXPECT_FALSE(text.CalcSize(nullptr, size, fontHeight));
    text.Set("maxWidth", 100);
    EXPECT_FALSE(text.CalcSize(nullptr, size, fontHeight));
    text.Set("maxHeight", 40);
    EXPECT_TRUE(text.CalcSize(nullptr, size, fontHeight));
    Root root(100, 40, nullptr);
    Item* between = Added(root, new Item);
    auto* inherits = new GridText("ab");
    between->Add(inherits);
    EXPECT_FALSE(inherits->CalcSize(nullptr, size, fontHeight)) << "the space is not looked for in the ancestors";
}

TEST(LayoutText, KeepsASizeThatItHas)
{
    GridText text("abcdefgh");
    text.Set("width", 5);
    text.Set("height", 6);
    text.Set("fontHeight", 3);
    text.Set("x", 10);
    CSize size;
    int fontHeight = 0;
    EXPECT_TRUE(text.CalcSize(nullptr, size, fontHeight)) << "and needs no space for it";
    EXPECT_EQ(CSize(5, 6), size);
    EXPECT_EQ(3, fontHeight);
    EXPECT_TRUE(text.ComputeLayout(nullptr));
    EXPECT_EQ(15, NumberIn(text, "right"));
    EXPECT_EQ(6, NumberIn(text, "bottom"));
}

TEST(LayoutText, AnImposedFontHeightIsTheMostThatIsTaken)
{
    GridText text("abcd");
    text.Set("maxWidth", 100);
    text.Set("maxHeight", 100);
    text.Set("fontHeight", 20);
    CSize size;
    int fontHeight = 0;
    EXPECT_TRUE(text.CalcSize(nullptr, size, fontHeight));
    EXPECT_EQ(20, fontHeight);
    EXPECT_EQ(CSize(40, 20), size);
    GridText narrow("abcdefghij");
    narrow.Set("maxWidth", 60);
    narrow.Set("maxHeight", 100);
    narrow.Set("fontHeight", 20);
    EXPECT_TRUE(narrow.CalcSize(nullptr, size, fontHeight));
    EXPECT_EQ(13, fontHeight) << "10 letters of 6";
}

TEST(LayoutText, BoundsAndSpacingAreInherited)
{
    auto* text = new GridText("a\nb");
    Root root(500, 100, text);
    root.Set("maxFontHeight", 30);
    root.Set("spacing", 50);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(30, NumberIn(*text, "fontHeight"));
    EXPECT_EQ(90, NumberIn(*text, "height"));
    auto* small = new GridText("abcdefghijkl");
    Root tight(60, 100, small);
    tight.Set("minFontHeight", 16);
    EXPECT_TRUE(tight.ComputeLayout(nullptr));
    EXPECT_EQ(16, NumberIn(*small, "fontHeight"));
    EXPECT_EQ("abc...", TextIn(*small, "text")) << "12 letters of 8 are cut to 6";
    EXPECT_EQ(48, NumberIn(*small, "width"));
}
