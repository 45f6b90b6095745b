#include "tests/windows/textlayout/Fitted.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <functional>
#include <memory>
#include <string>

using namespace vorn::test;
using TextLayout::Text;

namespace
{
std::unique_ptr<CFont> FontOf(int height, const char* face = "Arial")
{
    return std::unique_ptr<CFont>(Text(nullptr, face).CreateFont(height));
}

LOGFONT Description(const Text& text, int height)
{
    const std::unique_ptr<CFont> font(text.CreateFont(height));
    LOGFONT description{};
    EXPECT_TRUE(font && font->GetLogFont(&description));
    return description;
}

std::string LongList(int lines)
{
    std::string text;
    for (int i = 0; i < lines; ++i)
    {
        text += "Line " + std::to_string(i) + " of a long list\n";
    }
    return text;
}

/// The size of a text in a font, asked of the system line by line.
CSize SizeAt(CDC& dc, const char* text, int height)
{
    const std::unique_ptr<CFont> font = FontOf(height);
    CSize size;
    EXPECT_TRUE(Text::GetTextSize(&dc, text, font.get(), 0, size));
    return size;
}

/// The largest font height with which a text is within a box.
int LargestFitting(CDC& dc, const char* text, CSize box)
{
    for (int height = 300; height >= 9; --height)
    {
        const CSize size = SizeAt(dc, text, height);
        if (size.cx <= box.cx && size.cy <= box.cy)
        {
            return height;
        }
    }
    return 0;
}
} // namespace

TEST(TextSize, IsTheWidestLineAndTheSumOfTheHeights)
{
    Canvas canvas(1, 1);
    const std::unique_ptr<CFont> font = FontOf(30);
    CFont* former = canvas.dc.SelectObject(font.get());
    const CSize wide = canvas.dc.GetTextExtent("Wide line", 9);
    canvas.dc.SelectObject(former);
    CSize size;
    EXPECT_TRUE(Text::GetTextSize(&canvas.dc, "Wide line", font.get(), 0, size));
    EXPECT_EQ(wide, size);
    EXPECT_TRUE(Text::GetTextSize(&canvas.dc, "i\nWide line\nii", font.get(), 0, size));
    EXPECT_EQ(CSize(wide.cx, 3 * wide.cy), size);
    EXPECT_TRUE(Text::GetTextSize(&canvas.dc, "i\nWide line\nii", font.get(), 50, size));
    EXPECT_EQ(CSize(wide.cx, 3 * (wide.cy * 150 / 100)), size);
    EXPECT_TRUE(Text::GetTextSize(&canvas.dc, "i\nWide line\nii", font.get(), -200, size));
    EXPECT_EQ(CSize(wide.cx, 3 * (wide.cy / 100)), size);
}

TEST(TextSize, EmptyLinesHaveTheFontsHeight)
{
    Canvas canvas(1, 1);
    const std::unique_ptr<CFont> font = FontOf(30);
    const int line = SizeAt(canvas.dc, "x", 30).cy;
    EXPECT_EQ(CSize(0, line), SizeAt(canvas.dc, "", 30));
    EXPECT_EQ(CSize(0, line), SizeAt(canvas.dc, nullptr, 30));
    EXPECT_EQ(3 * line, SizeAt(canvas.dc, "x\n\n", 30).cy);
}

TEST(TextSize, ReturnsVanishTabsAreBlanksAndAmpersandsLetters)
{
    Canvas canvas(1, 1);
    EXPECT_EQ(SizeAt(canvas.dc, "a\nb", 30), SizeAt(canvas.dc, "a\r\nb\r", 30));
    EXPECT_EQ(SizeAt(canvas.dc, "a b", 30), SizeAt(canvas.dc, "a\tb", 30));
    EXPECT_GT(SizeAt(canvas.dc, "a&b", 30).cx, SizeAt(canvas.dc, "ab", 30).cx);
}

TEST(TextSize, OfManyLinesIsThatOfTheWidest)
{
    Canvas canvas(1, 1);
    const std::string text = LongList(2000) + "The widest line, with \xC4 and \xF6, of all these lines\nand some more";
    for (const int height : {9, 20, 41})
    {
        const std::unique_ptr<CFont> font = FontOf(height);
        CFont* former = canvas.dc.SelectObject(font.get());
        const CSize widest = canvas.dc.GetTextExtent("The widest line, with \xC4 and \xF6, of all these lines");
        canvas.dc.SelectObject(former);
        EXPECT_EQ(CSize(widest.cx, 2002 * widest.cy), SizeAt(canvas.dc, text.c_str(), height));
    }
}

TEST(TextSize, OfManyLinesFollowsTheSpaceBetweenCharacters)
{
    Canvas canvas(1, 1);
    canvas.dc.SetTextCharacterExtra(3);
    const std::string text = LongList(2000) + "The widest line of all these lines, spread";
    CSize size;
    EXPECT_TRUE(Text::GetTextSize(&canvas.dc, text.c_str(), nullptr, 0, size));
    EXPECT_EQ(canvas.dc.GetTextExtent("The widest line of all these lines, spread").cx, size.cx);
}

TEST(TextSize, WithoutAFontItIsThatOfTheSelectedOne)
{
    Canvas canvas(1, 1);
    CSize size;
    EXPECT_TRUE(Text::GetTextSize(&canvas.dc, "Text", nullptr, 0, size));
    EXPECT_EQ(canvas.dc.GetTextExtent("Text", 4), size);
}

TEST(TextSize, NeedsADeviceContext)
{
    const std::unique_ptr<CFont> font = FontOf(30);
    CSize size(5, 5);
    EXPECT_FALSE(Text::GetTextSize(nullptr, "Text", font.get(), 0, size));
    EXPECT_EQ(CSize(0, 0), size);
    CDC empty;
    EXPECT_FALSE(Text::GetTextSize(&empty, "Text", font.get(), 0, size));
    EXPECT_FALSE(Text::GetTextSize(&empty, "Text", nullptr, 0, size));
}

TEST(TextSize, LeavesTheFontSelected)
{
    Canvas canvas(1, 1);
    const HGDIOBJ before = ::GetCurrentObject(canvas.dc, OBJ_FONT);
    SizeAt(canvas.dc, "Text", 30);
    EXPECT_EQ(before, ::GetCurrentObject(canvas.dc, OBJ_FONT));
    Fit(canvas.dc, CSize(200, 50), "Text");
    EXPECT_EQ(before, ::GetCurrentObject(canvas.dc, OBJ_FONT));
}

TEST(TextSize, IsThatOfTheAttributeContext)
{
    Canvas canvas(1, 1);
    Canvas other(1, 1);
    const std::unique_ptr<CFont> large = FontOf(60);
    CFont* former = other.dc.SelectObject(large.get());
    CDC both;
    both.Attach(canvas.dc.m_hDC);
    both.SetAttribDC(other.dc.m_hDC);
    CSize size;
    EXPECT_TRUE(Text::GetTextSize(&both, "Text", nullptr, 0, size));
    EXPECT_EQ(other.dc.GetTextExtent("Text", 4), size);
    both.Detach();
    other.dc.SelectObject(former);
}

TEST(TextFont, IsOfTheHeightFaceAndWeight)
{
    const LOGFONT plain = Description(Text("x", nullptr), 17);
    EXPECT_EQ(17, plain.lfHeight) << "of the line, not of the letters";
    EXPECT_STREQ("Arial", plain.lfFaceName);
    EXPECT_EQ(400, plain.lfWeight);
    EXPECT_EQ(DEFAULT_CHARSET, plain.lfCharSet);
    EXPECT_EQ(0, plain.lfItalic);
    const LOGFONT bold = Description(Text("x", "Courier New", 700), 17);
    EXPECT_STREQ("Courier New", bold.lfFaceName);
    EXPECT_EQ(700, bold.lfWeight);
}

TEST(TextFont, InheritsFaceAndWeight)
{
    auto* text = new Text("x", nullptr);
    TextLayout::Root root(1, 1, text);
    root.Set("face", "Tahoma");
    root.Set("weight", 300);
    const LOGFONT font = Description(*text, 20);
    EXPECT_STREQ("Tahoma", font.lfFaceName);
    EXPECT_EQ(300, font.lfWeight);
}

TEST(TextFont, CutsAFaceThatIsTooLong)
{
    const LOGFONT font = Description(Text("x", "A face whose name is much longer than any"), 20);
    EXPECT_STREQ("A face whose name is much longe", font.lfFaceName);
}

TEST(TextFont, ThereIsNoneWithoutHeight)
{
    const Text text("x", "Arial");
    EXPECT_EQ(nullptr, text.CreateFont(0));
    EXPECT_EQ(nullptr, text.CreateFont(-20));
    EXPECT_EQ(nullptr, text.CreateFont(INT_MIN));
}

TEST(TextNode, StoresOnlyWhatIsGiven)
{
    const Text all("text", "face", 0, 1, 2, RGB(1, 2, 3), 1);
    EXPECT_EQ("text", TextIn(all, "text"));
    EXPECT_EQ("face", TextIn(all, "face"));
    EXPECT_EQ(0, NumberIn(all, "weight"));
    EXPECT_EQ(1, NumberIn(all, "spacing"));
    EXPECT_EQ(2, NumberIn(all, "maxFontHeight"));
    EXPECT_EQ(0x030201, NumberIn(all, "color"));
    EXPECT_EQ(1, NumberIn(all, "minFontHeight"));
    const Text none(nullptr, nullptr, -1, 0, 0, 0, 0);
    for (const char* name : {"text", "face", "weight", "spacing", "maxFontHeight", "color", "minFontHeight"})
    {
        EXPECT_FALSE(none.Has(name)) << name;
    }
    const Text negative(nullptr, nullptr, -1, -5, -5, 0, -5);
    EXPECT_FALSE(negative.Has("spacing"));
    EXPECT_FALSE(negative.Has("maxFontHeight"));
    EXPECT_FALSE(negative.Has("minFontHeight"));
}

TEST(TextNode, TellsASingleLine)
{
    EXPECT_TRUE(Text::IsSingleLine("one line"));
    EXPECT_TRUE(Text::IsSingleLine(""));
    EXPECT_TRUE(Text::IsSingleLine("one\rline"));
    EXPECT_FALSE(Text::IsSingleLine("two\nlines"));
    EXPECT_FALSE(Text::IsSingleLine("\n"));
}

TEST(TextNode, CutsTexts)
{
    CString line = "abc  defghi";
    Text::ShortenLine(line);
    EXPECT_STREQ("abc...", line);
    Text::ShortenLine(line);
    EXPECT_STREQ("abc...", line);
    CString text = "a\nb\nc\nd";
    Text::RemoveLine(text, 1);
    EXPECT_STREQ("a\nb\nc\n...(1)", text);
    Text::RemoveLine(text, 2);
    EXPECT_STREQ("a\nb\n...(2)", text);
}

TEST(TextLayoutOnDevice, FindsTheLargestFont)
{
    Canvas canvas(1, 1);
    const struct
    {
        const char* text;
        CSize box;
    } cases[] = {
        {"ENROUTE CHART", {300, 80}},
        {"A label", {500, 24}},
        {"One wide line of some sixty characters that is not high at all", {300, 200}},
        {"Five\nlines\nof\nvery little\ntext", {300, 120}},
        {"A line that is wide\nand one that is wider than it\nshort", {260, 200}},
        {"1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n14\n15\n16\n17\n18\n19\n20", {300, 400}},
        {"", {100, 33}},
    };
    for (const auto& [text, box] : cases)
    {
        const Fitted fitted = Fit(canvas.dc, box, text);
        ASSERT_TRUE(fitted.done) << text;
        const int font = NumberIn(*fitted.text, "fontHeight");
        const int largest = LargestFitting(canvas.dc, text, box);
        const bool filled = SizeAt(canvas.dc, text, font).cy == box.cy;
        EXPECT_TRUE(font == largest || (filled && font == largest - 1)) << text << ": " << font << ", not " << largest;
        EXPECT_EQ(SizeAt(canvas.dc, text, font),
                  CSize(NumberIn(*fitted.text, "width"), NumberIn(*fitted.text, "height")));
        EXPECT_EQ(text, TextIn(*fitted.text, "text"));
    }
}

TEST(TextLayoutOnDevice, CutsWhatDoesNotFit)
{
    Canvas canvas(1, 1);
    const CSize line = SizeAt(canvas.dc, "x", 9);
    const Fitted high = Fit(canvas.dc, CSize(400, 4 * line.cy), "one\ntwo\nthree\nfour\nfive\nsix\nseven");
    EXPECT_EQ("one\ntwo\nthree\n...(4)", TextIn(*high.text, "text"));
    EXPECT_EQ(9, NumberIn(*high.text, "fontHeight"));
    EXPECT_EQ(4 * line.cy, NumberIn(*high.text, "height"));
    const Fitted wide = Fit(canvas.dc, CSize(60, 40), "A line that is far too wide for its box");
    const CString cut = TextIn(*wide.text, "text");
    EXPECT_STREQ("...", cut.Right(3));
    EXPECT_EQ(0, CString("A line that is far too wide for its box").Find(cut.Left(cut.GetLength() - 3)));
    EXPECT_LE(NumberIn(*wide.text, "width"), 60);
    EXPECT_EQ(SizeAt(canvas.dc, cut, 9).cx, NumberIn(*wide.text, "width"));
}

TEST(TextLayoutOnDevice, AnyBytesAreText)
{
    Canvas canvas(1, 1);
    std::string text;
    for (int code = 1; code < 256; ++code)
    {
        text += static_cast<char>(code);
    }
    const Fitted fitted = Fit(canvas.dc, CSize(900, 60), text.c_str());
    EXPECT_TRUE(fitted.done);
    fitted.root->Draw(&canvas.dc);
    EXPECT_TRUE(Fit(canvas.dc, CSize(5, 5), "%s%s%n%d").done);
}

TEST(TextLayoutOnDevice, NeedsADeviceContext)
{
    auto* text = new Text("text", "Arial");
    TextLayout::Root root(100, 50, text);
    CSize size;
    int fontHeight = 0;
    EXPECT_FALSE(root.ComputeLayout(nullptr));
    EXPECT_FALSE(root.ComputeSize(nullptr));
    EXPECT_FALSE(root.CalcSize(nullptr, size, fontHeight));
    CDC empty;
    EXPECT_FALSE(root.ComputeLayout(&empty));
    EXPECT_FALSE(text->Has("width"));
    root.Draw(nullptr);
    root.Draw(&empty);
    Canvas canvas(1, 1);
    EXPECT_TRUE(root.ComputeLayout(&canvas.dc));
    root.Draw(nullptr);
    root.Draw(&empty);
    EXPECT_FALSE(text->CalcSize(nullptr, size, fontHeight));
}

TEST(TextLayoutOnDevice, WithoutAWidthItFails)
{
    Canvas canvas(1, 1);
    Text text("text", "Arial");
    text.Set("maxHeight", 50);
    EXPECT_FALSE(text.ComputeLayout(&canvas.dc));
    text.Set("maxWidth", 50);
    EXPECT_TRUE(text.ComputeLayout(&canvas.dc));
}

TEST(TextLayoutOnDevice, HugeFontsAreNotAsked)
{
    Canvas canvas(1, 1);
    const Fitted fitted =
        Fit(canvas.dc, CSize(INT_MAX, INT_MAX), "text", {{"maxFontHeight", "2147483647"}, {"minFontHeight", "-5"}});
    EXPECT_TRUE(fitted.done);
    EXPECT_EQ(9999, NumberIn(*fitted.text, "fontHeight"));
    EXPECT_GT(NumberIn(*fitted.text, "height"), 9000) << "the system's fonts are as high as they say";
}

TEST(TextLayoutOnDevice, TenThousandLinesTakeNoTime)
{
    Canvas canvas(1, 1);
    const std::string text = LongList(10000);
    for (const CSize box : {CSize(300, 200), CSize(300, 200000), CSize(30, 200000)})
    {
        double least = 1e9; // other programs lengthen a turn now and then
        for (int turn = 0; turn < 5; ++turn)
        {
            const auto start = std::chrono::steady_clock::now();
            const Fitted fitted = Fit(canvas.dc, box, text.c_str());
            const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
            EXPECT_TRUE(fitted.done);
            least = std::min(least, spent.count());
        }
        EXPECT_LT(least, 50) << box.cx << " by " << box.cy;
        RecordProperty("ms_" + std::to_string(box.cx) + "_" + std::to_string(box.cy), std::to_string(least));
    }
}

TEST(TextLayoutOnDevice, AThousandLevelsDeep)
{
    Canvas canvas(40, 40);
    const std::function<TextLayout::Item*(TextLayout::Item*)> boxes[] = {
        [](TextLayout::Item* child)
        {
            return new TextLayout::Alignment("right", child);
        },
        [](TextLayout::Item* child)
        {
            return new TextLayout::Table(nullptr, child, nullptr);
        },
        [](TextLayout::Item* child)
        {
            return new TextLayout::Split("-100%", child, new TextLayout::Item);
        },
    };
    for (const auto& box : boxes)
    {
        auto* text = new Text("ab", nullptr);
        TextLayout::Item* top = text;
        for (int i = 0; i < 1000; ++i)
        {
            top = box(top);
        }
        TextLayout::Root root(100, 40, top);
        root.Set("face", "Arial");
        EXPECT_TRUE(root.ComputeLayout(&canvas.dc));
        EXPECT_GE(NumberIn(*text, "fontHeight"), 38);
        root.Draw(&canvas.dc);
    }
}
