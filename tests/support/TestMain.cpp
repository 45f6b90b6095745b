#include "tests/support/CrashHandler.h"
#include "tests/support/CurrentTest.h"
#include "tests/support/Watchdog.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    vorn::test::InstallCrashHandler();
    vorn::test::FollowCurrentTest();
    vorn::test::StartWatchdog();
    return RUN_ALL_TESTS();
}
