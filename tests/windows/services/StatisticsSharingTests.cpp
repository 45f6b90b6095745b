#include "frame/core/ProgramStats.h"
#include "framework/core/File.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr auto kOpenings = static_cast<APPSTAT>(0);

// A file of one counter at 5 since the moment 100.
const std::string kFile("\1\0\0\0d\0\0\0\0\0\0\0\1\0\0\0\5\0\0\0", 20);

class SharedStatistics : public testing::Test
{
protected:
    vorn::test::ScratchFolder m_folder;
    const std::string m_name = m_folder.Write("usage.stat", kFile);
};

} // namespace

TEST_F(SharedStatistics, LeaveTheFileClosed)
{
    ProgramStats stats;
    EXPECT_TRUE(stats.Init(m_name.c_str()));
    EXPECT_TRUE(stats.SaveStats());
    CFile alone;
    EXPECT_TRUE(alone.Open(m_name.c_str(), CFile::modeReadWrite | CFile::shareExclusive));
}

TEST_F(SharedStatistics, LeaveAnEmptyFileClosed)
{
    m_folder.Write("usage.stat", "");
    ProgramStats stats;
    EXPECT_FALSE(stats.Init(m_name.c_str()));
    CFile alone;
    EXPECT_TRUE(alone.Open(m_name.c_str(), CFile::modeReadWrite | CFile::shareExclusive));
}

TEST_F(SharedStatistics, AreReadBesideAnotherReader)
{
    CFile reader;
    ASSERT_TRUE(reader.Open(m_name.c_str(), CFile::modeRead | CFile::shareDenyWrite));
    ProgramStats stats;
    EXPECT_TRUE(stats.Init(m_name.c_str()));
    EXPECT_EQ(stats.GetStat(kOpenings), 5);
}

TEST_F(SharedStatistics, AreNotSavedWhileAReaderHoldsTheFile)
{
    ProgramStats stats;
    stats.Init(m_name.c_str());
    stats.Event(kOpenings);
    {
        CFile reader;
        ASSERT_TRUE(reader.Open(m_name.c_str(), CFile::modeRead | CFile::shareDenyWrite));
        EXPECT_TRUE(stats.SaveStats());
    }
    EXPECT_EQ(m_folder.Read("usage.stat"), kFile);
    EXPECT_TRUE(stats.SaveStats());
    EXPECT_EQ(m_folder.Read("usage.stat")[16], '\6');
}

TEST_F(SharedStatistics, BeginAnewWhileAWriterHoldsTheFile)
{
    CFile writer;
    ASSERT_TRUE(writer.Open(m_name.c_str(), CFile::modeReadWrite | CFile::shareExclusive));
    ProgramStats stats;
    EXPECT_TRUE(stats.Init(m_name.c_str()));
    EXPECT_EQ(stats.GetStatCount(), 0);
    EXPECT_NE(stats.GetStartDate(), 0);
}

TEST_F(SharedStatistics, OfAReadOnlyFileAreRead)
{
    ASSERT_TRUE(SetFileAttributes(m_name.c_str(), FILE_ATTRIBUTE_READONLY));
    ProgramStats stats;
    EXPECT_TRUE(stats.Init(m_name.c_str()));
    EXPECT_EQ(stats.GetStat(kOpenings), 5);
    SetFileAttributes(m_name.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(SharedStatistics, OfALockedRangeAreNotHarmed)
{
    CFile locker;
    ASSERT_TRUE(locker.Open(m_name.c_str(), CFile::modeReadWrite | CFile::shareDenyNone));
    locker.LockRange(0, 4);
    ProgramStats stats;
    stats.Init(m_name.c_str());
    EXPECT_EQ(stats.GetStatCount(), 0);
    locker.UnlockRange(0, 4);
}
