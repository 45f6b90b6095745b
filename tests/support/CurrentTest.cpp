#include "tests/support/CurrentTest.h"
#include "tests/support/Watchdog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace vorn::test
{

namespace
{

std::string s_current = "(no test)";
std::string s_note;

class Follower : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo& info) override
    {
        s_current = std::string(info.test_suite_name()) + "." + info.name();
        RestartWatchdog();
    }

    void OnTestEnd(const testing::TestInfo&) override
    {
        s_current = "(no test)";
        RestartWatchdog();
    }
};

} // namespace

const char* CurrentTestName()
{
    return s_current.c_str();
}

std::string CurrentTestFileName()
{
    std::string name = s_current;
    std::replace_if(
        name.begin(), name.end(),
        [](unsigned char c)
        {
            return std::isalnum(c) == 0;
        },
        '_');
    return name;
}

const char* CrashNote()
{
    return s_note.c_str();
}

void SetCrashNote(const std::string& note)
{
    s_note = note.empty() ? note : " (" + note + ")";
}

void FollowCurrentTest()
{
    testing::UnitTest::GetInstance()->listeners().Append(new Follower); // the listener list owns it
}

} // namespace vorn::test
