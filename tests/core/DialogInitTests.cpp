#include "framework/core/DialogInit.h"

#include <gtest/gtest.h>

using vorn::ReadDialogInit;

namespace
{
const std::vector<std::uint8_t> kTwo = {0xe9, 3, 3, 4, 4, 0, 0, 0, 'o', 'n', 'e', 0,     // 1001, combo box
                                        0xea, 3, 1, 4, 3, 0, 0, 0, 'a', 'b', 0,   0, 0}; // 1002, list box; end mark
}

TEST(DialogInit, RecordsAreReadUpToTheEndMark)
{
    const auto entries = ReadDialogInit(kTwo);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].controlId, 1001);
    EXPECT_EQ(entries[0].message, 0x403);
    EXPECT_EQ(entries[0].data, "one");
    EXPECT_EQ(entries[1].controlId, 1002);
    EXPECT_EQ(entries[1].data, "ab");
}

TEST(DialogInit, CutRecordEndsTheReading)
{
    EXPECT_EQ(ReadDialogInit(std::span(kTwo).first(22)).size(), 1u);
    EXPECT_TRUE(ReadDialogInit(std::span(kTwo).first(11)).empty());
    EXPECT_TRUE(ReadDialogInit({}).empty());
}

TEST(DialogInit, HugeLengthIsRefused)
{
    const std::vector<std::uint8_t> bytes = {1, 0, 3, 4, 0xff, 0xff, 0xff, 0xff, 'x', 0};
    EXPECT_TRUE(ReadDialogInit(bytes).empty());
}

TEST(DialogInit, DataWithoutTerminatorIsTakenWhole)
{
    const std::vector<std::uint8_t> bytes = {1, 0, 3, 4, 2, 0, 0, 0, 'x', 'y'};
    const auto entries = ReadDialogInit(bytes);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].data, "xy");
}
