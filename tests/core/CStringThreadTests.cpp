#include "framework/core/CString.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

// Strings that travel between threads.

TEST(CStringThreads, CountsOfSharedTextsStayRight)
{
    const CString shared('s', 120); // too long to be copied at once: every owner counts
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
    {
        threads.emplace_back(
            [&shared]
            {
                for (int round = 0; round < 20000; ++round)
                {
                    CString copy = shared;
                    CString second = copy;
                    copy += 'x';
                    second.Empty();
                }
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    CString last = shared;
    EXPECT_EQ(last.GetString(), shared.GetString());
    EXPECT_EQ(shared, CString('s', 120));
}

TEST(CStringThreads, TextsMayEndOnAnotherThread)
{
    for (int round = 0; round < 20; ++round)
    {
        std::vector<CString> texts;
        std::thread maker(
            [&texts]
            {
                for (int i = 0; i < 1000; ++i)
                {
                    texts.emplace_back('a', i % 120);
                }
            });
        maker.join();
        int whole = 0; // texts that came over with all their characters
        std::thread ender(
            [&whole, taken = std::move(texts)]() mutable
            {
                for (std::size_t i = 0; i < taken.size(); ++i)
                {
                    const int length = static_cast<int>(i % 120);
                    whole += taken[i] == CString('a', length) ? 1 : 0;
                }
                taken.clear();
            });
        ender.join();
        EXPECT_EQ(whole, 1000);
    }
}

TEST(CStringThreads, ManyThreadsMakeAndEndTextsAtOnce)
{
    std::vector<std::thread> threads;
    std::vector<int> wrong(4, 0);
    for (std::size_t i = 0; i < wrong.size(); ++i)
    {
        threads.emplace_back(
            [i, &wrong]
            {
                for (int round = 0; round < 20000; ++round)
                {
                    const char mark = static_cast<char>('a' + i);
                    const CString text(mark, 1 + round % 60);
                    wrong[i] += text[0] != mark || text[text.GetLength() - 1] != mark ? 1 : 0;
                }
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_EQ(wrong, std::vector<int>(4, 0)) << "no block has two owners";
}
