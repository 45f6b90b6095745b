#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using namespace vorn::test;

TEST(Text, ExtentsAddUpCharacterWidths)
{
    Canvas canvas(1, 1);
    int width = 0;
    ASSERT_TRUE(canvas.dc.GetCharWidth('H', 'H', &width));
    TEXTMETRIC metrics{};
    ASSERT_TRUE(canvas.dc.GetTextMetrics(&metrics));
    EXPECT_EQ(CSize(3 * width, metrics.tmHeight), canvas.dc.GetTextExtent("HHH", 3));
    EXPECT_EQ(CSize(3 * width, metrics.tmHeight), canvas.dc.GetTextExtent(CString("HHH")));
    EXPECT_EQ(canvas.dc.GetTextExtent("HHH", 3), canvas.dc.GetOutputTextExtent("HHH", 3));
    EXPECT_EQ(canvas.dc.GetTextExtent("HHH", 3), canvas.dc.GetOutputTextExtent(CString("HHH")));
    TEXTMETRIC output{};
    EXPECT_TRUE(canvas.dc.GetOutputTextMetrics(&output));
    EXPECT_EQ(metrics.tmHeight, output.tmHeight);
    int outputWidth = 0;
    EXPECT_TRUE(canvas.dc.GetOutputCharWidth('H', 'H', &outputWidth));
    EXPECT_EQ(width, outputWidth);
}

TEST(Text, NegativeLengthsMeanUpToTheTerminator)
{
    Canvas canvas(1, 1);
    EXPECT_EQ(canvas.dc.GetTextExtent("HHH", 3), canvas.dc.GetTextExtent("HHH", -1));
}

TEST(Text, NullTextsAreEmpty)
{
    Canvas canvas(10, 10);
    EXPECT_EQ(0, canvas.dc.GetTextExtent(nullptr, 5).cx);
    EXPECT_TRUE(canvas.dc.TextOut(0, 0, nullptr, 5));
    CRect rect(0, 0, 10, 10);
    canvas.dc.DrawText(nullptr, -1, &rect, DT_LEFT);
    EXPECT_EQ(0, canvas.dc.DrawTextEx(nullptr, -1, &rect, DT_LEFT, nullptr));
    EXPECT_EQ(100, canvas.Count(kWhite));
}

TEST(Text, IsDrawnInTheTextColourOnTheBackgroundColour)
{
    Canvas canvas(60, 30);
    canvas.dc.SetTextColor(kRed);
    canvas.dc.SetBkColor(kBlue);
    EXPECT_TRUE(canvas.dc.TextOut(0, 0, CString("H")));
    EXPECT_GT(canvas.Count(kBlue), 0);
    EXPECT_GT(canvas.Count(kWhite), 0);
    EXPECT_NE(60 * 30, canvas.Count(kBlue) + canvas.Count(kWhite)) << "the letter itself";
}

TEST(Text, EmbeddedZerosOfAStringAreDrawnToo)
{
    Canvas canvas(1, 1);
    const CString text("H\0H", 3);
    EXPECT_GE(canvas.dc.GetTextExtent(text).cx, canvas.dc.GetTextExtent("HH", 2).cx);
}

TEST(Text, ExtTextOutFillsAndClips)
{
    Canvas canvas(40, 20);
    canvas.dc.SetBkColor(kBlue);
    canvas.dc.SetTextColor(kBlue);
    EXPECT_TRUE(canvas.dc.ExtTextOut(0, 0, ETO_OPAQUE | ETO_CLIPPED, CRect(0, 0, 5, 5), CString("HHH"), nullptr));
    EXPECT_EQ(25, canvas.Count(kBlue));
    EXPECT_TRUE(canvas.dc.ExtTextOut(0, 0, ETO_OPAQUE, CRect(0, 0, 40, 20), nullptr, 0, nullptr));
    EXPECT_EQ(800, canvas.Count(kBlue));
}

TEST(Text, DrawTextMeasuresAndTellsTheHeight)
{
    Canvas canvas(200, 100);
    TEXTMETRIC metrics{};
    canvas.dc.GetTextMetrics(&metrics);
    CRect rect(0, 0, 0, 0);
    EXPECT_EQ(metrics.tmHeight, canvas.dc.DrawText(CString("HHH"), &rect, DT_CALCRECT | DT_SINGLELINE));
    EXPECT_EQ(CRect(CPoint(0, 0), canvas.dc.GetTextExtent("HHH", 3)), rect);
    EXPECT_EQ(2 * metrics.tmHeight, canvas.dc.DrawText("H\nH", -1, &rect, DT_CALCRECT));
    EXPECT_EQ(20000, canvas.Count(kWhite)) << "measuring draws nothing";
    rect.SetRect(0, 0, 200, 100);
    canvas.dc.DrawText("H", 1, &rect, DT_LEFT);
    EXPECT_LT(canvas.Count(kWhite), 20000);
}

TEST(Text, DrawTextExShortensWithoutTouchingTheString)
{
    Canvas canvas(30, 30);
    const CString text("A text that is much too long");
    CRect rect(0, 0, 30, 30);
    EXPECT_GT(canvas.dc.DrawTextEx(text, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_SINGLELINE, nullptr), 0);
    EXPECT_STREQ("A text that is much too long", text);
}

TEST(Text, DrawTextShortensWithoutTouchingTheString)
{
    Canvas canvas(30, 30);
    const CString text("A text that is much too long");
    const CString other = text;
    CRect rect(0, 0, 30, 30);
    EXPECT_GT(canvas.dc.DrawText(text, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_SINGLELINE), 0);
    EXPECT_STREQ("A text that is much too long", text);
    EXPECT_STREQ("A text that is much too long", other);
}

TEST(Text, TabsAdvanceToTheirStops)
{
    Canvas canvas(200, 30);
    int stop = 50;
    const int width = canvas.dc.GetTextExtent("H", 1).cx;
    EXPECT_EQ(50 + width, canvas.dc.GetTabbedTextExtent("H\tH", 3, 1, &stop).cx);
    EXPECT_EQ(50 + width, canvas.dc.GetTabbedTextExtent(CString("H\tH"), 1, &stop).cx);
    EXPECT_EQ(50 + width, canvas.dc.GetOutputTabbedTextExtent("H\tH", 3, 1, &stop).cx);
    EXPECT_EQ(50 + width, canvas.dc.GetOutputTabbedTextExtent(CString("H\tH"), 1, &stop).cx);
    EXPECT_EQ(50 + width, canvas.dc.TabbedTextOut(0, 0, "H\tH", 3, 1, &stop, 0).cx);
    EXPECT_EQ(50 + width, canvas.dc.TabbedTextOut(0, 0, CString("H\tH"), 1, &stop, 0).cx);
}

TEST(Text, TellsHowMuchFits)
{
    Canvas canvas(1, 1);
    const int width = canvas.dc.GetTextExtent("H", 1).cx;
    int fit = 0;
    std::array<int, 4> widths{};
    CSize size;
    EXPECT_TRUE(canvas.dc.GetTextExtentExPoint("HHHH", 4, 2 * width, &fit, widths.data(), &size));
    EXPECT_EQ(2, fit);
    EXPECT_EQ(2 * width, widths[1]);
    EXPECT_EQ(4 * width, size.cx);
}

TEST(Text, ExtraSpaceAndJustificationWidenIt)
{
    Canvas canvas(1, 1);
    const int width = canvas.dc.GetTextExtent("H H", 3).cx;
    canvas.dc.SetTextCharacterExtra(2);
    EXPECT_EQ(width + 3 * 2, canvas.dc.GetTextExtent("H H", 3).cx);
    canvas.dc.SetTextCharacterExtra(0);
    EXPECT_NE(0, canvas.dc.SetTextJustification(7, 1));
    EXPECT_EQ(width + 7, canvas.dc.GetTextExtent("H H", 3).cx);
}

TEST(Text, TellsFaceAndFontFacts)
{
    Canvas canvas(1, 1);
    CFont font;
    font.CreatePointFont(200, "DejaVu Sans", &canvas.dc);
    CFont* former = canvas.dc.SelectObject(&font);
    CString face;
    EXPECT_GT(canvas.dc.GetTextFace(face), 0);
    EXPECT_FALSE(face.IsEmpty());
    std::array<char, 4> shortName{};
    canvas.dc.GetTextFace(4, shortName.data());
    EXPECT_EQ(face.Left(3), shortName.data());
    ABC abc{};
    EXPECT_TRUE(canvas.dc.GetCharABCWidths('H', 'H', &abc));
    int width = 0;
    canvas.dc.GetCharWidth('H', 'H', &width);
    EXPECT_EQ(width, abc.abcA + static_cast<int>(abc.abcB) + abc.abcC);
    ABCFLOAT abcFloat{};
    EXPECT_TRUE(canvas.dc.GetCharABCWidths('H', 'H', &abcFloat));
    float floatWidth = 0;
    EXPECT_TRUE(canvas.dc.GetCharWidth('H', 'H', &floatWidth));
    const UINT size = canvas.dc.GetOutlineTextMetrics(0, nullptr);
    ASSERT_GE(size, sizeof(OUTLINETEXTMETRIC));
    std::vector<std::uint64_t> buffer(size / 8 + 1);
    EXPECT_NE(0U, canvas.dc.GetOutlineTextMetrics(size, reinterpret_cast<OUTLINETEXTMETRIC*>(buffer.data())));
    EXPECT_NE(GDI_ERROR, canvas.dc.GetFontData(0, 0, nullptr, 0));
    canvas.dc.GetFontLanguageInfo();
    EXPECT_GE(canvas.dc.GetKerningPairs(0, nullptr), 0);
    canvas.dc.SelectObject(former);
}

TEST(Text, GlyphOutlinesTellTheirSize)
{
    Canvas canvas(1, 1);
    CFont font;
    font.CreatePointFont(200, "DejaVu Sans", &canvas.dc);
    CFont* former = canvas.dc.SelectObject(&font);
    GLYPHMETRICS metrics{};
    const MAT2 identity{{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    EXPECT_NE(GDI_ERROR, canvas.dc.GetGlyphOutline('H', GGO_METRICS, &metrics, 0, nullptr, &identity));
    EXPECT_GT(metrics.gmBlackBoxX, 0U);
    canvas.dc.SelectObject(former);
}

TEST(Text, PlacesCharacters)
{
    Canvas canvas(1, 1);
    std::array<int, 3> widths{};
    GCP_RESULTS results{};
    results.lStructSize = sizeof(results);
    results.lpDx = widths.data();
    results.nGlyphs = 3;
    EXPECT_NE(0U, canvas.dc.GetCharacterPlacement(CString("HHH"), 0, &results, 0));
    EXPECT_EQ(canvas.dc.GetTextExtent("H", 1).cx, widths[0]);
}
