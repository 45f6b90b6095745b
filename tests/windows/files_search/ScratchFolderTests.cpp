#include "tests/support/ScratchFolder.h"

#include <windows.h>

#include <gtest/gtest.h>

using vorn::test::ScratchFolder;

TEST(ScratchFolder, IsAnotherOneWhereTheFirstCannotBeEmptied)
{
    const ScratchFolder first;
    const std::string name = first.Write("held", "something");
    const HANDLE held = CreateFileA(name.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    {
        const ScratchFolder second; // of the same test and process
        EXPECT_NE(second.Path(), first.Path());
        EXPECT_TRUE(std::filesystem::is_empty(second.Path()));
        EXPECT_EQ(first.Read("held"), "something");
    }
    CloseHandle(held);
    const ScratchFolder third;
    EXPECT_EQ(third.Path(), first.Path());
    EXPECT_TRUE(std::filesystem::is_empty(third.Path()));
}
