#include "frame/core/ProgramStats.h"
#include "framework/core/FileFaults.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace
{

using vorn::FileStep;

constexpr auto kOpenings = static_cast<APPSTAT>(0);

// Notes every step on a file while it lives, and lets one kind of step fail.
class Steps : public vorn::FileFaults
{
public:
    explicit Steps(std::optional<FileStep> failing = std::nullopt) : m_failing(failing)
    {
        m_before = vorn::SetFileFaults(this);
    }
    ~Steps() override
    {
        vorn::SetFileFaults(m_before);
    }
    Steps(const Steps&) = delete;
    Steps& operator=(const Steps&) = delete;

    vorn::SystemError Before(FileStep step, UINT& count) override
    {
        m_steps.push_back(step);
        const bool fails = step == m_failing;
        count = fails ? count / 2 : count;
        return fails ? 5 : 0; // input or output error; on Windows: access denied
    }
    long Count(FileStep step) const
    {
        return static_cast<long>(std::count(m_steps.begin(), m_steps.end(), step));
    }

private:
    std::optional<FileStep> m_failing;
    std::vector<FileStep> m_steps;
    vorn::FileFaults* m_before;
};

class StatisticsTrouble : public testing::Test
{
protected:
    // One counter at 5 since the moment 100.
    const std::string m_content = std::string("\1\0\0\0d\0\0\0\0\0\0\0\1\0\0\0\5\0\0\0", 20);
    vorn::test::ScratchFolder m_folder;
    const std::string m_name = m_folder.Write("usage.stat", m_content);
};

} // namespace

TEST_F(StatisticsTrouble, AreSavedWithOneWrite)
{
    ProgramStats stats;
    stats.Init(m_name.c_str());
    stats.Event(static_cast<APPSTAT>(999));
    const Steps steps;
    EXPECT_TRUE(stats.SaveStats());
    EXPECT_EQ(steps.Count(FileStep::Open), 1);
    EXPECT_EQ(steps.Count(FileStep::Write), 1);
    EXPECT_EQ(m_folder.Read("usage.stat").size(), 4016u);
}

TEST_F(StatisticsTrouble, AreReadWithOneRead)
{
    ProgramStats stats;
    const Steps steps;
    EXPECT_TRUE(stats.Init(m_name.c_str()));
    EXPECT_EQ(steps.Count(FileStep::Read), 1);
    EXPECT_EQ(steps.Count(FileStep::Write), 0);
    EXPECT_EQ(stats.GetStat(kOpenings), 5);
}

TEST_F(StatisticsTrouble, KeepTheirCountersWhenSavingFails)
{
    for (const FileStep failing : {FileStep::Open, FileStep::Write, FileStep::Close})
    {
        m_folder.Write("usage.stat", m_content);
        ProgramStats stats;
        stats.Init(m_name.c_str());
        stats.Event(kOpenings);
        {
            const Steps steps(failing);
            EXPECT_TRUE(stats.SaveStats());
            EXPECT_EQ(steps.Count(failing), 1);
        }
        EXPECT_EQ(stats.GetStat(kOpenings), 6);
        EXPECT_TRUE(stats.SaveStats());
        EXPECT_EQ(m_folder.Read("usage.stat")[16], '\6');
    }
}

TEST_F(StatisticsTrouble, StayInTheFileThatCannotBeOpenedForSaving)
{
    ProgramStats stats;
    stats.Init(m_name.c_str());
    stats.Event(kOpenings);
    const Steps steps(FileStep::Open);
    EXPECT_TRUE(stats.SaveStats());
    EXPECT_EQ(m_folder.Read("usage.stat"), m_content);
}

TEST_F(StatisticsTrouble, AreNoneWhenTheFileCannotBeRead)
{
    for (const FileStep failing : {FileStep::Read, FileStep::Length})
    {
        ProgramStats stats;
        const Steps steps(failing);
        EXPECT_FALSE(stats.Init(m_name.c_str()));
        EXPECT_EQ(stats.GetStatCount(), 0);
        EXPECT_EQ(steps.Count(failing), 1);
    }
    EXPECT_EQ(m_folder.Read("usage.stat"), m_content);
}
