#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

// Each test breaks its program in one way; the script beside it checks how the program ends.

TEST(Broken, WritesThroughANullPointer)
{
    volatile int* volatile nowhere = nullptr;
    *nowhere = 1;
}

TEST(Broken, Aborts)
{
    std::abort();
}

TEST(Broken, ThrowsWhereNobodyCatches)
{
    std::thread(
        []
        {
            throw std::runtime_error("lost");
        })
        .join();
}

TEST(Broken, Hangs)
{
    for (;;)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

TEST(Broken, Fails)
{
    FAIL();
}

TEST(Broken, Passes)
{
    EXPECT_EQ(std::abs(-1), 1);
}
