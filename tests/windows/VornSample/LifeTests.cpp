#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/VornSample/SampleProcess.h"
#include "tests/windows/VornSample/SampleSettings.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>
#include <vector>

using namespace vorn::test;

namespace
{

constexpr int kLives = 3;
constexpr int kCounted = 2; // the last ones, when caches have come to their size

struct Life
{
    std::string begin;
    unsigned blocks = 0;
    unsigned gdi = 0;
    unsigned user = 0;
    int dialogs = 0; // so far
};

/// Whole lives of the sample in one process, each with every window and dialog opened and closed once.
class SampleLives : public testing::Test
{
protected:
    void SetUp() override
    {
        const SampleProcess sample("--rounds " + std::to_string(kLives), m_folder.File("output.txt"));
        ASSERT_EQ(sample.ExitCode(50000), 0u) << m_folder.Read("output.txt");
        std::istringstream lines(m_folder.Read("output.txt"));
        std::string line;
        for (int number = 1; number <= kLives; ++number)
        {
            Life life;
            const std::string name = "life " + std::to_string(number);
            ASSERT_TRUE(std::getline(lines, line) && line.starts_with(name + " begins with ")) << line;
            life.begin = line.substr(name.size() + 13);
            if (number <= kLives - kCounted)
            {
                m_begins.push_back(life.begin);
                continue;
            }
            ASSERT_TRUE(std::getline(lines, line) && line.starts_with(name)) << line;
            ASSERT_EQ(std::sscanf(line.c_str() + name.size(),
                                  " leaves %u heap blocks, %u GDI objects, %u windows, menus and icons; %d dialogs",
                                  &life.blocks, &life.gdi, &life.user, &life.dialogs),
                      4)
                << line;
            m_begins.push_back(life.begin);
            m_lives.push_back(life);
        }
        ASSERT_TRUE(std::getline(lines, line));
        ASSERT_EQ(std::sscanf(line.c_str(), "%u bare windows leave %u heap blocks", &m_windows, &m_floor), 2) << line;
    }

    ScratchFolder m_folder;
    ScratchKey m_settings{HKEY_CURRENT_USER, kSettings};
    std::vector<std::string> m_begins;
    std::vector<Life> m_lives; // those counted
    unsigned m_windows = 0;    // of a life
    unsigned m_floor = 0;      // heap blocks that the system keeps of as many bare ones
};

} // namespace

TEST_F(SampleLives, BeginAfreshAndLeaveNothing)
{
    for (std::size_t i = 1; i < m_begins.size(); ++i)
        EXPECT_EQ(m_begins[i],
                  "no log, no projections, no path records, 1 settings record, 0 drawing objects, timer 1000");
    const Life& settled = m_lives.front();
    const Life& last = m_lives.back();
    EXPECT_GE(last.dialogs - settled.dialogs, 17) << "all were shown";
    EXPECT_GT(m_windows, 300u);
    EXPECT_EQ(last.gdi, settled.gdi);
    EXPECT_EQ(last.user, settled.user);
    // The system keeps a block of each static text that has got a font, which the floor shows, and some lines of the
    // edits of several lines.
    constexpr unsigned kLines = 10;
    EXPECT_LE(last.blocks, settled.blocks + m_floor + kLines);
}
