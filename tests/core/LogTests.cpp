#include "family/VornChart/core/VornLog.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <type_traits>

namespace
{

// A log file of its own for each test, gone before and after.
class LogFile : public testing::Test
{
protected:
    void SetUp() override
    {
        std::filesystem::remove(m_path);
    }

    void TearDown() override
    {
        std::filesystem::remove(m_path);
    }

    std::string Name() const
    {
        return m_path.string();
    }

    std::string Content() const
    {
        std::ifstream in(m_path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    const std::filesystem::path m_path =
        std::filesystem::temp_directory_path() /
        ("vorn_log_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) + ".txt");
};

std::string TextOf(VornLog& log)
{
    char* raw = nullptr;
    const int length = log.GetLog(raw);
    const std::unique_ptr<char[]> text(raw);
    EXPECT_NE(text, nullptr);
    EXPECT_EQ(text[static_cast<std::size_t>(length)], '\0');
    return {text.get(), static_cast<std::size_t>(length)};
}

struct OpenLog : VornLog
{
    using VornLog::mAltDisplayLevel;
    using VornLog::mDisplayLevel;
};

} // namespace

TEST(VornLog, StatusNumbersRunFromFatalToDebug)
{
    EXPECT_EQ(LOG_FATAL, 0);
    EXPECT_EQ(LOG_ERROR, 1);
    EXPECT_EQ(LOG_WARNING, 2);
    EXPECT_EQ(LOG_INFO, 3);
    EXPECT_EQ(LOG_DEBUG, 4);
    EXPECT_TRUE((std::is_same_v<std::underlying_type_t<LogStatus>, int>)) << "thresholds below 0 are compared, too";
}

TEST(VornLog, AnEmptyLogHandsOutAnEmptyText)
{
    VornLog log;
    EXPECT_EQ(TextOf(log), "");
}

TEST(VornLog, CollectsMessagesInOrderWithoutAFile)
{
    VornLog log;
    log.LogMsg("first", LOG_INFO);
    log.LogMsg(std::string("second"), LOG_FATAL);
    log.LogMsg("", LOG_DEBUG);
    EXPECT_EQ(TextOf(log), "first\r\nsecond\r\n\r\n");
}

TEST(VornLog, NullMessageAddsNothing)
{
    VornLog log;
    log.LogMsg(static_cast<const char*>(nullptr), LOG_ERROR);
    EXPECT_EQ(TextOf(log), "");
}

TEST(VornLog, KeepsZeroBytesInsideATextObject)
{
    VornLog log;
    log.LogMsg(std::string("a\0b", 3), LOG_INFO);
    EXPECT_EQ(TextOf(log), std::string("a\0b\r\n", 5));
}

TEST(VornLog, EachCallerGetsACopyOfItsOwn)
{
    VornLog log;
    log.LogMsg("text", LOG_INFO);
    char* raw = nullptr;
    log.GetLog(raw);
    const std::unique_ptr<char[]> copy(raw);
    copy[0] = 'X';
    EXPECT_EQ(TextOf(log), "text\r\n");
}

TEST(VornLog, CollectsLargeTexts)
{
    VornLog log;
    const std::string line(100'000, 'x');
    for (int i = 0; i < 20; ++i)
    {
        log.LogMsg(line, LOG_DEBUG);
    }
    EXPECT_EQ(TextOf(log).size(), 20u * 100'002u);
}

TEST(VornLog, ACopyHasTheTextAndTheThresholds)
{
    OpenLog log;
    log.LogMsg("kept", LOG_INFO);
    log.mDisplayLevel = LOG_FATAL;
    log.mAltDisplayLevel = LOG_DEBUG;
    OpenLog copy(log);
    OpenLog assigned;
    assigned = log;
    log.LogMsg("later", LOG_INFO);
    EXPECT_EQ(TextOf(copy), "kept\r\n");
    EXPECT_EQ(TextOf(assigned), "kept\r\n");
    EXPECT_EQ(copy.mDisplayLevel, LOG_FATAL);
    EXPECT_EQ(assigned.mAltDisplayLevel, LOG_DEBUG);
}

TEST(VornLog, ErrorsAreShownFirstWarningsInTheTalkativeDisplay)
{
    const OpenLog log;
    EXPECT_EQ(log.mDisplayLevel, LOG_ERROR);
    EXPECT_EQ(log.mAltDisplayLevel, LOG_WARNING);
}

TEST(VornLog, BothThresholdsAreSetTogether)
{
    OpenLog log;
    log.SetDisplayThresholds(LOG_DEBUG, LOG_FATAL);
    EXPECT_EQ(log.mDisplayLevel, LOG_DEBUG);
    EXPECT_EQ(log.mAltDisplayLevel, LOG_FATAL);
}

TEST(VornLog, MessagesOfEveryWeightAreLoggedWhateverTheThresholds)
{
    VornLog log;
    log.SetDisplayThresholds(LOG_FATAL, LOG_FATAL);
    for (const LogStatus level : {LOG_FATAL, LOG_ERROR, LOG_WARNING, LOG_INFO, LOG_DEBUG, static_cast<LogStatus>(-7)})
    {
        log.LogMsg("x", level);
    }
    EXPECT_EQ(TextOf(log).size(), 6u * 3u);
}

TEST(VornLog, FormatCharactersAreTakenLiterally)
{
    VornLog log;
    log.LogMsg("100%s %n%d\\", LOG_INFO);
    EXPECT_EQ(TextOf(log), "100%s %n%d\\\r\n");
}

TEST(VornLog, NobodyMakesTheSharedLogByItself)
{
    EXPECT_EQ(VornLog::Shared(), nullptr);
}

TEST_F(LogFile, HoldsEachMessageAsSoonAsItIsLogged)
{
    VornLog log;
    log.LogMsg("before the file", LOG_INFO);
    ASSERT_TRUE(log.InitLog(Name().c_str()));
    log.LogMsg("one", LOG_INFO);
    EXPECT_EQ(Content(), "one\r\n");
    log.LogMsg(std::string("two"), LOG_INFO);
    EXPECT_EQ(Content(), "one\r\ntwo\r\n");
    EXPECT_EQ(TextOf(log), "before the file\r\none\r\ntwo\r\n");
}

TEST_F(LogFile, IsAppendedTo)
{
    for (const char* text : {"first run", "second run"})
    {
        VornLog log;
        ASSERT_TRUE(log.InitLog(Name().c_str()));
        log.LogMsg(text, LOG_INFO);
    }
    EXPECT_EQ(Content(), "first run\r\nsecond run\r\n");
}

TEST_F(LogFile, StaysOpenAndWholeWhenTheTextIsCleared)
{
    VornLog log;
    ASSERT_TRUE(log.InitLog(Name().c_str()));
    log.LogMsg("old", LOG_INFO);
    log.ClearLog();
    EXPECT_EQ(TextOf(log), "");
    log.LogMsg("new", LOG_INFO);
    EXPECT_EQ(TextOf(log), "new\r\n");
    EXPECT_EQ(Content(), "old\r\nnew\r\n");
}

TEST_F(LogFile, AFailedOpenLeavesTheLogAsItWas)
{
    VornLog log;
    ASSERT_TRUE(log.InitLog(Name().c_str()));
    EXPECT_FALSE(log.InitLog(nullptr));
    EXPECT_FALSE(log.InitLog(""));
    EXPECT_FALSE(log.InitLog((Name() + "/no/such/folder.txt").c_str()));
    log.LogMsg("still here", LOG_INFO);
    EXPECT_EQ(Content(), "still here\r\n");
}

TEST_F(LogFile, IsNotSharedWithACopy)
{
    VornLog log;
    ASSERT_TRUE(log.InitLog(Name().c_str()));
    VornLog copy(log);
    copy.LogMsg("copy only", LOG_INFO);
    EXPECT_EQ(Content(), "");
}
