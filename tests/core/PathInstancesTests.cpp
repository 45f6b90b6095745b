#include "config/core/PathInstances.h"

#include <gtest/gtest.h>

#include <climits>

using namespace vorn;

TEST(PathInstances, TheLastAddedIsEffective)
{
    PathInstances paths;
    EXPECT_TRUE(paths.Add(3, "C:\\a\\"));
    EXPECT_TRUE(paths.Add(3, "C:\\b"));
    EXPECT_EQ(paths.Effective(3), "C:\\b");
    EXPECT_EQ(*paths.Find(3), (PathInstances::List{"C:\\a\\", "C:\\b"}));
}

TEST(PathInstances, GrowByEmptyLists)
{
    PathInstances paths;
    EXPECT_TRUE(paths.Lists()->empty());
    EXPECT_TRUE(paths.Add(200, "x"));
    EXPECT_EQ(paths.Lists()->size(), 201U);
    ASSERT_NE(paths.Find(100), nullptr);
    EXPECT_TRUE(paths.Find(100)->empty());
    EXPECT_EQ(paths.Effective(100), "");
}

TEST(PathInstances, RefuseNumbersOutOfRange)
{
    PathInstances paths;
    for (const int path : {INT_MIN, -1, PathInstances::kLimit, INT_MAX})
        EXPECT_FALSE(paths.Add(path, "x")) << path;
    EXPECT_TRUE(paths.Lists()->empty());
    EXPECT_TRUE(paths.Add(PathInstances::kLimit - 1, "x"));
}

TEST(PathInstances, AMissingListIsEmptyAndFalse)
{
    PathInstances paths;
    paths.Add(1, "x");
    for (const int path : {INT_MIN, -1, 2, INT_MAX})
    {
        EXPECT_EQ(paths.Find(path), nullptr) << path;
        EXPECT_EQ(paths.Effective(path), "") << path;
        EXPECT_FALSE(paths.Clear(path)) << path;
        EXPECT_FALSE(paths.Remove(path, "x")) << path;
        EXPECT_FALSE(paths.Replace(path, "x", "y")) << path;
    }
}

TEST(PathInstances, ClearEmptiesTheList)
{
    PathInstances paths;
    paths.Add(1, "x");
    EXPECT_TRUE(paths.Clear(1));
    EXPECT_TRUE(paths.Find(1)->empty());
    EXPECT_TRUE(paths.Clear(1)) << "an empty list exists";
    EXPECT_TRUE(paths.Clear(0));
}

TEST(PathInstances, RemoveTakesTheFirstOfEqualTextsWhateverTheCase)
{
    PathInstances paths;
    paths.Add(1, "c:\\data\\");
    paths.Add(1, "D:\\");
    paths.Add(1, "C:\\DATA\\");
    EXPECT_TRUE(paths.Remove(1, "C:\\DATA\\"));
    EXPECT_EQ(*paths.Find(1), (PathInstances::List{"D:\\", "C:\\DATA\\"}));
    EXPECT_FALSE(paths.Remove(1, "C:\\DATA")) << "the whole text counts";
    EXPECT_FALSE(paths.Remove(1, ""));
}

TEST(PathInstances, ReplaceChangesTheFirstOfEqualTexts)
{
    PathInstances paths;
    paths.Add(1, "A");
    paths.Add(1, "a");
    EXPECT_TRUE(paths.Replace(1, "a", "B"));
    EXPECT_EQ(*paths.Find(1), (PathInstances::List{"B", "a"}));
    EXPECT_TRUE(paths.Replace(1, "b", paths.Effective(1)));
    EXPECT_FALSE(paths.Replace(1, "zz", "y"));
}

TEST(PathInstances, AListStaysInItsPlaceWhileTheTableGrows)
{
    PathInstances paths;
    paths.Add(0, "x");
    const PathInstances::List* const list = paths.Find(0);
    for (int path = 1; path < 500; ++path)
        paths.Add(path, "y");
    EXPECT_EQ(paths.Find(0), list);
    EXPECT_EQ(paths.Lists()->front(), list);
}

TEST(PathInstances, CopiesAreDeep)
{
    PathInstances paths;
    paths.Add(2, "x");
    PathInstances copy(paths);
    copy.Add(2, "y");
    EXPECT_EQ(paths.Effective(2), "x");
    EXPECT_NE(copy.Find(2), paths.Find(2));
    paths = copy;
    EXPECT_EQ(*paths.Find(2), (PathInstances::List{"x", "y"}));
    copy.Clear(2);
    EXPECT_EQ(paths.Effective(2), "y");
}

TEST(PathInstances, AssignedToThemselvesStay)
{
    PathInstances paths;
    paths.Add(2, "x");
    const PathInstances::List* const list = paths.Find(2);
    PathInstances& same = paths;
    paths = same;
    EXPECT_EQ(paths.Find(2), list);
    EXPECT_EQ(paths.Effective(2), "x");
}
