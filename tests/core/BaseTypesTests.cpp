#include "framework/core/BaseTypes.h"

#include <gtest/gtest.h>

TEST(BaseTypes, HaveTheSystemsWidths)
{
    EXPECT_EQ(sizeof(BYTE), 1u);
    EXPECT_EQ(sizeof(WORD), 2u);
    EXPECT_EQ(sizeof(DWORD), 4u);
    EXPECT_EQ(sizeof(LONG), 4u);
    EXPECT_EQ(sizeof(POINT), 8u);
    EXPECT_EQ(sizeof(RECT), 16u);
    EXPECT_EQ(sizeof(RGBQUAD), 4u);
    EXPECT_EQ(sizeof(BITMAPINFOHEADER), 40u);
}
