#include "files/core/ExtensionSet.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace
{

using Texts = std::vector<std::string>;

// The entries as a search takes them: up to the first empty one.
Texts Extensions(std::string_view set)
{
    Texts texts;
    for (int i = 0; !vorn::ExtensionAt(set, i).empty(); ++i)
    {
        texts.emplace_back(vorn::ExtensionAt(set, i));
    }
    return texts;
}

} // namespace

TEST(ExtensionSet, HasItsEntriesInOrderWithoutBlanksAndDots)
{
    EXPECT_EQ(Extensions("dbf|.dbt| txt"), (Texts{"dbf", "dbt", "txt"}));
    EXPECT_EQ(Extensions(" .dbf | dbt "), (Texts{"dbf", "dbt"}));
    EXPECT_EQ(Extensions("\t.dbf\t|\tdbt"), (Texts{"dbf", "dbt"}));
    EXPECT_EQ(Extensions("dbf"), (Texts{"dbf"}));
}

TEST(ExtensionSet, DoesNotCountWhatHasNoCharacter)
{
    for (const char* set : {"dbf||dbt", "|dbf|dbt", "dbf|dbt|", "||dbf||||dbt||"})
    {
        EXPECT_EQ(Extensions(set), (Texts{"dbf", "dbt"})) << set;
    }
    EXPECT_EQ(Extensions(""), Texts());
    EXPECT_EQ(Extensions("|||"), Texts());
}

TEST(ExtensionSet, CountsBlanksAsAnEmptyEntry)
{
    EXPECT_EQ(Extensions("dbf| |dbt"), (Texts{"dbf"}));
    EXPECT_EQ(vorn::ExtensionAt("dbf| |dbt", 1), "");
    EXPECT_EQ(vorn::ExtensionAt("dbf| |dbt", 2), "dbt");
    EXPECT_EQ(Extensions(" |dbf"), Texts());
}

TEST(ExtensionSet, TakesOneDotAndTrimsNothingBehindIt)
{
    EXPECT_EQ(Extensions("..dbf|. dbt|t.xt"), (Texts{".dbf", " dbt", "t.xt"}));
    EXPECT_EQ(Extensions("dbf|.|dbt"), (Texts{"dbf"}));
    EXPECT_EQ(Extensions("tar.gz|*"), (Texts{"tar.gz", "*"}));
}

TEST(ExtensionSet, KeepsOtherSpaceCharacters)
{
    EXPECT_EQ(Extensions("\ndbf\r|\xA0"), (Texts{"\ndbf\r", "\xA0"}));
}

TEST(ExtensionSet, IsEmptyOutsideItsEntries)
{
    for (const int index : {-1, INT_MIN, 2, 3, INT_MAX})
    {
        EXPECT_EQ(vorn::ExtensionAt("dbf|dbt", index), "") << index;
    }
}
