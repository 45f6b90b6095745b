#include "framework/app/core/ProfileBinary.h"

#include <gtest/gtest.h>

using Bytes = std::vector<std::uint8_t>;

TEST(ProfileBinary, WritesTwoLettersAByteLowerHalfFirst)
{
    EXPECT_EQ(vorn::EncodeProfileBinary({}), "");
    EXPECT_EQ(vorn::EncodeProfileBinary(Bytes{0x00}), "AA");
    EXPECT_EQ(vorn::EncodeProfileBinary(Bytes{0x01, 0x10, 0xFF}), "BAABPP");
}

TEST(ProfileBinary, ReadsBackEveryByte)
{
    Bytes all(256);
    for (std::size_t i = 0; i < all.size(); ++i)
    {
        all[i] = static_cast<std::uint8_t>(i);
    }
    Bytes read;
    EXPECT_TRUE(vorn::DecodeProfileBinary(vorn::EncodeProfileBinary(all), read));
    EXPECT_EQ(read, all);
}

TEST(ProfileBinary, RefusesWhatItDidNotWrite)
{
    for (const char* text : {"A", "AAA", "AQ", "QA", "aa", "A ", "@A", "\xC1\xC1"})
    {
        Bytes bytes = {1};
        EXPECT_FALSE(vorn::DecodeProfileBinary(text, bytes)) << text;
        EXPECT_TRUE(bytes.empty());
    }
}
