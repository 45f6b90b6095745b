#include "toolkit/core/CategoryPath.h"

#include <gtest/gtest.h>

using vorn::CategoryKey;
using vorn::CategoryLevels;

namespace
{

/// "text=prefix" of every level, in order.
std::string Described(std::string_view path)
{
    std::string all;
    for (const auto& level : CategoryLevels(path))
    {
        all += '[';
        all += level.text;
        all += '=';
        all += level.prefix;
        all += ']';
    }
    return all;
}

} // namespace

TEST(CategoryPath, HasALevelForEveryPiece)
{
    EXPECT_EQ("[Chart=Chart]", Described("Chart"));
    EXPECT_EQ("[Chart=Chart][Night=Chart|Night][Colors=Chart|Night|Colors]", Described("Chart|Night|Colors"));
}

TEST(CategoryPath, EmptyLevelsAreLeftOut)
{
    EXPECT_EQ("[A=A][B=A|B]", Described("A||B"));
    EXPECT_EQ("[A=A][B=A|B]", Described("A|B|"));
    EXPECT_EQ("[A=A][B=A|B]", Described("|A|B"));
    EXPECT_EQ("", Described(""));
    EXPECT_EQ("", Described("|||"));
}

TEST(CategoryPath, BlanksAndCaseBelongToTheText)
{
    EXPECT_EQ("[ A = A ][b= A |b]", Described(" A |b"));
    EXPECT_EQ("[ = ]", Described(" "));
}

TEST(CategoryPath, TheKeyIsThePathWithoutEmptyLevels)
{
    EXPECT_EQ("A|B", CategoryKey("||A||B|"));
    EXPECT_EQ("", CategoryKey("|"));
    EXPECT_NE(CategoryKey("a|b"), CategoryKey("A|b"));
}
