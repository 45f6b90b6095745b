#include "tests/windows/textlayout/Fitted.h"

#include <gtest/gtest.h>

#include <string>

using namespace vorn::test;
using TextLayout::Text;

namespace
{
const CSize kPicture(160, 80);
constexpr UINT_PTR kGdiHandles = 0x10000;

DWORD CountGdiObjects()
{
    DWORD count = 0;
    for (UINT_PTR handle = 1; handle < kGdiHandles; ++handle)
    {
        count += ::GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0;
    }
    return count;
}

/// Number of pixels of a colour within a rectangle.
int CountIn(const Canvas& canvas, const CRect& area, COLORREF color)
{
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y)
    {
        for (int x = area.left; x < area.right; ++x)
        {
            count += canvas.At(x, y) == color;
        }
    }
    return count;
}

CRect BoxOf(const Text& text)
{
    int x = 0;
    int y = 0;
    text.GetSum("x", x);
    text.GetSum("y", y);
    return CRect(CPoint(x, y), CSize(NumberIn(text, "width"), NumberIn(text, "height")));
}

/// Whether there is ink, and all of it within the box of a text.
void ExpectInkWithin(const Canvas& canvas, const CRect& box)
{
    const CRect ink = InkOf(canvas, kPicture);
    EXPECT_FALSE(ink.IsRectEmpty());
    CRect common;
    common.IntersectRect(ink, box);
    EXPECT_EQ(ink, common);
}
} // namespace

TEST(TextDrawing, FillsNearlyTheWholeOfItsBox)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    const Fitted fitted = Fit(canvas.dc, kPicture, "Hgy");
    ASSERT_TRUE(fitted.done);
    fitted.root->Draw(&canvas.dc);
    ExpectInkWithin(canvas, BoxOf(*fitted.text));
    const CRect ink = InkOf(canvas, kPicture);
    EXPECT_GT(ink.Height(), 80 * 3 / 4) << "from the capital's top to the tails";
    EXPECT_GT(canvas.Count(kBlack), 300) << "black when no colour is set";
}

TEST(TextDrawing, IsAtTheSumOfAllPlaces)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    auto* text = new Text("Hg", "Arial");
    text->Set("maxFontHeight", 20);
    auto* alignment = new TextLayout::Alignment("right bottom", text);
    TextLayout::Root root(100, 50, alignment);
    root.Set("x", 40);
    root.Set("y", 25);
    ASSERT_TRUE(root.ComputeLayout(&canvas.dc));
    root.Draw(&canvas.dc);
    const CRect box = BoxOf(*text);
    EXPECT_EQ(CPoint(140, 75), box.BottomRight());
    ExpectInkWithin(canvas, box);
    EXPECT_GE(InkOf(canvas, kPicture).left, box.left);
    EXPECT_GE(InkOf(canvas, kPicture).right, 140 - 4);
}

TEST(TextDrawing, HasItsColour)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    const Fitted fitted = Fit(canvas.dc, kPicture, "H");
    fitted.root->Set("color", static_cast<int>(kRed));
    fitted.root->Draw(&canvas.dc);
    EXPECT_GT(canvas.Count(kRed), 100);
    EXPECT_EQ(0, canvas.Count(kBlack));
}

TEST(TextDrawing, TheBackgroundIsExactlyTheBox)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    const Fitted fitted = Fit(canvas.dc, CSize(100, 40), "H g", {{"bgcolor", "16711680"}, {"color", "16711680"}});
    fitted.root->Set("x", 7);
    fitted.root->Set("y", 5);
    fitted.root->Draw(&canvas.dc);
    const CRect box = BoxOf(*fitted.text);
    EXPECT_EQ(CPoint(7, 5), box.TopLeft());
    EXPECT_EQ(box.Width() * box.Height(), CountIn(canvas, box, kBlue)) << "text and background are of one colour";
    EXPECT_EQ(box.Width() * box.Height(), canvas.Count(kBlue));
}

TEST(TextDrawing, InheritsBackgroundAndShadow)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    auto* text = new Text("HI", "Arial");
    TextLayout::Root root(CSize(100, 40), text);
    root.Set("bgcolor", static_cast<int>(kGreen));
    root.Set("color", static_cast<int>(kRed));
    root.Set("shadowOffset", 4);
    ASSERT_TRUE(root.ComputeLayout(&canvas.dc));
    root.Draw(&canvas.dc);
    EXPECT_GT(canvas.Count(kGreen), 100);
    EXPECT_GT(canvas.Count(kRed), 50);
    EXPECT_GT(canvas.Count(RGB(0xC0, 0xC0, 0xC0)), 20) << "below a red text, which is a dark one";
}

TEST(TextDrawing, ABlackBackgroundIsOneToo)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    const Fitted fitted =
        Fit(canvas.dc, CSize(50, 20), "", {{"bgcolor", "0"}, {"width", "30"}, {"height", "10"}, {"fontHeight", "10"}});
    fitted.root->Draw(&canvas.dc);
    EXPECT_EQ(300, canvas.Count(kBlack));
    EXPECT_EQ(CRect(0, 0, 30, 10), InkOf(canvas, kPicture));
}

TEST(TextDrawing, TheShadowIsMovedAndBelow)
{
    Canvas plain(kPicture.cx, kPicture.cy);
    Canvas shadowed(kPicture.cx, kPicture.cy);
    const Fitted text = Fit(plain.dc, CSize(140, 60), "HI", {{"color", "65535"}});
    text.root->Draw(&plain.dc);
    text.text->Set("shadowOffset", 6);
    text.root->Draw(&shadowed.dc);
    constexpr COLORREF kYellow = RGB(255, 255, 0);
    EXPECT_EQ(plain.Count(kYellow), shadowed.Count(kYellow)) << "the text is above its shadow";
    EXPECT_GT(shadowed.Count(kBlack), 50);
    const CRect before = InkOf(plain, kPicture);
    const CRect after = InkOf(shadowed, kPicture);
    EXPECT_EQ(before.TopLeft(), after.TopLeft());
    EXPECT_EQ(before.BottomRight() + CSize(6, 6), after.BottomRight());
}

TEST(TextDrawing, ADarkTextHasALightShadow)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    const Fitted text = Fit(canvas.dc, CSize(140, 60), "HI", {{"shadowOffset", "-5"}});
    text.root->Set("x", 10);
    text.root->Set("y", 10);
    text.root->Draw(&canvas.dc);
    EXPECT_GT(canvas.Count(RGB(0xC0, 0xC0, 0xC0)), 50);
    EXPECT_GT(canvas.Count(kBlack), 50);
}

TEST(TextDrawing, LinesAreBelowOneAnother)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    const Fitted fitted = Fit(canvas.dc, CSize(160, 75), "H\n\nH", {{"spacing", "25"}});
    fitted.root->Draw(&canvas.dc);
    const int advance = NumberIn(*fitted.text, "height") / 3;
    const CRect row(0, 0, kPicture.cx, advance);
    EXPECT_GT(CountIn(canvas, row, kBlack), 20);
    EXPECT_EQ(0, CountIn(canvas, row + CSize(0, advance), kBlack)) << "the empty line";
    EXPECT_EQ(CountIn(canvas, row, kBlack), CountIn(canvas, row + CSize(0, 2 * advance), kBlack));
}

TEST(TextDrawing, WithoutALayoutNothingIsDrawn)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    Text text("text", "Arial");
    text.Set("bgcolor", 0);
    text.Draw(&canvas.dc);
    text.Set("width", 30);
    text.Set("height", 10);
    text.Draw(&canvas.dc);
    EXPECT_EQ(kPicture.cx * kPicture.cy, canvas.Count(kWhite));
    text.Set("fontHeight", 10);
    text.Draw(&canvas.dc);
    EXPECT_LT(canvas.Count(kWhite), kPicture.cx * kPicture.cy);
}

TEST(TextDrawing, LeavesTheDeviceContextAsItWas)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    const Fitted fitted = Fit(canvas.dc, CSize(100, 40), "text", {{"bgcolor", "255"}, {"shadowOffset", "2"}});
    canvas.dc.SetTextColor(kGreen);
    canvas.dc.SetBkColor(kRed);
    canvas.dc.SetBkMode(OPAQUE);
    canvas.dc.SetTextAlign(TA_RIGHT | TA_BOTTOM | TA_UPDATECP);
    canvas.dc.MoveTo(11, 12);
    const HGDIOBJ font = ::GetCurrentObject(canvas.dc, OBJ_FONT);
    fitted.root->Draw(&canvas.dc);
    EXPECT_EQ(kGreen, canvas.dc.GetTextColor());
    EXPECT_EQ(kRed, canvas.dc.GetBkColor());
    EXPECT_EQ(OPAQUE, canvas.dc.GetBkMode());
    EXPECT_EQ(static_cast<UINT>(TA_RIGHT | TA_BOTTOM | TA_UPDATECP), canvas.dc.GetTextAlign());
    EXPECT_EQ(CPoint(11, 12), canvas.dc.GetCurrentPosition());
    EXPECT_EQ(font, ::GetCurrentObject(canvas.dc, OBJ_FONT));
    ExpectInkWithin(canvas, (BoxOf(*fitted.text) + CSize(2, 2)) | BoxOf(*fitted.text));
}

TEST(TextDrawing, ChildrenAreDrawnInOrder)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    auto* below = new Text("", nullptr);
    auto* above = new Text("", nullptr);
    for (Text* text : {below, above})
    {
        text->Set("width", 20);
        text->Set("height", 20);
        text->Set("fontHeight", 10);
    }
    below->Set("bgcolor", static_cast<int>(kRed));
    above->Set("bgcolor", static_cast<int>(kGreen));
    above->Set("x", 10);
    TextLayout::Item boxes;
    boxes.Add(below);
    boxes.Add(above);
    boxes.Draw(&canvas.dc);
    EXPECT_EQ(200, canvas.Count(kRed));
    EXPECT_EQ(400, canvas.Count(kGreen));
}

TEST(TextDrawing, LeavesNoDrawingObjectsBehind)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    CDC empty;
    const auto useAll = [&](int index)
    {
        const std::string text = "text " + std::to_string(index) + "\nwith two lines";
        const Fitted fitted = Fit(canvas.dc, CSize(20 + index % 100, 40), text.c_str(), {{"bgcolor", "255"}});
        fitted.root->Draw(&canvas.dc);
        CSize size;
        Text::GetTextSize(&canvas.dc, "text", nullptr, 0, size);
        Fit(empty, CSize(20, 20), "text");
    };
    useAll(0);
    const DWORD before = CountGdiObjects();
    for (int i = 0; i < 300; ++i)
    {
        useAll(i);
    }
    EXPECT_EQ(before, CountGdiObjects());
}

TEST(TextDrawing, GoesIntoMetafiles)
{
    Canvas canvas(kPicture.cx, kPicture.cy);
    const Fitted fitted = Fit(canvas.dc, CSize(100, 40), "HI");
    CDC recording;
    recording.Attach(::CreateEnhMetaFile(canvas.dc, nullptr, nullptr, nullptr));
    fitted.root->Draw(&recording);
    const HENHMETAFILE metafile = ::CloseEnhMetaFile(recording.Detach());
    EXPECT_GT(::GetEnhMetaFileBits(metafile, 0, nullptr), 300U);
    ::DeleteEnhMetaFile(metafile);
}
