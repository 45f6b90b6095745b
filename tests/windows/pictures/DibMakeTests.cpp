#include "tests/support/ScratchFolder.h"
#include "tests/windows/pictures/DibText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace
{
using namespace vorn::test;

/// Global memory with these bytes.
class GlobalBytes
{
public:
    explicit GlobalBytes(const std::vector<unsigned char>& bytes) : m_memory(GlobalAlloc(GMEM_MOVEABLE, bytes.size()))
    {
        std::memcpy(GlobalLock(m_memory), bytes.data(), bytes.size());
        GlobalUnlock(m_memory);
    }
    ~GlobalBytes()
    {
        GlobalFree(m_memory);
    }
    GlobalBytes(const GlobalBytes&) = delete;
    GlobalBytes& operator=(const GlobalBytes&) = delete;

    HBITMAP Handle() const
    {
        return static_cast<HBITMAP>(m_memory);
    }

private:
    HGLOBAL m_memory;
};

/// A packed bitmap: 2 x 1 of 8 bits with two entries, black and red, and the pixels 1, 0.
std::vector<unsigned char> PackedTwoEntries()
{
    BITMAPINFOHEADER header{sizeof(BITMAPINFOHEADER), 2, 1, 1, 8, BI_RGB, 0, 0, 0, 2, 0};
    std::vector<unsigned char> bytes(sizeof header);
    std::memcpy(bytes.data(), &header, sizeof header);
    bytes.insert(bytes.end(), {0, 0, 0, 0, 0, 0, 255, 0, 1, 0, 0, 0});
    return bytes;
}

/// The bits' place in the block.
std::ptrdiff_t BitsOffset(const DIB& image)
{
    return image.Bits() - reinterpret_cast<const unsigned char*>(image.BitmapInfo());
}

TEST(DibMake, StartsWithoutAnImage)
{
    DIB image;
    EXPECT_TRUE(IsWithoutImage(image));
    EXPECT_EQ(image.Usage(), 0);
    EXPECT_EQ(image.ImageNumber(), 0);
    EXPECT_EQ(image.GetPixel(0, 0), 0U);
    EXPECT_EQ(ColorOf(image, 0, 0), 0U);
    image.PutPixel(0, 0, 1);
    EXPECT_TRUE(IsWithoutImage(image));
}

TEST(DibMake, HeaderOfANewImage)
{
    const DIB image(5, -3, 8, 0, 0, nullptr, nullptr);
    const BITMAPINFOHEADER& header = image.BitmapInfo()->bmiHeader;
    EXPECT_EQ(header.biSize, 40U);
    EXPECT_EQ(header.biWidth, 5);
    EXPECT_EQ(header.biHeight, -3);
    EXPECT_EQ(header.biPlanes, 1);
    EXPECT_EQ(header.biBitCount, 8);
    EXPECT_EQ(header.biCompression, 0U);
    EXPECT_EQ(header.biSizeImage, 0U);
    EXPECT_EQ(header.biXPelsPerMeter, 0);
    EXPECT_EQ(header.biYPelsPerMeter, 0);
    EXPECT_EQ(header.biClrUsed, 0U);
    EXPECT_EQ(header.biClrImportant, 0U);
    EXPECT_EQ(image.Width(), 5);
    EXPECT_EQ(image.Height(), 3);
    EXPECT_EQ(image.Depth(), 8);
    EXPECT_EQ(image.DIBSect(), nullptr);
    EXPECT_EQ(BitsOffset(image), 40 + 1024);
}

TEST(DibMake, RowsAreAMultipleOfFourBytes)
{
    EXPECT_EQ(DIB(1, 1, 1, 0, 0, nullptr, nullptr).BytesPerScan(), 4);
    EXPECT_EQ(DIB(3, 1, 24, 0, 0, nullptr, nullptr).BytesPerScan(), 12);
    EXPECT_EQ(DIB(4, 1, 24, 0, 0, nullptr, nullptr).BytesPerScan(), 12);
    EXPECT_EQ(DIB(5, 1, 8, 0, 0, nullptr, nullptr).BytesPerScan(), 8);
    EXPECT_EQ(DIB(33, 1, 1, 0, 0, nullptr, nullptr).BytesPerScan(), 8);
    EXPECT_EQ(DIB(3, 1, 16, 0, 0, nullptr, nullptr).BytesPerScan(), 8);
    EXPECT_EQ(DIB(3, 1, 32, 0, 0, nullptr, nullptr).BytesPerScan(), 12);
}

TEST(DibMake, TableByDepthAndUsage)
{
    EXPECT_EQ(BitsOffset(DIB(1, 1, 1, 0, 0, nullptr, nullptr)), 40 + 2 * 4);
    EXPECT_EQ(BitsOffset(DIB(1, 1, 4, 0, 0, nullptr, nullptr)), 40 + 16 * 4);
    EXPECT_EQ(BitsOffset(DIB(1, 1, 4, 1, 0, nullptr, nullptr)), 40 + 16 * 2);
    EXPECT_EQ(BitsOffset(DIB(1, 1, 8, 1, 0, nullptr, nullptr)), 40 + 256 * 2);
    EXPECT_EQ(BitsOffset(DIB(1, 1, 16, 0, 0, nullptr, nullptr)), 40 + 65536 * 4);
    EXPECT_EQ(BitsOffset(DIB(1, 1, 24, 0, 0, nullptr, nullptr)), 40);
    EXPECT_EQ(BitsOffset(DIB(1, 1, 24, 1, 0, nullptr, nullptr)), 40);
    EXPECT_EQ(BitsOffset(DIB(1, 1, 32, 0, 0, nullptr, nullptr)), 40);
}

TEST(DibMake, PaletteIndicesCountUp)
{
    const DIB image(1, 1, 8, 1, 0, nullptr, nullptr);
    EXPECT_EQ(image.Usage(), 1);
    WORD indices[256];
    std::memcpy(indices, image.BitmapInfo()->bmiColors, sizeof indices);
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(indices[i], i);
    EXPECT_EQ(ColorOf(image, 0, 0), 0U) << "an index is no colour";
}

TEST(DibMake, CopiesTheGivenPixelsElseZeros)
{
    const unsigned char pixels[] = {1, 2, 3, 4, 5, 6, 7, 8};
    const DIB image(3, 2, 8, 0, 0, nullptr, pixels);
    EXPECT_EQ(std::memcmp(image.Bits(), pixels, sizeof pixels), 0);
    EXPECT_EQ(Values(image), "567|123");
    EXPECT_EQ(Values(DIB(3, -2, 8, 0, 0, nullptr, pixels)), "123|567");
    EXPECT_EQ(Values(DIB(3, 2, 8, 0, 0, nullptr, nullptr)), "000|000");
}

TEST(DibMake, NoImageOfImpossibleSizes)
{
    EXPECT_TRUE(IsWithoutImage(DIB(0, 1, 8, 0, 0, nullptr, nullptr)));
    EXPECT_TRUE(IsWithoutImage(DIB(-1, 1, 8, 0, 0, nullptr, nullptr)));
    EXPECT_TRUE(IsWithoutImage(DIB(1, std::numeric_limits<int>::min(), 8, 0, 0, nullptr, nullptr)));
    EXPECT_TRUE(IsWithoutImage(DIB(32768, 16385, 16, 0, 0, nullptr, nullptr))) << "above 1 GiB";
    EXPECT_TRUE(IsWithoutImage(DIB(std::numeric_limits<int>::max(), 1, 32, 0, 0, nullptr, nullptr)));
    for (int depth = -1; depth <= 64; ++depth)
    {
        const bool isDepth = depth == 1 || depth == 4 || depth == 8 || depth == 16 || depth == 24 || depth == 32;
        EXPECT_EQ(IsWithoutImage(DIB(1, 1, depth, 0, 0, nullptr, nullptr)), !isDepth) << depth;
    }
    EXPECT_TRUE(IsWithoutImage(DIB(0, 1, 24, 0, 1, nullptr, nullptr)));
}

TEST(DibMake, AnImageWithoutRowsHarmsNothing)
{
    const ScratchFolder folder;
    for (const int depth : {1, 8, 24, 32})
    {
        DIB none(5, 0, depth, 0, 0, nullptr, nullptr);
        EXPECT_EQ(none.Height(), 0);
        EXPECT_EQ(none.GetPixel(0, 0), 0U);
        none.PutPixel(0, 0, 1);
        DIB other = FromLetters("RG|BY");
        other.Blt(0, 0, &none);
        none.Blt(0, 0, &other);
        EXPECT_EQ(Colors(other), "RG|BY");
        EXPECT_FALSE(DIB().HQResize(2, 2, &none));
        EXPECT_FALSE(DIB().LQResize(2, 2, &none));
        EXPECT_FALSE(none.WritePNG(folder.File("none.png").c_str()));
        EXPECT_FALSE(none.WriteJPEG(folder.File("none.jpg").c_str(), 75, 0, nullptr));
        EXPECT_EQ(none.BuildCursor(nullptr, 4, 4, 0, 0, 0, 0, 0), nullptr);
        const std::unique_ptr<DIB> turned(none.Rotate(30, 1, 0));
        const std::unique_ptr<Image> mask(none.BuildMask(0, 0, 0));
        none.To24Bit(&none);
        EXPECT_EQ(none.Height(), 0);
        EXPECT_EQ(DIB(none).Height(), 0);
    }
}

TEST(DibMake, SectionHasThePixels)
{
    const unsigned char pixels[] = {10, 20, 30, 0, 40, 50, 60, 0};
    const DIB image(1, 2, 24, 0, 1, nullptr, pixels);
    ASSERT_NE(image.DIBSect(), nullptr);
    DIBSECTION facts{};
    ASSERT_EQ(GetObject(image.DIBSect(), sizeof facts, &facts), static_cast<int>(sizeof facts));
    EXPECT_EQ(facts.dsBm.bmBits, image.Bits());
    EXPECT_EQ(facts.dsBm.bmBitsPixel, 24);
    EXPECT_EQ(ColorOf(image, 0, 1), 0x1E140AU);
    EXPECT_EQ(ColorOf(image, 0, 0), 0x3C3228U);
    EXPECT_EQ(Colors(DIB(2, 2, 24, 0, 1, nullptr, nullptr)), "##|##");
}

TEST(DibMake, SectionOfEveryDepthAndBothUsages)
{
    const HDC dc = CreateCompatibleDC(nullptr);
    for (const int depth : {1, 4, 8, 16, 24, 32})
        for (const int usage : {0, 1})
        {
            DIB image(7, -3, depth, usage, 1, dc, nullptr);
            ASSERT_NE(image.DIBSect(), nullptr) << depth << ' ' << usage;
            EXPECT_EQ(image.Usage(), usage);
            image.PutPixel(6, 2, 1);
            EXPECT_EQ(image.GetPixel(6, 2), 1U);
            EXPECT_EQ(image.GetPixel(5, 2), 0U);
        }
    DeleteDC(dc);
}

TEST(DibMake, SectionOfPaletteIndicesNeedsADeviceContext)
{
    const DIB image(2, 2, 8, 1, 1, nullptr, nullptr);
    if (image.DIBSect() == nullptr)
        EXPECT_TRUE(IsWithoutImage(image));
    else
        EXPECT_EQ(image.Width(), 2);
}

TEST(DibMake, CopyHasABlockOfItsOwn)
{
    DIB image = FromLetters("RG|B.");
    image.ImageNumber(3);
    DIB copy(image);
    EXPECT_NE(copy.BitmapInfo(), image.BitmapInfo());
    EXPECT_EQ(Colors(copy), "RG|B.");
    EXPECT_EQ(copy.ImageNumber(), 3);
    EXPECT_EQ(copy.BytesPerScan(), 8);
    copy.PutPixel(0, 0, RGB(0, 0, 0));
    EXPECT_EQ(Colors(image), "RG|B.");
}

TEST(DibMake, CopyOfASectionIsInTheBlock)
{
    const DIB image = [&]
    {
        DIB made(2, -2, 24, 0, 1, nullptr, nullptr);
        made.PutPixel(1, 0, RGB(255, 0, 0));
        return DIB(made);
    }();
    EXPECT_EQ(image.DIBSect(), nullptr);
    EXPECT_EQ(Colors(image), "#R|##");
    EXPECT_EQ(BitsOffset(image), 40);
}

TEST(DibMake, CopyKeepsAnIndexTableAndItsUsage)
{
    DIB image(2, 1, 4, 1, 0, nullptr, nullptr);
    image.PutPixel(1, 0, 9);
    DIB copy;
    image.ImageNumber(7);
    copy = image;
    EXPECT_EQ(copy.ImageNumber(), 7);
    EXPECT_EQ(copy.Usage(), 1);
    EXPECT_EQ(BitsOffset(copy), 40 + 32);
    EXPECT_EQ(Values(copy), "09");
}

TEST(DibMake, AssignmentOfItselfAndOfNoImage)
{
    DIB image = FromLetters("RG|B.");
    const DIB& same = image;
    image = same;
    EXPECT_EQ(Colors(image), "RG|B.");
    image = DIB();
    EXPECT_TRUE(IsWithoutImage(image));
    EXPECT_TRUE(IsWithoutImage(DIB(image)));
}

TEST(DibMake, PackedBitmapIsCopiedOutOfGlobalMemory)
{
    const GlobalBytes memory(PackedTwoEntries());
    const DIB image(memory.Handle());
    EXPECT_EQ(Values(image), "10");
    EXPECT_EQ(Colors(image), "R#");
    EXPECT_EQ(BitsOffset(image), 40 + 8) << "behind the entries that the header counts";
    EXPECT_EQ(GlobalFlags(memory.Handle()) & GMEM_LOCKCOUNT, 0U) << "unlocked again";
}

TEST(DibMake, PackedBitmapOf32BitsHasItsRowsBehindTheMasks)
{
    const BITMAPINFOHEADER header{sizeof(BITMAPINFOHEADER), 2, 1, 1, 32, BI_BITFIELDS, 0, 0, 0, 0, 0};
    std::vector<unsigned char> bytes(sizeof header);
    std::memcpy(bytes.data(), &header, sizeof header);
    bytes.insert(bytes.end(), {0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0}); // masks of red, green and blue
    bytes.insert(bytes.end(), {0, 0, 255, 0, 255, 0, 0, 0});               // a red and a blue pixel
    const GlobalBytes memory(bytes);
    const DIB image(memory.Handle());
    EXPECT_EQ(Colors(image), "RB");
    EXPECT_EQ(BitsOffset(image), 40 + 12);
}

TEST(DibMake, PackedBitmapThatIsCutOffGivesNone)
{
    const std::vector<unsigned char> whole = PackedTwoEntries();
    EXPECT_TRUE(IsWithoutImage(DIB(static_cast<HBITMAP>(nullptr))));
    for (const std::size_t size : {1, 39, 40, 44, 47, 48})
    {
        const GlobalBytes memory(std::vector<unsigned char>(whole.begin(), whole.begin() + std::ptrdiff_t(size)));
        // Blocks of memory may be a little larger than was asked for.
        if (GlobalSize(memory.Handle()) < whole.size())
        {
            EXPECT_TRUE(IsWithoutImage(DIB(memory.Handle()))) << size;
        }
    }
}

TEST(DibMake, UsageSaysWhatTheTableIsTakenFor)
{
    DIB image(1, 1, 8, 0, 0, nullptr, nullptr);
    SetEntry(image, 0, 0x112233);
    EXPECT_EQ(ColorOf(image, 0, 0), 0x112233U);
    image.Usage(1);
    EXPECT_EQ(image.Usage(), 1);
    EXPECT_EQ(ColorOf(image, 0, 0), 0U);
    image.Usage(0);
    EXPECT_EQ(ColorOf(image, 0, 0), 0x112233U);
}

TEST(DibMake, IsAnImageOfTheFamily)
{
    const std::unique_ptr<Image> image = std::make_unique<DIB>(2, 1, 24, 0, 0, nullptr, nullptr);
    const std::unique_ptr<Image> mask(image->BuildMask(0, 0, 0));
    const auto* bits = dynamic_cast<const DIB*>(mask.get());
    ASSERT_NE(bits, nullptr);
    EXPECT_EQ(Values(*bits), "11");
    Image plain;
    const Image copy(plain);
    EXPECT_EQ(Image(copy).BuildMask(1, 2, 3), nullptr);
}
} // namespace
