#include "files/core/PngPlan.h"
#include "files/core/PngStream.h"
#include "tests/support/AllPngRows.h"
#include "tests/support/MadePicture.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include <zlib.h>

namespace
{
using vorn::ImageView;
using vorn::kPngPiece;
using vorn::PackedImage;
using vorn::PngStream;
using vorn::StreamPng;
using vorn::test::Areas;
using vorn::test::Made;
using vorn::test::Noise;
using Bytes = std::vector<unsigned char>;

constexpr std::size_t kNeverAtOnce = 0;

/// All pieces, looked at on the way.
Bytes AllOf(PngStream& stream)
{
    Bytes all;
    for (auto piece = stream.Next(); !piece.empty(); piece = stream.Next())
    {
        EXPECT_EQ(all.size() % kPngPiece, 0u) << "only the last piece is short";
        EXPECT_LE(piece.size(), kPngPiece);
        all.insert(all.end(), piece.begin(), piece.end());
    }
    EXPECT_TRUE(stream.IsComplete());
    return all;
}

Bytes Compressed(const PackedImage& image, std::size_t mostAtOnce)
{
    const ImageView view = image.View();
    const auto stream = StreamPng(view, false, mostAtOnce);
    return stream != nullptr ? AllOf(*stream) : Bytes();
}

/// What zlib makes of it: the bytes that are wanted, and not one more.
Bytes Inflated(const Bytes& compressed, std::size_t wanted)
{
    Bytes bytes(wanted + 1);
    auto size = static_cast<uLongf>(bytes.size());
    EXPECT_EQ(uncompress(bytes.data(), &size, compressed.data(), static_cast<uLong>(compressed.size())), Z_OK);
    bytes.resize(size);
    return bytes;
}

Bytes RowsOf(const ImageView& image)
{
    return vorn::test::AllPngRows(image, vorn::PngPlanOf(image, false, vorn::PngCompressor()).filter);
}

TEST(PngStream, HoldsTheRowsAtOnceAndOneByOne)
{
    for (const int depth : {1, 4, 8, 16, 24, 32})
        for (const auto& pixel : {Noise, Areas})
            for (const auto& [width, height] : {std::pair{1, 1}, {7, 300}, {400, 3}, {211, 190}})
            {
                const PackedImage image = Made(width, height, depth, pixel);
                const Bytes rows = RowsOf(image.View());
                for (const std::size_t most : {vorn::kPngMostAtOnce, kNeverAtOnce})
                    ASSERT_EQ(Inflated(Compressed(image, most), rows.size()), rows)
                        << width << " x " << height << ", " << depth << ", " << most;
            }
}

TEST(PngStream, IsCompleteWithItsLastPiece)
{
    const PackedImage image = Made(300, 200, 24, Noise);
    const ImageView view = image.View();
    for (const std::size_t most : {vorn::kPngMostAtOnce, kNeverAtOnce})
    {
        const auto stream = StreamPng(view, false, most);
        ASSERT_NE(stream, nullptr);
        for (int piece = 0; piece < 3; ++piece)
        {
            EXPECT_FALSE(stream->IsComplete());
            ASSERT_EQ(stream->Next().size(), kPngPiece);
        }
        AllOf(*stream);
        EXPECT_TRUE(stream->Next().empty());
        EXPECT_TRUE(stream->IsComplete());
    }
}

TEST(PngStream, OneByteOfRowsMoreThanTheLimitGoOneByOne)
{
    const PackedImage image = Made(200, 100, 24, Areas);
    constexpr std::size_t kRows = (200 * 3 + 1) * 100;
    const Bytes atOnce = Compressed(image, vorn::kPngMostAtOnce);
    const Bytes oneByOne = Compressed(image, kNeverAtOnce);
    EXPECT_LT(atOnce.size(), oneByOne.size());
    EXPECT_EQ(Compressed(image, kRows), atOnce);
    EXPECT_EQ(Compressed(image, kRows - 1), oneByOne);
}
} // namespace
