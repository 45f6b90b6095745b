#include "files/core/CFileFindInExtSet.h"
#include "files/core/FileExists.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace
{

using Names = std::vector<std::string>;

#ifdef _WIN32
constexpr const char* kSeparator = "\\";
#else
constexpr const char* kSeparator = "/";
#endif

class ExtensionSearch : public testing::Test
{
protected:
    std::string Folder() const
    {
        return m_folder.Path().string() + kSeparator;
    }
    std::string Pattern() const
    {
        return Folder() + "*.";
    }
    void Make(const Names& names) const
    {
        for (const std::string& name : names)
        {
            m_folder.Write(name, name);
        }
    }
    BOOL Find(CFileFindInExtSet& finder, const char* set) const
    {
        return finder.FindFile(Pattern().c_str(), set, 0);
    }
    // All names found, in the order of the finds.
    static Names Rest(CFileFindInExtSet& finder)
    {
        Names names;
        for (BOOL goesOn = TRUE; goesOn;)
        {
            goesOn = finder.FindNextFile();
            names.emplace_back(finder.GetFileName());
        }
        return names;
    }
    Names Found(const char* set) const
    {
        CFileFindInExtSet finder;
        return Find(finder, set) ? Rest(finder) : Names();
    }
    // The names found: which file of an extension comes first is the system's choice, so they are put in order within
    // runs of `runs` names.
    static Names InOrder(Names names, const std::vector<int>& runs)
    {
        auto begin = names.begin();
        for (const int run : runs)
        {
            std::sort(begin, begin + run);
            begin += run;
        }
        EXPECT_EQ(begin, names.end());
        return names;
    }

    vorn::test::ScratchFolder m_folder;
};

} // namespace

TEST_F(ExtensionSearch, WalksOneExtensionAfterTheOther)
{
    Make({"a.dbf", "b.dbf", "c.dbt", "d.txt", "e.txt", "f.txt"});
    const Names found = Found("txt|.dbt| dbf ");
    ASSERT_EQ(found.size(), 6u);
    EXPECT_EQ(InOrder(found, {3, 1, 2}), (Names{"d.txt", "e.txt", "f.txt", "c.dbt", "a.dbf", "b.dbf"}));
}

TEST_F(ExtensionSearch, PassesOverExtensionsThatFindNothing)
{
    Make({"a.two", "b.four"});
    EXPECT_EQ(Found("one|two|three|four|five"), (Names{"a.two", "b.four"}));
    EXPECT_EQ(Found("one|two"), Names{"a.two"});
}

TEST_F(ExtensionSearch, StopsAtABlankEntry)
{
    Make({"a.dbf", "b.dbt"});
    EXPECT_EQ(Found("dbf||dbt"), (Names{"a.dbf", "b.dbt"}));
    EXPECT_EQ(Found("dbf| |dbt"), Names{"a.dbf"});
    EXPECT_EQ(Found(" |dbf"), Names());
}

TEST_F(ExtensionSearch, FindsAFileForEveryExtensionThatFitsIt)
{
    Make({"a.dbf"});
    EXPECT_EQ(Found("dbf|DBF|d?f"), (Names{"a.dbf", "a.dbf", "a.dbf"}));
}

TEST_F(ExtensionSearch, OfNothingFails)
{
    Make({"a.dbf"});
    CFileFindInExtSet finder;
    EXPECT_FALSE(Find(finder, "txt|doc"));
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_TRUE(finder.GetFileName().IsEmpty());
    EXPECT_FALSE(Find(finder, ""));
    EXPECT_FALSE(Find(finder, nullptr));
    EXPECT_FALSE(finder.FindFile((Folder() + "nowhere" + kSeparator + "*.").c_str(), "dbf", 0));
    EXPECT_FALSE(finder.FindFile(nullptr, nullptr, 0));
}

TEST_F(ExtensionSearch, WithoutABeginningFindsNothing)
{
    CFileFindInExtSet finder;
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_TRUE(finder.GetFilePath().IsEmpty());
}

TEST_F(ExtensionSearch, KeepsTheLastMatchOfAnExtensionReadableWhileTheNextOneWaits)
{
    Make({"a.dbf", "b.dbt"});
    CFileFindInExtSet finder;
    ASSERT_TRUE(Find(finder, "dbf|dbt"));
    EXPECT_TRUE(finder.FindNextFile());
    EXPECT_EQ(finder.GetFileName(), "a.dbf");
    EXPECT_EQ(finder.GetFileTitle(), "a");
    EXPECT_EQ(finder.GetLength(), 5u);
    EXPECT_FALSE(finder.IsDirectory());
    EXPECT_EQ(std::string(finder.GetRoot()), Folder());
    EXPECT_EQ(std::string(finder.GetFilePath()), Folder() + "a.dbf");
    CTime written;
    EXPECT_TRUE(finder.GetLastWriteTime(written));
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(std::string(finder.GetFilePath()), Folder() + "b.dbt");
}

TEST_F(ExtensionSearch, KeepsTheLastMatchReadableAfterItsEnd)
{
    Make({"a.dbf"});
    CFileFindInExtSet finder;
    ASSERT_TRUE(Find(finder, "dbf|dbt"));
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_FALSE(finder.FindNextFile());
        EXPECT_EQ(finder.GetFileName(), "a.dbf");
    }
}

TEST_F(ExtensionSearch, BeginsAnewWhileAnExtensionWaits)
{
    Make({"a.dbf", "b.dbt", "c.txt"});
    CFileFindInExtSet finder;
    ASSERT_TRUE(Find(finder, "dbf|dbt"));
    EXPECT_TRUE(finder.FindNextFile());
    ASSERT_TRUE(Find(finder, "txt"));
    EXPECT_EQ(Rest(finder), Names{"c.txt"});
    EXPECT_FALSE(Find(finder, "doc"));
    EXPECT_FALSE(finder.FindNextFile());
}

TEST_F(ExtensionSearch, EndsWithCloseAlsoForAnExtensionThatWaits)
{
    Make({"a.dbf", "b.dbt"});
    CFileFindInExtSet finder;
    ASSERT_TRUE(Find(finder, "dbf|dbt"));
    EXPECT_TRUE(finder.FindNextFile());
    finder.Close();
    EXPECT_TRUE(finder.GetFileName().IsEmpty());
    EXPECT_TRUE(finder.GetRoot().IsEmpty());
    EXPECT_FALSE(finder.FindNextFile());
    finder.Close();
    ASSERT_TRUE(Find(finder, "dbt"));
    EXPECT_EQ(Rest(finder), Names{"b.dbt"});
}

TEST_F(ExtensionSearch, EndsWithItsObjectAlsoForAnExtensionThatWaits)
{
    Make({"a.dbf", "b.dbt"});
    const auto finder = std::make_unique<CFileFindInExtSet>();
    ASSERT_TRUE(Find(*finder, "dbf|dbt"));
    EXPECT_TRUE(finder->FindNextFile());
}

TEST_F(ExtensionSearch, CopiesItsArguments)
{
    Make({"a.dbf", "b.dbt"});
    std::string pattern = Pattern();
    std::string set = "dbf|dbt";
    CFileFindInExtSet finder;
    ASSERT_TRUE(finder.FindFile(pattern.c_str(), set.c_str(), 0));
    pattern.assign(pattern.size(), 'x');
    set.assign(set.size(), 'x');
    EXPECT_EQ(Rest(finder), (Names{"a.dbf", "b.dbt"}));
}

TEST_F(ExtensionSearch, WithoutASetIsThePlainOne)
{
    Make({"a.dbf", "b.dbt"});
    CFileFindInExtSet finder;
    ASSERT_TRUE(Find(finder, "dbf|dbt"));
    EXPECT_TRUE(finder.FindNextFile());
    ASSERT_TRUE(finder.FindFile((Folder() + "a.*").c_str()));
    EXPECT_EQ(Rest(finder), Names{"a.dbf"});
}

TEST_F(ExtensionSearch, IsADynamicClassOfTheFramework)
{
    EXPECT_STREQ(CFileFindInExtSet::GetThisClass()->m_lpszClassName, "CFileFindInExtSet");
    const std::unique_ptr<CObject> made(CFileFindInExtSet::GetThisClass()->CreateObject());
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CFileFindInExtSet)));
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CFileFind)));
    EXPECT_FALSE(CFileFind().IsKindOf(RUNTIME_CLASS(CFileFindInExtSet)));
}

TEST_F(ExtensionSearch, CanBeReplacedInDerivedClasses)
{
    using Begin = BOOL (CFileFindInExtSet::*)(const char*, const char*, DWORD);
    EXPECT_GE(vorn::test::SlotOf(static_cast<Begin>(&CFileFindInExtSet::FindFile)), 0);
    EXPECT_GE(vorn::test::SlotOf(&CFileFindInExtSet::FindNextFile), 0);
}

TEST_F(ExtensionSearch, IsSteppedThroughTheFrameworksClass)
{
    Make({"a.dbf", "b.dbt"});
    CFileFindInExtSet finder;
    ASSERT_TRUE(Find(finder, "dbf|dbt"));
    CFileFind& plain = finder;
    EXPECT_TRUE(plain.FindNextFile());
    EXPECT_FALSE(plain.FindNextFile());
    EXPECT_EQ(plain.GetFileName(), "b.dbt");
}

TEST_F(ExtensionSearch, GetExt_ReadsTheSetOfTheSearch)
{
    struct Opened : CFileFindInExtSet
    {
        using CFileFindInExtSet::GetExt;
    };
    Opened finder;
    EXPECT_EQ(finder.GetExt(0), "");
    Find(finder, ".dbf | dbt");
    EXPECT_EQ(finder.GetExt(0), "dbf");
    EXPECT_EQ(finder.GetExt(1), "dbt");
    EXPECT_EQ(finder.GetExt(2), "");
    EXPECT_EQ(finder.GetExt(-1), "");
    Find(finder, nullptr);
    EXPECT_EQ(finder.GetExt(0), "");
}

TEST_F(ExtensionSearch, FileExists_ForFilesFoldersAndWildcards)
{
    Make({"a.dbf"});
    std::filesystem::create_directory(m_folder.Path() / "inner");
    EXPECT_TRUE(FileExists((Folder() + "a.dbf").c_str()));
    EXPECT_TRUE(FileExists((Folder() + "inner").c_str()));
    EXPECT_TRUE(FileExists((Folder() + "*.dbf").c_str()));
    EXPECT_TRUE(FileExists((Folder() + "?.dbf").c_str()));
    EXPECT_FALSE(FileExists((Folder() + "b.dbf").c_str()));
    EXPECT_FALSE(FileExists((Folder() + "*.txt").c_str()));
    EXPECT_FALSE(FileExists((Folder() + "nowhere" + kSeparator + "a.dbf").c_str()));
}

TEST_F(ExtensionSearch, FileExists_NotForNothingOrAnEndingSeparator)
{
    EXPECT_FALSE(FileExists(nullptr));
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FileExists(Folder().c_str()));
    EXPECT_FALSE(FileExists("C:\\"));
}
