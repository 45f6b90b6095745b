#include "frame/core/ProgramStats.h"

#include "framework/core/Time.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <type_traits>

namespace
{

constexpr auto kOpenings = static_cast<APPSTAT>(0);
constexpr auto kSearches = static_cast<APPSTAT>(1);
constexpr auto kSeventh = static_cast<APPSTAT>(7);

class Statistics : public testing::Test
{
protected:
    std::string Name() const
    {
        return m_folder.File("usage.stat");
    }
    std::string Content() const
    {
        return m_folder.Read("usage.stat");
    }
    // Writes a file of version 1 with this start date (below 128) and these counters (below 128).
    void WriteFile(char startDate, const std::string& counters) const
    {
        std::string file = std::string("\1\0\0\0", 4) + startDate + std::string(7, '\0') +
                           static_cast<char>(counters.size()) + std::string(3, '\0');
        for (const char counter : counters)
        {
            file += counter + std::string(3, '\0');
        }
        m_folder.Write("usage.stat", file);
    }

    vorn::test::ScratchFolder m_folder;
};

long long Now()
{
    return CTime::GetCurrentTime().GetTime();
}

// Expects that the statistics began between a moment and now.
void ExpectBegunSince(const ProgramStats& stats, long long earliest)
{
    EXPECT_GE(stats.GetStartDate(), earliest);
    EXPECT_LE(stats.GetStartDate(), Now());
}

} // namespace

TEST_F(Statistics, AreNotCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<ProgramStats>);
    EXPECT_FALSE(std::is_copy_assignable_v<ProgramStats>);
    EXPECT_EQ(sizeof(APPSTAT), 4u);
    EXPECT_TRUE(std::is_signed_v<std::underlying_type_t<APPSTAT>>);
}

TEST_F(Statistics, BeginWithoutCountersAndDate)
{
    const ProgramStats stats;
    EXPECT_EQ(stats.GetStatCount(), 0);
    EXPECT_EQ(stats.GetStartDate(), 0);
}

TEST_F(Statistics, Init_MakesAMissingFileAndSaysFalse)
{
    ProgramStats stats;
    EXPECT_FALSE(stats.Init(Name().c_str()));
    EXPECT_TRUE(std::filesystem::exists(Name()));
    EXPECT_EQ(Content(), "");
    EXPECT_EQ(stats.GetStatCount(), 0);
    EXPECT_EQ(stats.GetStartDate(), 0);
}

TEST_F(Statistics, CountOverSavingAndReading)
{
    ProgramStats first;
    first.Init(Name().c_str());
    first.Event(kSearches);
    EXPECT_TRUE(first.SaveStats());

    ProgramStats second;
    EXPECT_TRUE(second.Init(Name().c_str()));
    EXPECT_EQ(second.GetStatCount(), 2);
    EXPECT_EQ(second.GetStat(kOpenings), 0);
    EXPECT_EQ(second.GetStat(kSearches), 1);
    second.Event(kSearches);
    second.Event(kOpenings);
    EXPECT_TRUE(second.SaveStats());

    ProgramStats third;
    EXPECT_TRUE(third.Init(Name().c_str()));
    EXPECT_EQ(third.GetStat(kOpenings), 1);
    EXPECT_EQ(third.GetStat(kSearches), 2);
}

TEST_F(Statistics, Init_ReadsDateAndCounters)
{
    WriteFile(100, "\5\7\x0B");
    ProgramStats stats;
    EXPECT_TRUE(stats.Init(Name().c_str()));
    EXPECT_EQ(stats.GetStartDate(), 100);
    EXPECT_EQ(stats.GetStatCount(), 3);
    EXPECT_EQ(stats.GetStat(static_cast<APPSTAT>(2)), 11);
}

TEST_F(Statistics, Init_WithoutADateInTheFileBeginsNow)
{
    const long long before = Now();
    WriteFile(0, "\5");
    ProgramStats stats;
    EXPECT_TRUE(stats.Init(Name().c_str()));
    ExpectBegunSince(stats, before);
    EXPECT_EQ(stats.GetStat(kOpenings), 5);
}

TEST_F(Statistics, Init_OfAFileOfAVersionAloneBeginsNow)
{
    const long long before = Now();
    m_folder.Write("usage.stat", "\2");
    ProgramStats stats;
    EXPECT_TRUE(stats.Init(Name().c_str()));
    ExpectBegunSince(stats, before);
    EXPECT_EQ(stats.GetStatCount(), 0);
}

TEST_F(Statistics, Init_OfAnEmptyFileLeavesItUntouched)
{
    for (const std::string& content : {std::string(), std::string(40, '\0')})
    {
        m_folder.Write("usage.stat", content);
        ProgramStats stats;
        EXPECT_FALSE(stats.Init(Name().c_str()));
        EXPECT_EQ(stats.GetStatCount(), 0);
        EXPECT_EQ(Content(), content);
    }
}

TEST_F(Statistics, Init_ForgetsWhatWasCountedBefore)
{
    WriteFile(100, "\5\7");
    ProgramStats stats;
    stats.Init(Name().c_str());
    EXPECT_FALSE(stats.Init(m_folder.File("other.stat").c_str()));
    EXPECT_EQ(stats.GetStatCount(), 0);
    stats.Event(kOpenings);
    stats.SaveStats();
    EXPECT_EQ(m_folder.Read("other.stat").size(), 20u);
    EXPECT_EQ(Content().size(), 24u);
}

TEST_F(Statistics, Init_ReadsAnotherDateOnlyWhereTheFileHasOne)
{
    WriteFile(100, "\5");
    ProgramStats stats;
    stats.Init(Name().c_str());
    m_folder.Write("usage.stat", "\1");
    EXPECT_TRUE(stats.Init(Name().c_str()));
    EXPECT_EQ(stats.GetStartDate(), 100);
    EXPECT_EQ(stats.GetStatCount(), 0);
}

TEST_F(Statistics, Init_ThatCannotOpenTheFileBeginsNowWithoutCounters)
{
    const long long before = Now();
    const std::string folder = m_folder.Path().string();
    const std::string nowhere = m_folder.File("nowhere/usage.stat");
    for (const char* name : {static_cast<const char*>(nullptr), "", folder.c_str(), nowhere.c_str()})
    {
        ProgramStats stats;
        EXPECT_TRUE(stats.Init(name));
        ExpectBegunSince(stats, before);
        EXPECT_EQ(stats.GetStatCount(), 0);
        EXPECT_FALSE(stats.SaveStats());
        stats.Event(kOpenings);
        EXPECT_TRUE(stats.SaveStats());
    }
}

TEST_F(Statistics, SaveStats_WithoutCountersTouchesNothing)
{
    WriteFile(100, "");
    const std::string before = Content();
    ProgramStats stats;
    EXPECT_TRUE(stats.Init(Name().c_str()));
    EXPECT_FALSE(stats.SaveStats());
    EXPECT_EQ(Content(), before);
    EXPECT_FALSE(ProgramStats().SaveStats());
}

TEST_F(Statistics, SaveStats_WritesTheFileAnew)
{
    WriteFile(100, "\5");
    ProgramStats stats;
    stats.Init(Name().c_str());
    stats.Event(kSearches);
    m_folder.Write("usage.stat", std::string(100, 'x'));
    EXPECT_TRUE(stats.SaveStats());
    EXPECT_EQ(Content(), std::string("\1\0\0\0d\0\0\0\0\0\0\0\2\0\0\0\5\0\0\0\1\0\0\0", 24));
}

TEST_F(Statistics, SaveStats_OfAnotherVersionWritesTheFirst)
{
    m_folder.Write("usage.stat", std::string("\3\0\0\0d\0\0\0\0\0\0\0\1\0\0\0\5\0\0\0", 20));
    ProgramStats stats;
    EXPECT_TRUE(stats.Init(Name().c_str()));
    EXPECT_TRUE(stats.SaveStats());
    EXPECT_EQ(Content(), std::string("\1\0\0\0d\0\0\0\0\0\0\0\1\0\0\0\5\0\0\0", 20));
}

TEST_F(Statistics, Event_MakesTheCountersUpToItsValue)
{
    ProgramStats stats;
    stats.Event(kSeventh);
    EXPECT_EQ(stats.GetStatCount(), 8);
    EXPECT_EQ(stats.GetStat(kSeventh), 1);
    EXPECT_EQ(stats.GetStat(static_cast<APPSTAT>(6)), 0);
    stats.Event(kSearches);
    stats.Event(kSeventh);
    EXPECT_EQ(stats.GetStatCount(), 8);
    EXPECT_EQ(stats.GetStat(kSearches), 1);
    EXPECT_EQ(stats.GetStat(kSeventh), 2);
}

TEST_F(Statistics, Event_KeepsTheOldCountersWhenItGrows)
{
    WriteFile(100, "\5\7");
    ProgramStats stats;
    stats.Init(Name().c_str());
    stats.Event(kSeventh);
    EXPECT_EQ(stats.GetStat(kOpenings), 5);
    EXPECT_EQ(stats.GetStat(kSearches), 7);
    EXPECT_EQ(stats.GetStat(static_cast<APPSTAT>(2)), 0);
}

TEST_F(Statistics, Event_IgnoresWhatCannotBeCounted)
{
    ProgramStats stats;
    for (const int value : {-1, INT_MIN, INT_MAX, INT_MAX - 1})
    {
        stats.Event(static_cast<APPSTAT>(value));
        EXPECT_EQ(stats.GetStatCount(), 0) << value;
    }
}

TEST_F(Statistics, Event_StaysAtTheLargestNumber)
{
    m_folder.Write("usage.stat", std::string("\1\0\0\0d\0\0\0\0\0\0\0\1\0\0\0\xFE\xFF\xFF\x7F", 20));
    ProgramStats stats;
    stats.Init(Name().c_str());
    EXPECT_EQ(stats.GetStat(kOpenings), INT_MAX - 1);
    stats.Event(kOpenings);
    EXPECT_EQ(stats.GetStat(kOpenings), INT_MAX);
    stats.Event(kOpenings);
    EXPECT_EQ(stats.GetStat(kOpenings), INT_MAX);
}

TEST_F(Statistics, GetStat_OfAValueWithoutCounterIsZero)
{
    ProgramStats stats;
    EXPECT_EQ(stats.GetStat(kOpenings), 0);
    stats.Event(kSearches);
    for (const int value : {-1, INT_MIN, 2, INT_MAX})
    {
        EXPECT_EQ(stats.GetStat(static_cast<APPSTAT>(value)), 0) << value;
    }
}

TEST_F(Statistics, ClearStats_KeepsTheCountersAtZeroAndBeginsNow)
{
    const long long before = Now();
    WriteFile(100, "\5\7");
    ProgramStats stats;
    stats.Init(Name().c_str());
    stats.ClearStats();
    EXPECT_EQ(stats.GetStatCount(), 2);
    EXPECT_EQ(stats.GetStat(kOpenings), 0);
    EXPECT_EQ(stats.GetStat(kSearches), 0);
    ExpectBegunSince(stats, before);
    EXPECT_TRUE(stats.SaveStats());
    EXPECT_EQ(Content().size(), 24u);
}
