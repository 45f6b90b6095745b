#include "tests/windows/log/LogBox.h"

#include <memory>

namespace
{

std::string TextOf(VornLog& log)
{
    char* raw = nullptr;
    const int length = log.GetLog(raw);
    const std::unique_ptr<char[]> text(raw);
    return {text.get(), static_cast<std::size_t>(length)};
}

/// Counts how often one is destroyed.
struct CountedLog : VornLog
{
    ~CountedLog() override
    {
        ++destroyed;
    }
    static int destroyed;
};

int CountedLog::destroyed = 0;

} // namespace

TEST_F(LogTest, InstanceIsOneObjectThatAllShare)
{
    EXPECT_EQ(VornLog::Shared(), nullptr);
    VornCommonLog* const log = VornCommonLog::Instance();
    ASSERT_NE(log, nullptr);
    EXPECT_EQ(VornCommonLog::Instance(), log);
    EXPECT_EQ(VornLog::Shared(), log);
    VornLog::Shared()->LogMsg("from the charting library", LOG_INFO);
    EXPECT_EQ(TextOf(*log), "from the charting library\r\n");
}

TEST_F(LogTest, FreeInstanceMakesRoomForAFreshOne)
{
    VornCommonLog::Instance()->LogMsg("old", LOG_INFO);
    VornCommonLog::FreeInstance();
    EXPECT_EQ(VornLog::Shared(), nullptr);
    VornCommonLog::FreeInstance();
    EXPECT_EQ(TextOf(*VornCommonLog::Instance()), "");
}

TEST_F(LogTest, ALogMadeBeforeIsTakenAsItIs)
{
    OpenLog::mpSingleInst = new VornLog; // freed by the test's end
    VornLog* const plain = VornLog::Shared();
    EXPECT_EQ(VornCommonLog::Instance(), plain);
    plain->LogMsg("plain", LOG_INFO);
    std::string shown;
    EXPECT_TRUE(ShowLog(*VornCommonLog::Instance(),
                        [&shown](HWND window)
                        {
                            shown = ShownText(window);
                        }));
    EXPECT_EQ(shown, "plain\r\n");
}

TEST_F(LogTest, IsDestroyedThroughItsVirtualDestructor)
{
    CountedLog::destroyed = 0;
    OpenLog::mpSingleInst = new CountedLog;
    VornCommonLog::FreeInstance();
    EXPECT_EQ(CountedLog::destroyed, 1);
}

TEST_F(LogTest, CopiesHaveTextAndThresholds)
{
    VornCommonLog log;
    log.LogMsg("kept", LOG_INFO);
    log.SetDisplayThresholds(static_cast<LogStatus>(-1), LOG_DEBUG);
    VornCommonLog copy(log);
    VornCommonLog assigned;
    assigned = log;
    EXPECT_EQ(TextOf(copy), "kept\r\n");
    EXPECT_EQ(TextOf(assigned), "kept\r\n");
    copy.DisplayLog(LOG_FATAL, false); // would wait for the user
    assigned.DisplayLog(LOG_FATAL, false);
}

TEST_F(LogTest, AddsNothingToThePlainLog)
{
    EXPECT_EQ(sizeof(VornCommonLog), sizeof(VornLog));
}
