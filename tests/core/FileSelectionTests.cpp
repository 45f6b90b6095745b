#include "framework/core/FileSelection.h"

#include <gtest/gtest.h>

#include <vector>

using vorn::FileSelection;

namespace
{
template <std::size_t N>
std::vector<std::string> PathsIn(const char (&buffer)[N])
{
    const FileSelection selection({buffer, N});
    std::vector<std::string> paths;
    for (std::size_t at = selection.First(); at != FileSelection::kNone;)
        paths.push_back(selection.Next(at));
    return paths;
}

using Paths = std::vector<std::string>;
} // namespace

TEST(FileSelection, OnePathIsWhole)
{
    EXPECT_EQ(PathsIn("C:\\charts\\a.dbf\0"), Paths{"C:\\charts\\a.dbf"});
}

TEST(FileSelection, SeveralNamesFollowTheirFolder)
{
    EXPECT_EQ(PathsIn("C:\\charts\0a.dbf\0b.dbf\0"), (Paths{"C:\\charts\\a.dbf", "C:\\charts\\b.dbf"}));
    EXPECT_EQ(PathsIn("C:\\\0a.dbf\0b.dbf\0"), (Paths{"C:\\a.dbf", "C:\\b.dbf"}));
}

TEST(FileSelection, EmptyBufferHasNoPaths)
{
    EXPECT_EQ(PathsIn("\0"), Paths{});
    EXPECT_EQ(FileSelection({}).First(), FileSelection::kNone);
    std::size_t none = FileSelection::kNone;
    EXPECT_EQ(FileSelection({}).Next(none), "");
}

TEST(FileSelection, BufferWithoutEndMarksIsReadToItsEnd)
{
    const char buffer[] = {'C', ':', '\0', 'a', '\0', 'b'};
    const FileSelection selection(buffer);
    std::size_t at = selection.First();
    EXPECT_EQ(selection.Next(at), "C:\\a");
    EXPECT_EQ(selection.Next(at), "C:\\b");
    EXPECT_EQ(at, FileSelection::kNone);
}

TEST(FileFilter, BarsBecomeZerosAndTheListIsEndedTwice)
{
    EXPECT_EQ(vorn::FileFilter("All|*.*||"), std::string("All\0*.*\0\0\0\0", 11));
    EXPECT_EQ(vorn::FileFilter("All|*.*"), std::string("All\0*.*\0\0", 9));
}

TEST(FilePathParts, NameTitleExtensionAndFolder)
{
    const std::string_view path = "C:\\a.b\\c.tar.gz";
    EXPECT_EQ(vorn::FileNameOf(path), "c.tar.gz");
    EXPECT_EQ(vorn::ExtensionOf(path), "gz");
    EXPECT_EQ(vorn::TitleOf(path), "c.tar");
    EXPECT_EQ(vorn::FolderOf(path), "C:\\a.b");
}

TEST(FilePathParts, PointInAFolderIsNoExtension)
{
    EXPECT_EQ(vorn::ExtensionOf("C:\\a.b\\c"), "");
    EXPECT_EQ(vorn::TitleOf("C:\\a.b\\c"), "c");
}

TEST(FilePathParts, RootKeepsItsBackslash)
{
    EXPECT_EQ(vorn::FolderOf("C:\\x.txt"), "C:\\");
    EXPECT_EQ(vorn::FolderOf("x.txt"), "");
    EXPECT_EQ(vorn::FolderOf("C:x.txt"), "C:");
}
