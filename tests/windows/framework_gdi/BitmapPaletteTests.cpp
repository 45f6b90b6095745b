#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <array>

using namespace vorn::test;

TEST(Bitmap, KeepsSizeAndBits)
{
    const std::array<std::uint32_t, 4> pixels{1, 2, 3, 4};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 32, pixels.data()));
    BITMAP description{};
    EXPECT_NE(0, bitmap.GetBitmap(&description));
    EXPECT_EQ(2, description.bmWidth);
    EXPECT_EQ(2, description.bmHeight);
    EXPECT_EQ(32, description.bmBitsPixel);
    std::array<std::uint32_t, 4> read{};
    EXPECT_EQ(sizeof(read), bitmap.GetBitmapBits(sizeof(read), read.data()));
    EXPECT_EQ(pixels, read);
}

TEST(Bitmap, TakesNewBits)
{
    const std::array<std::uint32_t, 2> pixels{0x00FF0000, 0x000000FF};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 1, 1, 32, nullptr));
    EXPECT_EQ(sizeof(pixels), bitmap.SetBitmapBits(sizeof(pixels), pixels.data()));
    Canvas canvas(2, 1);
    CDC source;
    source.CreateCompatibleDC(nullptr);
    CBitmap* former = source.SelectObject(&bitmap);
    canvas.dc.BitBlt(0, 0, 2, 1, &source, 0, 0, SRCCOPY);
    source.SelectObject(former);
    EXPECT_EQ("RB\n", canvas.Picture());
}

TEST(Bitmap, CompatibleOnesFollowTheContext)
{
    Canvas canvas(3, 3);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&canvas.dc, 5, 4));
    BITMAP description{};
    bitmap.GetBitmap(&description);
    EXPECT_EQ(5, description.bmWidth);
    EXPECT_EQ(4, description.bmHeight);
    EXPECT_FALSE(CBitmap().CreateCompatibleBitmap(nullptr, 5, 4));
}

TEST(Bitmap, RemembersItsDimension)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 1, nullptr));
    EXPECT_EQ(CSize(0, 0), bitmap.SetBitmapDimension(30, 40));
    EXPECT_EQ(CSize(30, 40), bitmap.GetBitmapDimension());
}

TEST(Bitmap, LoadsFromTheResourceChain)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(2001U));
    BITMAP description{};
    bitmap.GetBitmap(&description);
    EXPECT_EQ(2, description.bmWidth);
    EXPECT_EQ(1, description.bmHeight);
    EXPECT_FALSE(CBitmap().LoadBitmap(2999U));
    EXPECT_FALSE(CBitmap().LoadBitmap("no such picture"));
}

TEST(Bitmap, LoadsWithButtonColoursMapped)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadMappedBitmap(2001U));
    EXPECT_FALSE(CBitmap().LoadMappedBitmap(2999U));
}

TEST(Bitmap, LoadsTheSystemsPictures)
{
    CBitmap bitmap;
    EXPECT_TRUE(bitmap.LoadOEMBitmap(32754)); // the system menu's close box
}

namespace
{
struct SmallPalette
{
    WORD version = 0x300;
    WORD count = 2;
    std::array<PALETTEENTRY, 2> entries{{{255, 0, 0, 0}, {0, 0, 255, 0}}};

    LOGPALETTE* Get()
    {
        return reinterpret_cast<LOGPALETTE*>(this);
    }
};
} // namespace

TEST(Palette, KeepsItsEntries)
{
    SmallPalette description;
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(description.Get()));
    EXPECT_EQ(2, palette.GetEntryCount());
    std::array<PALETTEENTRY, 2> entries{};
    EXPECT_EQ(2U, palette.GetPaletteEntries(0, 2, entries.data()));
    EXPECT_EQ(255, entries[1].peBlue);
    EXPECT_FALSE(CPalette().CreatePalette(nullptr));
    EXPECT_EQ(0, CPalette().GetEntryCount());
}

TEST(Palette, FindsTheNearestEntry)
{
    SmallPalette description;
    CPalette palette;
    palette.CreatePalette(description.Get());
    EXPECT_EQ(0U, palette.GetNearestPaletteIndex(RGB(200, 10, 10)));
    EXPECT_EQ(1U, palette.GetNearestPaletteIndex(RGB(10, 10, 200)));
}

TEST(Palette, ChangesEntriesAndSize)
{
    SmallPalette description;
    CPalette palette;
    palette.CreatePalette(description.Get());
    PALETTEENTRY green{0, 255, 0, 0};
    EXPECT_EQ(1U, palette.SetPaletteEntries(1, 1, &green));
    EXPECT_EQ(1U, palette.GetNearestPaletteIndex(kGreen));
    EXPECT_TRUE(palette.ResizePalette(16));
    EXPECT_EQ(16, palette.GetEntryCount());
}

TEST(Palette, IsSelectedAndRealized)
{
    SmallPalette description;
    CPalette palette;
    palette.CreatePalette(description.Get());
    Canvas canvas(1, 1);
    CPalette* former = canvas.dc.SelectPalette(&palette, FALSE);
    ASSERT_NE(nullptr, former);
    EXPECT_EQ(::GetStockObject(DEFAULT_PALETTE), former->GetSafeHandle());
    EXPECT_EQ(&palette, canvas.dc.GetCurrentPalette());
    canvas.dc.RealizePalette();
    EXPECT_EQ(&palette, canvas.dc.SelectPalette(former, FALSE));
    EXPECT_EQ(nullptr, canvas.dc.SelectPalette(nullptr, FALSE));
}

TEST(Palette, HalftonePaletteHasTheSystemsSize)
{
    CPalette palette;
    ASSERT_TRUE(palette.CreateHalftonePalette(nullptr));
    EXPECT_EQ(256, palette.GetEntryCount());
}
