#include "config/core/TextListData.h"

#include <gtest/gtest.h>

#include <string>

using namespace vorn;
using namespace std::string_view_literals;
using Texts = std::vector<std::string_view>;

namespace
{
std::string DataOf(const Texts& texts)
{
    const std::vector<char> data = TextListData(texts);
    return {data.begin(), data.end()};
}
} // namespace

TEST(TextListData, FollowsEachTextByAZeroAndTheWholeByAnother)
{
    EXPECT_EQ(DataOf({"one", "two"}), "one\0two\0\0"sv);
    EXPECT_EQ(DataOf({"one"}), "one\0\0"sv);
    EXPECT_EQ(DataOf({}), "\0"sv);
    EXPECT_EQ(DataOf({"", "b"}), "\0b\0\0"sv);
}

TEST(TextListData, IsReadInOrder)
{
    EXPECT_EQ(TextsOfListData("one\0two\0three\0\0"sv), (Texts{"one", "two", "three"}));
    EXPECT_EQ(TextsOfListData("\0"sv), Texts{});
    EXPECT_EQ(TextsOfListData(""sv), Texts{});
}

TEST(TextListData, WithoutClosingZeroEndsWithItsLastByte)
{
    EXPECT_EQ(TextsOfListData("one\0two\0"sv), (Texts{"one", "two"}));
    EXPECT_EQ(TextsOfListData("one\0two"sv), (Texts{"one", "two"}));
    EXPECT_EQ(TextsOfListData("one"sv), Texts{"one"});
}

TEST(TextListData, KeepsEmptyTexts)
{
    EXPECT_EQ(TextsOfListData("one\0\0two\0\0"sv), (Texts{"one", "", "two"}));
    EXPECT_EQ(TextsOfListData("from\0\0\0"sv), (Texts{"from", ""}));
    EXPECT_EQ(TextsOfListData("\0one\0\0"sv), (Texts{"", "one"}));
}

TEST(TextListData, GivesBackEveryListThatItMade)
{
    std::vector<std::string> kept;
    for (int i = 0; i < 300; ++i)
    {
        kept.push_back(std::string(static_cast<std::size_t>(i % 7), 'x') + (i % 7 == 0 ? "" : std::to_string(i)));
    }
    const Texts many(kept.begin(), kept.end());
    for (const Texts& texts : {Texts{}, Texts{""}, Texts{"", ""}, Texts{"a", "", ""}, Texts{"", "", "a"}, many})
    {
        EXPECT_EQ(TextsOfListData(DataOf(texts)), texts);
    }
}
