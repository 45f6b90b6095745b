#include "config/core/PathCompose.h"

#include <gtest/gtest.h>

#include <vector>

using namespace vorn;

namespace
{

const ComposeFacts kPlanner = {"Planner", "C:\\ProgramData\\", false};
const ComposeFacts kNetworkPlanner = {"Planner", "N:\\Vornwald\\", true};

std::string Composed(std::string_view base, int beneath, std::optional<std::string_view> subfolder = std::nullopt,
                     const ComposeFacts& facts = kPlanner)
{
    return ComposedFolder(base, static_cast<VornPath>(beneath), facts, subfolder);
}

} // namespace

TEST(ComposedFolder, AppendsThePartThatIsAskedFor)
{
    EXPECT_EQ(Composed("B:\\", 0), "B:\\Vornwald\\");
    EXPECT_EQ(Composed("B:\\", 1), "B:\\Vornwald\\Planner\\");
    EXPECT_EQ(Composed("B:\\", 2), "B:\\Vornwald\\Common\\");
    EXPECT_EQ(Composed("B:\\", 3), "C:\\ProgramData\\Vornwald\\Planner\\");
    EXPECT_EQ(Composed("B:\\", 4), "B:\\");
    EXPECT_EQ(Composed("B:\\", 99), "B:\\");
    EXPECT_EQ(Composed("B:\\", -1), "B:\\");
}

TEST(ComposedFolder, EndsInABackslashOnlyWithASubfolder)
{
    EXPECT_EQ(Composed("B:\\data", 4), "B:\\data");
    EXPECT_EQ(Composed("B:\\data", 4, ""), "B:\\data\\");
    EXPECT_EQ(Composed("B:\\", 4, "Downloads"), "B:\\Downloads\\");
    EXPECT_EQ(Composed("B:\\", 0, "x\\"), "B:\\Vornwald\\x\\");
    EXPECT_EQ(Composed("", 4, ""), "\\");
}

TEST(ComposedFolder, InTheNetworkLosesTheFamilyFolders)
{
    EXPECT_EQ(Composed("N:\\Vornwald\\", 1, std::nullopt, kNetworkPlanner), "N:\\Planner\\");
    EXPECT_EQ(Composed("N:\\", 2, std::nullopt, kNetworkPlanner), "N:\\Common\\");
    EXPECT_EQ(Composed("ignored", 3, std::nullopt, kNetworkPlanner), "N:\\Planner\\");
    EXPECT_EQ(Composed("N:\\Vornwald\\a\\Vornwald\\Vornwald\\", 4, std::nullopt, kNetworkPlanner), "N:\\a\\");
}

TEST(ComposedFolder, InTheNetworkKeepsTheFamilyFolderOfTheSubfolder)
{
    EXPECT_EQ(Composed("N:\\", 0, "Vornwald\\x", kNetworkPlanner), "N:\\Vornwald\\x\\");
}

TEST(RowOfKnownPath, IsOneFurtherForTheFirstSeven)
{
    for (int known = 0; known <= 6; ++known)
        EXPECT_EQ(RowOfKnownPath(static_cast<KnownPath>(known)), static_cast<DefinedPath>(known + 1)) << known;
    for (const int known : {-1, 7, 8, 1000})
        EXPECT_EQ(RowOfKnownPath(static_cast<KnownPath>(known)), std::nullopt) << known;
}

TEST(InstallationRoot, KeepsTheDoubledSeparator)
{
    EXPECT_EQ(InstallationRoot("C:\\Program Files\\Vornwald\\Planner\\", "Planner"), "C:\\Program Files\\\\");
    EXPECT_EQ(InstallationRoot("C:\\Vornwald\\Planner\\Vornwald\\Planner\\", "Planner"), "C:\\\\\\");
    EXPECT_EQ(InstallationRoot("C:\\Apps\\Planner\\", "Planner"), "C:\\Apps\\Planner\\");
    EXPECT_EQ(InstallationRoot("C:\\Vornwald\\x\\", ""), "C:\\x\\");
}

TEST(WithBackslash, AddsOneOnlyWhereNoneStands)
{
    EXPECT_EQ(WithBackslash("C:\\a"), "C:\\a\\");
    EXPECT_EQ(WithBackslash("C:\\a\\"), "C:\\a\\");
    EXPECT_EQ(WithBackslash("Q:/a/"), "Q:/a/\\");
    EXPECT_EQ(WithBackslash(""), "\\");
    EXPECT_EQ(WithBackslash("\\"), "\\");
}

TEST(Without, RemovesInOnePassFromTheLeft)
{
    EXPECT_EQ(Without("abcabc", "b"), "acac");
    EXPECT_EQ(Without("aabb", "ab"), "ab");
    EXPECT_EQ(Without("aaa", "aa"), "a");
    EXPECT_EQ(Without("abc", ""), "abc");
    EXPECT_EQ(Without("", "a"), "");
}

TEST(LastFolderName, IsTheLastPartOfAFolder)
{
    EXPECT_EQ(LastFolderName("C:\\Vornwald\\Planner\\"), "Planner");
    EXPECT_EQ(LastFolderName("C:\\"), "C:");
    EXPECT_EQ(LastFolderName("Planner\\"), "Planner");
    EXPECT_EQ(LastFolderName("\\"), "");
    EXPECT_EQ(LastFolderName(""), "");
    EXPECT_EQ(LastFolderName("a\\\\"), "");
}

TEST(UpToLastBackslash, KeepsTheBackslash)
{
    EXPECT_EQ(UpToLastBackslash("C:\\a\\b.exe"), "C:\\a\\");
    EXPECT_EQ(UpToLastBackslash("C:\\users\\Public\\Documents"), "C:\\users\\Public\\");
    EXPECT_EQ(UpToLastBackslash("b.exe"), "");
    EXPECT_EQ(UpToLastBackslash(""), "");
}

TEST(RootOfHome, EndsBeforeTheFamilyFolder)
{
    EXPECT_EQ(RootOfHome("C:\\Program Files\\Vornwald\\Planner\\"), "C:\\Program Files\\");
    EXPECT_EQ(RootOfHome("Vornwald\\Planner\\"), "");
    EXPECT_EQ(RootOfHome("C:\\a\\Vornwald\\b\\Vornwald\\c\\"), "C:\\a\\");
    EXPECT_EQ(RootOfHome("C:\\Apps\\Planner\\"), "C:\\Apps\\Planner\\") << "the whole, where there is no such folder";
    EXPECT_EQ(RootOfHome("C:\\VornwaldX\\"), "C:\\VornwaldX\\");
}

TEST(ServerFolders, AreTheInstallationFolder)
{
    const ServerFolders folders = ServerFoldersOf("S:\\Apps", "");
    EXPECT_EQ(folders.home, "S:\\Apps\\");
    EXPECT_EQ(folders.root, "S:\\Apps\\");
}

TEST(ServerFolders, GoOnWithTheApplicationGiven)
{
    const ServerFolders folders = ServerFoldersOf("S:\\Apps\\Vornwald\\", "Planner");
    EXPECT_EQ(folders.home, "S:\\Apps\\Vornwald\\Planner\\");
    EXPECT_EQ(folders.root, "S:\\Apps\\");
}

TEST(ServerFolders, LookForTheFamilyWithoutItsBackslashBehindTheFirstCharacter)
{
    EXPECT_EQ(ServerFoldersOf("S:\\VornwaldSuite", "").root, "S:\\");
    EXPECT_EQ(ServerFoldersOf("Vornwald\\x", "").root, "Vornwald\\x\\");
}

TEST(ServerFolders, OfAnEmptyInstallationBecomeTheDriveRoot)
{
    EXPECT_EQ(ServerFoldersOf("", "Planner").home, "\\Planner\\");
    EXPECT_EQ(ServerFoldersOf("", "").home, "\\");
    EXPECT_EQ(ServerFoldersOf("\\", "").root, "\\");
}

TEST(ServerDataFolder, LosesEveryThemesPart)
{
    EXPECT_EQ(ServerDataFolder("N:\\Share\\VornView3\\Themes"), "N:\\Share\\");
    EXPECT_EQ(ServerDataFolder("N:\\VornView3\\Themes\\VornView3\\Themes\\"), "N:\\\\\\");
    EXPECT_EQ(ServerDataFolder("N:\\Share"), "N:\\Share");
}

TEST(AirportDiagrams, TakeASettingAsItStands)
{
    const auto never = [](const std::string&) -> bool
    {
        ADD_FAILURE() << "no search with a setting";
        return true;
    };
    EXPECT_EQ(ChooseDiagramFolder("Q:/x", "A:\\", "B:\\", never), "Q:/x");
}

TEST(AirportDiagrams, ChooseTheFirstFolderWhenItHoldsFiles)
{
    std::string searched;
    const auto holds = [&searched](const std::string& folder)
    {
        searched = folder;
        return true;
    };
    EXPECT_EQ(ChooseDiagramFolder("", "A:\\a", "B:\\", holds), "A:\\a\\");
    EXPECT_EQ(searched, "A:\\a\\");
    EXPECT_EQ(ChooseDiagramFolder("", "A:\\a\\", "B:\\b",
                                  [](const std::string&)
                                  {
                                      return false;
                                  }),
              "B:\\b");
}

TEST(AirportDiagrams, CountFilesByTheirLastFourCharacters)
{
    for (const char* name : {"a.dat", "A.DAT", "x.y.Dat", ".dat"})
        EXPECT_TRUE(EndsInDat(name)) << name;
    for (const char* name : {"", "dat", "kbos.data", "a.dat ", "a.da", "adat"})
        EXPECT_FALSE(EndsInDat(name)) << name;
}
