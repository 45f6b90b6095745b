#include "framework/late/LateFunctions.h"

#include <objbase.h>
#include <oleauto.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <string>
#include <thread>
#include <vector>

extern "C"
{
    /// The records that calls of two functions go through.
    extern vorn::LateFunction g_variantToSystem __asm__("__imp__VariantTimeToSystemTime@12");
    extern vorn::LateFunction g_systemToVariant __asm__("__imp__SystemTimeToVariantTime@8");
}

namespace
{
FARPROC FoundBySystem(const vorn::LateFunction& function)
{
    return ::GetProcAddress(::GetModuleHandleA(function.dll), function.name);
}
} // namespace

TEST(LateFunctions, AreBoundByTheirFirstCallWhichGetsItsArguments)
{
    EXPECT_STREQ(g_variantToSystem.dll, "oleaut32.dll");
    EXPECT_STREQ(g_variantToSystem.name, "VariantTimeToSystemTime");
    const FARPROC unbound = g_variantToSystem.target;
    SYSTEMTIME time{};
    ASSERT_TRUE(::VariantTimeToSystemTime(2.75, &time)); // days from 1899-12-30
    EXPECT_EQ(time.wYear, 1900);
    EXPECT_EQ(time.wMonth, 1);
    EXPECT_EQ(time.wDay, 1);
    EXPECT_EQ(time.wHour, 18);
    EXPECT_NE(g_variantToSystem.target, unbound);
    EXPECT_EQ(g_variantToSystem.target, FoundBySystem(g_variantToSystem));
    ASSERT_TRUE(::VariantTimeToSystemTime(3.25, &time));
    EXPECT_EQ(time.wDay, 2);
    EXPECT_EQ(time.wHour, 6);
}

TEST(LateFunctions, MayBeCalledThroughAPointerTakenBefore)
{
    auto* volatile function = &::SystemTimeToVariantTime;
    SYSTEMTIME time{};
    time.wYear = 1900;
    time.wMonth = 1;
    time.wDay = 1;
    time.wHour = 12;
    for (int call = 0; call < 2; ++call)
    {
        double days = 0;
        ASSERT_TRUE(function(&time, &days));
        EXPECT_EQ(days, 2.5);
    }
    EXPECT_EQ(g_systemToVariant.target, FoundBySystem(g_systemToVariant));
}

TEST(LateFunctions, KeepTheLastErrorOfTheirCaller)
{
    ::SetLastError(1234);
    ::CoTaskMemFree(nullptr);
    EXPECT_EQ(::GetLastError(), 1234U);
}

TEST(LateFunctions, MayBeCalledFirstByManyThreadsAtOnce)
{
    constexpr int kThreads = 8;
    std::array<std::string, kThreads> folders;
    std::atomic<int> ready = 0;
    std::vector<std::thread> threads;
    for (std::string& folder : folders)
    {
        threads.emplace_back(
            [&ready, &folder]
            {
                ++ready;
                while (ready < kThreads)
                {
                    std::this_thread::yield();
                }
                char path[MAX_PATH] = {};
                folder = ::SHGetFolderPathA(nullptr, CSIDL_WINDOWS, nullptr, 0, path) == S_OK ? path : "failed";
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    char expected[MAX_PATH] = {};
    ::GetWindowsDirectoryA(expected, MAX_PATH);
    for (const std::string& folder : folders)
    {
        EXPECT_STRCASEEQ(folder.c_str(), expected);
    }
}
