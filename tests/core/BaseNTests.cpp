#include "frame/core/BaseN.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{

CString Encoded(const char* text, int count, int base)
{
    unsigned char bytes[64] = {};
    std::memcpy(bytes, text, std::strlen(text));
    return ToBaseN(bytes, count, base);
}

} // namespace

TEST(BaseN, ReadsNumbers)
{
    EXPECT_EQ(FromBaseN("10", 16), 16U);
    EXPECT_EQ(FromBaseN("z", 64), 35U);
    EXPECT_EQ(FromBaseN("Z", 64), 61U);
    EXPECT_EQ(FromBaseN("10", 1), 0U);
    EXPECT_EQ(FromBaseN("10", 65), 0U);
    EXPECT_EQ(FromBaseN(nullptr, 10), 0U);
}

TEST(BaseN, WritesNumbers)
{
    EXPECT_EQ(ToBaseN(0ULL, 10), "0");
    EXPECT_EQ(ToBaseN(9007199254740993ULL, 7), "5350140446150306055");
    EXPECT_EQ(FromBaseN("5350140446150306055", 7), 9007199254740993ULL);
    EXPECT_EQ(ToBaseN(5ULL, 1), "");
    EXPECT_EQ(ToBaseN(5ULL, 65), "");
    EXPECT_EQ(ToBaseN(5ULL, 0), "");
}

TEST(BaseN, WritesBytesLowBitsFirst)
{
    EXPECT_EQ(Encoded("\x01", 1, 16), "10");
    EXPECT_EQ(Encoded("\xAB", 1, 16), "ba");
    EXPECT_EQ(Encoded("Hello, world!", 13, 64), "8l6rIZ6bwsTrON6px0");
    EXPECT_EQ(Encoded("a", 1, 10), "");
    EXPECT_EQ(Encoded("a", 0, 16), "");
    EXPECT_EQ(Encoded("a", -5, 16), "");
    EXPECT_EQ(ToBaseN(nullptr, 4, 16), "");
}

TEST(BaseN, ReadsBytes)
{
    unsigned char bytes[16] = {};
    EXPECT_EQ(FromBaseN("8l6rIZ6bwsTrON6px0", bytes, 16), 13);
    EXPECT_EQ(std::memcmp(bytes, "Hello, world!", 13), 0);
    EXPECT_EQ(FromBaseN("8l6rIZ6bwsTrON6px0", bytes, 5), 5);
    EXPECT_EQ(FromBaseN("8l6rIZ", bytes, 0), 0);
    EXPECT_EQ(FromBaseN("8l6rIZ", bytes, -1), 0);
    EXPECT_EQ(FromBaseN(nullptr, bytes, 16), 0);
    EXPECT_EQ(FromBaseN("8l6rIZ", nullptr, 16), 0);
}
