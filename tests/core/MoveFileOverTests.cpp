#include "framework/core/FileSystem.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace
{
using vorn::MoveFileOver;

class MovingOver : public testing::Test
{
protected:
    vorn::test::ScratchFolder m_folder;
    std::string m_from = m_folder.Write("from", "new");
    std::string m_to = m_folder.Write("to", "old and longer");
};

TEST_F(MovingOver, ReplacesAFile)
{
    EXPECT_EQ(MoveFileOver(m_from.c_str(), m_to.c_str()), 0);
    EXPECT_EQ(m_folder.Read("to"), "new");
    EXPECT_FALSE(std::filesystem::exists(m_from));
}

TEST_F(MovingOver, GivesANewName)
{
    EXPECT_EQ(MoveFileOver(m_from.c_str(), m_folder.File("other").c_str()), 0);
    EXPECT_EQ(m_folder.Read("other"), "new");
}

TEST_F(MovingOver, FailsWithoutTheFileAndLeavesTheOther)
{
    EXPECT_NE(MoveFileOver(m_folder.File("missing").c_str(), m_to.c_str()), 0);
    EXPECT_EQ(m_folder.Read("to"), "old and longer");
}

TEST_F(MovingOver, DoesNotReplaceAReadOnlyFile)
{
    std::filesystem::permissions(m_to, std::filesystem::perms::owner_read);
    EXPECT_NE(MoveFileOver(m_from.c_str(), m_to.c_str()), 0);
    EXPECT_EQ(m_folder.Read("to"), "old and longer");
    EXPECT_EQ(m_folder.Read("from"), "new");
    std::filesystem::permissions(m_to, std::filesystem::perms::all);
}

TEST_F(MovingOver, DoesNotReplaceAFolder)
{
    std::filesystem::create_directory(m_folder.Path() / "folder");
    EXPECT_NE(MoveFileOver(m_from.c_str(), m_folder.File("folder").c_str()), 0);
    EXPECT_EQ(m_folder.Read("from"), "new");
}
} // namespace
