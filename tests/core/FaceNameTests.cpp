#include "toolkit/core/FaceName.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace
{

/// What is left of 32 bytes.
std::string Cleared(const std::string& bytes)
{
    std::uint32_t words[8];
    std::memcpy(words, bytes.data(), sizeof words);
    vorn::ClearBehindText(words);
    std::string left(32, '?');
    std::memcpy(left.data(), words, sizeof words);
    return left;
}

} // namespace

TEST(FaceName, BytesBehindTheFirstZeroAreCleared)
{
    for (std::size_t length = 0; length < 32; ++length)
    {
        for (const char garbage : {'x', '\x01', '\x80', '\xFF'})
        {
            std::string bytes(32, garbage);
            bytes.replace(0, length, std::string(length, '\x81'));
            bytes[length] = '\0';
            EXPECT_EQ(Cleared(bytes), std::string(length, '\x81') + std::string(32 - length, '\0')) << length;
        }
    }
}

TEST(FaceName, ATextWithoutEndIsCutAfter31Bytes)
{
    EXPECT_EQ(Cleared(std::string(32, 'A')), std::string(31, 'A') + '\0');
    EXPECT_EQ(Cleared(std::string(31, '\x01') + '\x02'), std::string(31, '\x01') + '\0');
}
