#include "files/core/ImageKind.h"
#include "tests/support/PictureBytes.h"

#include <gtest/gtest.h>

namespace
{
using vorn::ImageKind;
using vorn::KindOfImage;
using vorn::test::Unsigned;

TEST(ImageKind, ByTheFirstBytes)
{
    EXPECT_EQ(KindOfImage(Unsigned("BM......")), ImageKind::Bmp);
    EXPECT_EQ(KindOfImage(Unsigned("\x0Axxxxxxx")), ImageKind::Pcx);
    EXPECT_EQ(KindOfImage(Unsigned("GIF87a..")), ImageKind::Gif);
    EXPECT_EQ(KindOfImage(Unsigned("GIF89a..")), ImageKind::Gif);
    EXPECT_EQ(KindOfImage(Unsigned("\x89PNG....")), ImageKind::Png);
    EXPECT_EQ(KindOfImage(Unsigned("\xFF\xD8......")), ImageKind::Jpeg);
}

TEST(ImageKind, ShortFilesByWhatTheyHave)
{
    EXPECT_EQ(KindOfImage(Unsigned("BM")), ImageKind::Bmp);
    EXPECT_EQ(KindOfImage(Unsigned("\x0A")), ImageKind::Pcx);
    EXPECT_EQ(KindOfImage(Unsigned("GIF89")), ImageKind::Unknown);
    EXPECT_EQ(KindOfImage(Unsigned("\x89PN")), ImageKind::Unknown);
    EXPECT_EQ(KindOfImage(Unsigned("\xFF")), ImageKind::Unknown);
    EXPECT_EQ(KindOfImage({}), ImageKind::Unknown);
}

TEST(ImageKind, NearMisses)
{
    for (const char* start :
         {"BA......", "bm......", "GIF88a..", "gif89a..", "\x89pNG....", "\x89PNg....", "\xFF\xD9......", "xBM....."})
        EXPECT_EQ(KindOfImage(Unsigned(start)), ImageKind::Unknown) << start;
}
} // namespace
