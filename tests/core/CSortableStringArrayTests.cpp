#include "frame/core/CSortableStringArray.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace
{

using Texts = std::vector<std::string>;

Texts Sorted(std::initializer_list<const char*> texts, bool caseSensitive)
{
    CSortableStringArray array;
    for (const char* text : texts)
        array.Add(text);
    array.Sort(caseSensitive);
    Texts sorted;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        sorted.emplace_back(array[i].GetString());
    return sorted;
}

} // namespace

TEST(CSortableStringArray, SortsByBytes)
{
    EXPECT_EQ(Sorted({"b", "a", "\xE9", "B", "_", ""}, true), (Texts{"", "B", "_", "a", "b", "\xE9"}));
}

TEST(CSortableStringArray, SortsWithoutCase)
{
    EXPECT_EQ(Sorted({"b", "Alpha", "_", "ALPHABET", "a"}, false), (Texts{"_", "a", "Alpha", "ALPHABET", "b"}));
}

TEST(CSortableStringArray, LeavesNoneOrOneAlone)
{
    EXPECT_EQ(Sorted({}, true), Texts{});
    EXPECT_EQ(Sorted({"x"}, true), Texts{"x"});
}

TEST(CSortableStringArray, IsAStringArrayAndKeepsSharedCopiesAlone)
{
    CSortableStringArray array;
    const CString kept = "zulu";
    array.Add(kept);
    array.Add("alpha");
    static_cast<CStringArray&>(array).Add("mike");
    array.Sort(true);
    EXPECT_EQ(array[0], "alpha");
    EXPECT_EQ(array[2], "zulu");
    EXPECT_EQ(kept, "zulu");
}
