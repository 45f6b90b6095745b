#include "files/core/GifFile.h"
#include "files/core/ImagePixels.h"
#include "tests/support/PictureBytes.h"

#include <gtest/gtest.h>

namespace
{
using vorn::ColorAt;
using vorn::PackedImage;
using vorn::Rgb;
using vorn::test::GifParts;
using vorn::test::PackCodes;
using vorn::test::PlainCodes;
using vorn::test::SubBlocks;
using vorn::test::Unsigned;
using vorn::test::WideCode;

const std::string kTable = std::string("\0\0\0\x11\x22\x33\x44\x55\x66\x77\x88\x99", 12);

PackedImage Decoded(const GifParts& parts, int index = 0)
{
    int transparent = 0;
    return vorn::DecodeGif(Unsigned(parts.Bytes()), index, transparent);
}

/// The index as a digit for each pixel, rows divided by a bar.
std::string Picture(const PackedImage& image)
{
    std::string text;
    const auto view = image.View();
    for (int y = 0; y < view.height; ++y)
    {
        text += y == 0 ? "" : "|";
        for (int x = 0; x < view.width; ++x)
            text += static_cast<char>('0' + vorn::PixelAt(view, x, y));
    }
    return text;
}

/// Pixels from their digits.
std::string Pixels(std::string digits)
{
    for (char& digit : digits)
        digit = static_cast<char>(digit - '0');
    return digits;
}

std::string Data(const std::string& digits, int codeSize = 2)
{
    return SubBlocks(PlainCodes(Pixels(digits), codeSize));
}

/// A picture of one row from codes as they come.
std::string RowOf(const std::vector<WideCode>& codes, int width, int codeSize = 2)
{
    return Picture(Decoded(GifParts(kTable).Image(width, 1, codeSize, SubBlocks(PackCodes(codes)))));
}

TEST(GifFile, DecodesAnImageOfItsOwnSize)
{
    const PackedImage image = Decoded(GifParts(kTable).Image(3, 2, 2, Data("012321")));
    ASSERT_FALSE(image.IsEmpty());
    const BITMAPINFOHEADER header = image.Header();
    EXPECT_EQ(header.biSize, 40u);
    EXPECT_EQ(header.biWidth, 3);
    EXPECT_EQ(header.biHeight, -2);
    EXPECT_EQ(header.biPlanes, 1);
    EXPECT_EQ(header.biBitCount, 8);
    EXPECT_EQ(image.BitsOffset(), 1064u);
    EXPECT_EQ(image.Block().size(), 1064u + 2 * 4);
    EXPECT_EQ(Picture(image), "012|321");
    EXPECT_EQ(ColorAt(image.View(), 2, 0), (Rgb{0x44, 0x55, 0x66}));
    EXPECT_EQ(image.View().table.size(), 256u);
    EXPECT_EQ(image.TableColor(4), (Rgb{0, 0, 0}));
}

TEST(GifFile, PaddingOfRowsIsZero)
{
    const PackedImage image = Decoded(GifParts(kTable).Image(3, 3, 2, Data("333333333")));
    for (int y = 0; y < 3; ++y)
        EXPECT_EQ(image.View().Row(y)[3], 0) << y;
}

TEST(GifFile, BothSignaturesAndNoOther)
{
    EXPECT_FALSE(Decoded(GifParts(kTable, "GIF87a").Image(1, 1, 2, Data("1"))).IsEmpty());
    EXPECT_TRUE(Decoded(GifParts(kTable, "GIF88a").Image(1, 1, 2, Data("1"))).IsEmpty());
    EXPECT_TRUE(Decoded(GifParts(kTable, "gif89a").Image(1, 1, 2, Data("1"))).IsEmpty());
}

TEST(GifFile, OwnTableGoesBeforeTheFiles)
{
    const std::string own("\1\2\3\4\5\6", 6);
    const GifParts parts = GifParts(kTable).Image(1, 1, 2, Data("1"), false, own).Image(1, 1, 2, Data("1"));
    EXPECT_EQ(ColorAt(Decoded(parts, 0).View(), 0, 0), (Rgb{4, 5, 6}));
    EXPECT_EQ(ColorAt(Decoded(parts, 1).View(), 0, 0), (Rgb{0x11, 0x22, 0x33}));
    const PackedImage none = Decoded(GifParts().Image(1, 1, 2, Data("1")));
    EXPECT_EQ(Picture(none), "1") << "without any table";
    EXPECT_EQ(ColorAt(none.View(), 0, 0), (Rgb{0, 0, 0}));
}

TEST(GifFile, TablesOfEachSize)
{
    for (int entries = 2; entries <= 256; entries *= 2)
    {
        std::string table;
        for (int i = 0; i < entries * 3; ++i)
            table += static_cast<char>(i * 7 + 1);
        const auto last = [&](int back)
        {
            return static_cast<BYTE>((entries * 3 - back) * 7 + 1);
        };
        for (const GifParts& parts :
             {GifParts(table).Image(2, 1, 2, Data("12")), GifParts(kTable).Image(2, 1, 2, Data("12"), false, table)})
        {
            const PackedImage image = Decoded(parts);
            EXPECT_EQ(Picture(image), "12") << entries << ": what is behind the table begins there";
            EXPECT_EQ(image.TableColor(entries - 1), (Rgb{last(3), last(2), last(1)})) << entries;
            EXPECT_EQ(image.TableColor(entries), (Rgb{0, 0, 0})) << entries;
        }
    }
}

TEST(GifFile, InterlacedRowsComeInDisplayOrder)
{
    // Rows as the file has them, told by their numbers: every eighth, the fourths between, the seconds, the odd ones.
    for (const std::string order : {"0", "01", "021", "0213", "04213", "042135", "0426135", "04261357"})
    {
        const int height = static_cast<int>(order.size());
        const std::string picture = Picture(Decoded(GifParts(kTable).Image(1, height, 3, Data(order, 3), true)));
        EXPECT_EQ(picture, std::string("0|1|2|3|4|5|6|7").substr(0, order.size() * 2 - 1));
    }
}

TEST(GifFile, CutInterlacedDataGiveTheirRows)
{
    const std::string data = SubBlocks(PlainCodes(Pixels("1122"), 2, false));
    EXPECT_EQ(Picture(Decoded(GifParts(kTable).Image(2, 8, 2, data, true))), "11|00|00|00|22|00|00|00");
}

TEST(GifFile, ImagesAreCountedWithoutExtensions)
{
    const GifParts parts = GifParts(kTable)
                               .Control(0, 0)
                               .Image(1, 1, 2, Data("1"))
                               .Extension(0xFE, SubBlocks("a, comment; of !"))
                               .Image(2, 1, 2, Data("23"))
                               .Extension(0x01, SubBlocks("text"))
                               .Image(1, 2, 2, Data("32"));
    EXPECT_EQ(Picture(Decoded(parts, 0)), "1");
    EXPECT_EQ(Picture(Decoded(parts, 1)), "23");
    EXPECT_EQ(Picture(Decoded(parts, 2)), "3|2");
    EXPECT_TRUE(Decoded(parts, 3).IsEmpty());
    EXPECT_TRUE(Decoded(parts, -1).IsEmpty());
}

TEST(GifFile, ExtensionsOfSeveralSubBlocksArePassedOver)
{
    const std::string image = GifParts().Image(1, 1, 2, Data("2")).Bytes().substr(13);
    const GifParts parts = GifParts(kTable).Extension(0xFE, SubBlocks("a block, then; " + image, 7));
    EXPECT_EQ(Picture(Decoded(GifParts(parts).Image(1, 1, 2, Data("1")))), "1") << "no image, no end in there";
    const std::string control("\4\1\0\0\3\4\1\0\0\7\0", 11);
    const GifParts two = GifParts(kTable).Extension(0xF9, control).Image(1, 1, 2, Data("1"));
    int transparent = 0;
    vorn::DecodeGif(Unsigned(two.Bytes()), 0, transparent);
    EXPECT_EQ(transparent, 3) << "the first sub-block says it";
}

TEST(GifFile, NothingIsFoundBehindTheEndMark)
{
    EXPECT_TRUE(Decoded(GifParts(kTable).Raw(";").Image(1, 1, 2, Data("1"))).IsEmpty());
}

TEST(GifFile, BytesThatBeginNoBlockArePassedOver)
{
    EXPECT_EQ(Picture(Decoded(GifParts(kTable).Raw(std::string(3, '\0')).Image(1, 1, 2, Data("1")))), "1");
}

int TransparentOf(const GifParts& parts, int index)
{
    int transparent = 99;
    vorn::DecodeGif(Unsigned(parts.Bytes()), index, transparent);
    return transparent;
}

TEST(GifFile, TransparentIsTheLastOneBeforeTheImage)
{
    const GifParts parts = GifParts(kTable)
                               .Image(1, 1, 2, Data("1"))
                               .Control(1, 200)
                               .Image(1, 1, 2, Data("1"))
                               .Control(0, 7)
                               .Image(1, 1, 2, Data("1"))
                               .Control(0x1F, 3)
                               .Control(1, 0)
                               .Image(1, 1, 2, Data("1"))
                               .Control(1, 9);
    EXPECT_EQ(TransparentOf(parts, 0), -1);
    EXPECT_EQ(TransparentOf(parts, 1), 200);
    EXPECT_EQ(TransparentOf(parts, 2), 200) << "not taken back";
    EXPECT_EQ(TransparentOf(parts, 3), 0);
    EXPECT_EQ(TransparentOf(parts, 4), -1) << "failed";
    EXPECT_EQ(TransparentOf(parts, -1), -1);
    EXPECT_EQ(TransparentOf(GifParts(kTable).Control(1, 5).Image(1, 1, 12, Data("1")), 0), -1);
}

TEST(GifFile, ShortControlsSayNothing)
{
    const GifParts parts = GifParts(kTable).Extension(0xF9, SubBlocks("\1\1\1")).Extension(0xF9, std::string(1, '\0'));
    EXPECT_EQ(TransparentOf(GifParts(parts).Image(1, 1, 2, Data("1")), 0), -1);
    EXPECT_EQ(TransparentOf(GifParts(parts).Extension(0xF9, SubBlocks("\1\2\3\4\5")).Image(1, 1, 2, Data("1")), 0), 4);
}

TEST(GifFile, CodesCrossSubBlocksOfAnySize)
{
    const std::string digits = "0123321001233210012332100123";
    const std::string codes = PlainCodes(Pixels(digits), 2);
    for (std::size_t size = 1; size <= codes.size(); ++size)
        EXPECT_EQ(Picture(Decoded(GifParts(kTable).Image(28, 1, 2, SubBlocks(codes, size)))), digits) << size;
}

TEST(GifFile, TheCodeOnePastTheTableRepeatsTheFirstPixel)
{
    // clear, 1, then 6 = "11", 7 = "111", at 4 bits 8 = "1111", end.
    EXPECT_EQ(RowOf({{4, 3}, {1, 3}, {6, 3}, {7, 3}, {8, 4}, {5, 4}}, 10), "1111111111");
    // clear, 1, 2, 6 = "12", 8 = "121" (made by itself), 2.
    EXPECT_EQ(RowOf({{4, 3}, {1, 3}, {2, 3}, {6, 3}, {8, 4}, {2, 4}, {5, 4}}, 8), "12121212");
}

TEST(GifFile, LongStringsRepeatThemselves)
{
    // Each code is one past the table: strings of 1, 2, 3, ... pixels, 40 of them.
    std::vector<WideCode> codes{{4, 3}, {3, 3}};
    std::string digits = "3";
    int bits = 3;
    for (unsigned next = 6; next < 45; ++next)
    {
        codes.push_back({next, bits});
        digits += std::string(next - 4, '3');
        bits += next + 1 == 1U << bits ? 1 : 0;
    }
    EXPECT_EQ(RowOf(codes, static_cast<int>(digits.size())), digits);
}

TEST(GifFile, AFirstClearMayBeMissing)
{
    EXPECT_EQ(RowOf({{1, 3}, {2, 3}, {6, 3}, {5, 4}}, 4), "1212");
}

TEST(GifFile, ClearBeginsAnew)
{
    EXPECT_EQ(RowOf({{4, 3}, {1, 3}, {6, 3}, {4, 3}, {4, 3}, {2, 3}, {6, 3}, {5, 3}}, 6), "111222");
}

TEST(GifFile, AnEndCodeMayComeEarlyOrNotAtAll)
{
    EXPECT_EQ(RowOf({{4, 3}, {1, 3}, {5, 3}, {2, 3}}, 4), "1000");
    EXPECT_EQ(RowOf({{4, 3}, {1, 3}, {2, 3}}, 2), "12");
    const GifParts parts = GifParts(kTable).Image(4, 4, 2, Data("1")).Image(2, 1, 2, Data("23"));
    EXPECT_EQ(Picture(Decoded(parts, 1)), "23") << "the next image is not lost";
}

TEST(GifFile, CodesBehindTheLastRowAreDrained)
{
    const GifParts parts = GifParts(kTable).Image(2, 1, 2, Data("112233112233")).Image(2, 1, 2, Data("23"));
    EXPECT_EQ(Picture(Decoded(parts, 0)), "11");
    EXPECT_EQ(Picture(Decoded(parts, 1)), "23");
}

TEST(GifFile, AStringIsCutAtTheLastPixel)
{
    EXPECT_EQ(RowOf({{4, 3}, {1, 3}, {6, 3}, {7, 3}, {8, 4}}, 5), "11111");
}

TEST(GifFile, ACodeWithoutMeaningEndsTheData)
{
    EXPECT_EQ(RowOf({{4, 3}, {1, 3}, {7, 3}, {2, 3}}, 4), "1000");
    EXPECT_EQ(RowOf({{4, 3}, {6, 3}, {2, 3}}, 4), "0000") << "nothing to repeat";
}

TEST(GifFile, AFullTableStaysAsItIs)
{
    // Single pixels fill the table without a clear: entry n is made by the pixel after its first one.
    std::vector<WideCode> codes{{4, 3}};
    std::string digits;
    int bits = 3;
    unsigned next = 5; // one less: the first pixel makes no entry
    const auto put = [&](unsigned code, const std::string& meaning)
    {
        codes.push_back({code, bits});
        digits += meaning;
        next += next < 4096 ? 1 : 0;
        bits += bits < 12 && next == 1U << bits ? 1 : 0;
    };
    for (unsigned i = 0; i < 5000; ++i)
        put(i % 4, std::string(1, static_cast<char>('0' + i % 4)));
    ASSERT_EQ(bits, 12);
    put(4095, "12"); // the last entry: made by pixel 4090, begun by 4089
    put(6, "01");
    put(4, ""); // clear
    codes.push_back({3, 3});
    codes.push_back({6, 3});
    digits += "333";
    EXPECT_EQ(RowOf(codes, static_cast<int>(digits.size())), digits);
}

TEST(GifFile, CodeSizesFromOneToEleven)
{
    EXPECT_EQ(RowOf({{2, 2}, {1, 2}, {0, 2}, {1, 3}, {3, 3}}, 3, 1), "101");
    EXPECT_EQ(RowOf({{2048, 12}, {1, 12}, {2, 12}, {2050, 12}, {258, 12}, {2049, 12}}, 5, 11), "12122") << "8 bits";
    for (const int size : {0, 12, 13, 32, 255})
        EXPECT_TRUE(Decoded(GifParts(kTable).Image(2, 1, size, Data("12"))).IsEmpty()) << size;
}

TEST(GifFile, RefusesImpossibleSizes)
{
    EXPECT_TRUE(Decoded(GifParts(kTable).Image(0, 1, 2, Data("1"))).IsEmpty());
    EXPECT_TRUE(Decoded(GifParts(kTable).Image(1, 0, 2, Data("1"))).IsEmpty());
    EXPECT_TRUE(Decoded(GifParts(kTable).Image(65535, 65535, 2, Data("1"))).IsEmpty());
    EXPECT_TRUE(Decoded(GifParts(kTable).Image(65534, 8193, 2, Data("1"))).IsEmpty()) << "rows of 65,536 bytes";
}

TEST(GifFile, ACutFileGivesTheRowsSoFar)
{
    const std::string digits = "0123321001233210012332100123";
    const std::string bytes = GifParts(kTable).Image(7, 4, 2, SubBlocks(PlainCodes(Pixels(digits), 2), 3)).Bytes();
    const std::size_t data = 13 + 12 + 10 + 1;
    int transparent = 0;
    std::string before;
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        const PackedImage image = vorn::DecodeGif(Unsigned(bytes).first(size), 0, transparent);
        ASSERT_EQ(image.IsEmpty(), size < data) << size;
        ASSERT_EQ(transparent, -1);
        std::string picture = Picture(image);
        std::erase(picture, '|');
        const std::size_t known = picture.find_last_not_of('0') + 1;
        ASSERT_EQ(picture.substr(0, known), digits.substr(0, known)) << size;
        ASSERT_GE(known, before.find_last_not_of('0') + 1) << size;
        before = picture;
    }
    EXPECT_EQ(before, digits);
}
TEST(GifFile, ASubBlockThatIsCutGivesItsPixels)
{
    const std::string digits = "0123321001233210012332100123";
    const std::string codes = PlainCodes(Pixels(digits), 2);
    const std::string bytes = GifParts(kTable).Image(28, 1, 2, SubBlocks(codes)).Bytes();
    const std::size_t data = 13 + 12 + 10 + 2;
    int transparent = 0;
    for (std::size_t size = 1; size <= codes.size(); ++size)
    {
        // Each code has 3 bits; every third one is a clear.
        const std::size_t whole = size * 8 / 3;
        const std::size_t known = std::min(whole - (whole + 2) / 3, digits.size());
        const std::string picture = Picture(vorn::DecodeGif(Unsigned(bytes).first(data + size), 0, transparent));
        EXPECT_EQ(picture, digits.substr(0, known) + std::string(28 - known, '0')) << size;
    }
}
} // namespace
