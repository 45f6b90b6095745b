#include "framework/window/HandleMap.h"
#include "framework/window/ThreadState.h"

#include <gtest/gtest.h>

namespace
{

struct Thing
{
    int handle = 0;
};

int freed = 0;

struct ThingTraits
{
    using Object = Thing;
    using Handle = int;
    static constexpr vorn::HandleKind kKind = vorn::HandleKind::ImageList;
    static Thing* MakeTemporary(int handle)
    {
        return handle < 0 ? nullptr : new Thing{handle};
    }
    static void FreeTemporary(Thing* thing)
    {
        ++freed;
        delete thing;
    }
};

using ThingMap = vorn::HandleMap<ThingTraits>;

} // namespace

TEST(HandleMap, GivesNullForANullHandle)
{
    ThingMap map;
    EXPECT_EQ(map.FromHandle(0), nullptr);
    EXPECT_EQ(map.TemporaryCount(), 0U);
}

TEST(HandleMap, GivesTheSameTemporaryObjectUntilItIsFreed)
{
    ThingMap map;
    Thing* first = map.FromHandle(7);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->handle, 7);
    EXPECT_EQ(map.FromHandle(7), first);
    EXPECT_TRUE(map.IsTemporary(first));
    EXPECT_EQ(map.LookupPermanent(7), nullptr);
    freed = 0;
    map.FreeTemporary(0);
    EXPECT_EQ(freed, 1);
    EXPECT_EQ(map.LookupTemporary(7), nullptr);
}

TEST(HandleMap, PrefersThePermanentObject)
{
    ThingMap map;
    map.FromHandle(7);
    Thing mine{7};
    map.SetPermanent(7, &mine);
    EXPECT_EQ(map.FromHandle(7), &mine);
    EXPECT_EQ(map.LookupPermanent(7), &mine);
    EXPECT_FALSE(map.IsTemporary(&mine));
    map.RemovePermanent(7);
    EXPECT_NE(map.FromHandle(7), &mine);
    EXPECT_EQ(map.PermanentCount(), 0U);
}

TEST(HandleMap, NeverFreesPermanentObjects)
{
    Thing mine{3};
    freed = 0;
    {
        ThingMap map;
        map.SetPermanent(3, &mine);
        map.FreeTemporary(0);
        EXPECT_EQ(map.FromHandle(3), &mine);
    }
    EXPECT_EQ(freed, 0);
}

TEST(HandleMap, FreesItsTemporaryObjectsWhenItGoes)
{
    freed = 0;
    {
        ThingMap map;
        map.FromHandle(1);
        map.FromHandle(2);
    }
    EXPECT_EQ(freed, 2);
}

TEST(HandleMap, GivesNullWhenNoTemporaryObjectCanBeMade)
{
    ThingMap map;
    EXPECT_EQ(map.FromHandle(-1), nullptr);
    EXPECT_EQ(map.TemporaryCount(), 0U);
}

TEST(HandleMap, KeepsObjectsOfAnOuterLoopWhenAnInnerLoopIsIdle)
{
    auto& map = vorn::ThreadHandleMap<ThingTraits>();
    map.FreeTemporary(0);
    Thing* outer = map.FromHandle(1);
    freed = 0;
    {
        const vorn::LoopScope loop;
        map.FromHandle(2);
        EXPECT_EQ(map.FromHandle(1), outer);
        vorn::FreeTemporaryObjects();
        EXPECT_EQ(freed, 1);
        EXPECT_EQ(map.LookupTemporary(1), outer);
        map.FromHandle(3);
    }
    EXPECT_EQ(freed, 2) << "the end of a loop frees what it left";
    EXPECT_EQ(map.LookupTemporary(1), outer);
    vorn::FreeTemporaryObjects();
    EXPECT_EQ(map.LookupTemporary(1), nullptr);
}
