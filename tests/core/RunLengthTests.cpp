#include "apps/chart/core/RunLength.h"

#include <gtest/gtest.h>

using vorn::chart::RunLength;

TEST(RunLength, IsWhereTheTestEnds)
{
    constexpr int kMost = 1000;
    for (int length = 0; length <= kMost + 5; ++length)
    {
        int asked = 0;
        const int found = RunLength(kMost,
                                    [&](int number)
                                    {
                                        EXPECT_GE(number, 0);
                                        EXPECT_LT(number, kMost);
                                        ++asked;
                                        return number < length;
                                    });
        EXPECT_EQ(found, length < kMost ? length : kMost);
        EXPECT_LE(asked, 20) << length;
    }
}

TEST(RunLength, IsNoneWhereNoneIsWanted)
{
    EXPECT_EQ(RunLength(0,
                        [](int)
                        {
                            ADD_FAILURE();
                            return true;
                        }),
              0);
}
