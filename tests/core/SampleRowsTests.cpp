#include "apps/sample/core/LiveRows.h"
#include "apps/sample/core/RowCache.h"

#include <gtest/gtest.h>

#include <algorithm>

using vorn::LiveRows;
using vorn::RowCache;
using vorn::TableRow;

TEST(LiveRows, WithoutDeletedRecordsRowsAreRecords)
{
    LiveRows rows;
    rows.Reset(3);
    EXPECT_EQ(rows.Count(), 3);
    EXPECT_EQ(rows.RecordOf(0), 0);
    EXPECT_EQ(rows.RecordOf(2), 2);
    EXPECT_EQ(rows.RecordOf(3), -1);
    EXPECT_EQ(rows.RecordOf(-1), -1);
    EXPECT_EQ(rows.RowOf(2), 2);
    EXPECT_EQ(rows.RowOf(3), -1);
}

TEST(LiveRows, PassOverDeletedRecordsAtBothEndsAndInRuns)
{
    LiveRows rows;
    rows.Reset(10);
    for (const int record : {5, 0, 9, 4, 4, 10, -1})
        rows.Delete(record);
    EXPECT_EQ(rows.Count(), 6);
    EXPECT_EQ(rows.DeletedCount(), 4);
    const std::vector<int> live = {1, 2, 3, 6, 7, 8};
    for (int row = 0; row < 6; ++row)
    {
        EXPECT_EQ(rows.RecordOf(row), live[static_cast<std::size_t>(row)]);
        EXPECT_EQ(rows.RowOf(live[static_cast<std::size_t>(row)]), row);
    }
    EXPECT_EQ(rows.RecordOf(6), -1);
    EXPECT_EQ(rows.RowOf(0), -1);
    EXPECT_EQ(rows.RowOf(9), -1);
}

TEST(LiveRows, AgreeWithAPlainWalkWhateverIsDeleted)
{
    for (unsigned seed = 1; seed < 40; ++seed)
    {
        LiveRows rows;
        rows.Reset(64);
        std::vector<bool> live(64, true);
        for (unsigned turn = 0, state = seed; turn < seed; ++turn)
        {
            state = state * 1103515245u + 12345u;
            const unsigned record = (state >> 16) % 64;
            rows.Delete(static_cast<int>(record));
            live[record] = false;
        }
        int row = 0;
        for (int record = 0; record < 64; ++record)
        {
            const bool isLive = live[static_cast<std::size_t>(record)];
            EXPECT_EQ(rows.RowOf(record), isLive ? row : -1);
            if (isLive)
            {
                EXPECT_EQ(rows.RecordOf(row++), record);
            }
        }
        EXPECT_EQ(rows.Count(), row);
    }
}

TEST(LiveRows, StartAnewWithAnotherTable)
{
    LiveRows rows;
    rows.Reset(5);
    rows.Delete(1);
    rows.Reset(2);
    EXPECT_EQ(rows.Count(), 2);
    EXPECT_EQ(rows.RecordOf(1), 1);
    rows.Reset(-1);
    EXPECT_EQ(rows.Count(), 0);
}

namespace
{

class CountingSource : public RowCache::Source
{
public:
    explicit CountingSource(int count) : m_count(count)
    {
    }

    void LoadRows(int first, std::vector<TableRow>& rows) override
    {
        m_loads.push_back(first);
        for (int row = first; row < std::min(first + RowCache::kBlockRows, m_count); ++row)
            rows.push_back({std::to_string(row)});
    }

    std::vector<int> m_loads;

private:
    int m_count;
};

} // namespace

TEST(RowCache, LoadsABlockOnceHoweverItsRowsAreAsked)
{
    CountingSource source(200);
    RowCache cache(source);
    for (int row = 63; row >= 0; --row)
    {
        ASSERT_NE(cache.Row(row), nullptr);
        EXPECT_EQ(cache.Row(row)->front(), std::to_string(row));
    }
    EXPECT_EQ(source.m_loads, std::vector<int>{0});
    EXPECT_EQ(cache.Row(64)->front(), "64");
    EXPECT_EQ(source.m_loads, (std::vector<int>{0, 64}));
}

TEST(RowCache, HasNoRowsOutsideTheSource)
{
    CountingSource source(70);
    RowCache cache(source);
    EXPECT_EQ(cache.Row(-1), nullptr);
    EXPECT_NE(cache.Row(69), nullptr);
    EXPECT_EQ(cache.Row(70), nullptr);
    EXPECT_EQ(cache.Row(100000), nullptr);
}

TEST(RowCache, GivesUpTheBlockThatWasNotUsedForLongest)
{
    CountingSource source(10000);
    RowCache cache(source);
    for (int block = 0; block < RowCache::kBlocks; ++block)
        cache.Row(block * RowCache::kBlockRows);
    cache.Row(0);                                        // used again: block 1 is now the oldest
    cache.Row(RowCache::kBlocks * RowCache::kBlockRows); // takes its place
    source.m_loads.clear();
    cache.Row(0);
    EXPECT_TRUE(source.m_loads.empty());
    cache.Row(RowCache::kBlockRows);
    EXPECT_EQ(source.m_loads, std::vector<int>{RowCache::kBlockRows});
}

TEST(RowCache, ReadsAnewAfterAChange)
{
    CountingSource source(10);
    RowCache cache(source);
    cache.Row(3);
    cache.Clear();
    EXPECT_EQ(cache.Row(3)->front(), "3");
    EXPECT_EQ(source.m_loads, (std::vector<int>{0, 0}));
}
