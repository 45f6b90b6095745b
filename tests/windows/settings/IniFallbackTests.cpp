#include "config/AppRegData.h"
#include "tests/windows/settings/ScratchSettings.h"

#include <climits>

using namespace vorn::test;

namespace
{
/// Tells how often, and for which name, the table was asked to load.
class CountingRecord : public AppRegData
{
public:
    void InitINITable(const char* name) override
    {
        names.emplace_back(name ? name : "(null)");
        AppRegData::InitINITable(name);
    }

    bool IsLoaded() const
    {
        return m_iniLoaded;
    }

    std::vector<std::string> names;
};

class IniFallback : public ScratchSettings
{
protected:
    IniFallback()
    {
        record.SetModName(App().c_str());
    }

    std::string Text(const char* section, const char* key)
    {
        return record.ReadVornString(section, key, "default").GetString();
    }

    int Number(const char* section, const char* key)
    {
        return record.ReadVornInt(section, key, -77);
    }

    CountingRecord record;
};

std::string ManySections(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
    {
        text += "[A section with a long name " + std::to_string(i) + "]\r\nkey=" + std::to_string(i) + "\r\n";
    }
    return text;
}
} // namespace

TEST_F(IniFallback, AnswersWhereTheRegistryHasNoValue)
{
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(Number("Units", "Speed"), 2);
    EXPECT_EQ(Text("Units", "Speed"), "2");
    EXPECT_EQ(Number("Units", "Distance"), -77);
    EXPECT_EQ(Number("General", "Speed"), -77);
}

TEST_F(IniFallback, YieldsToTheRegistry)
{
    WriteSharedIni("[Units]\r\nSpeed=2\r\nName=ini\r\n");
    Put("Units", "Speed", RawNumber(5));
    Put("Units", "Name", RawText("registry"));
    EXPECT_EQ(Number("Units", "Speed"), 5);
    EXPECT_EQ(Text("Units", "Name"), "registry");
}

TEST_F(IniFallback, YieldsToAnEmptyTextInTheRegistry)
{
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    Put("Units", "Speed", RawText(""));
    EXPECT_EQ(Text("Units", "Speed"), "");
    EXPECT_EQ(Number("Units", "Speed"), -77);
}

TEST_F(IniFallback, YieldsToAValueThatIsNoNumber)
{
    WriteSharedIni("[Units]\r\nSpeed=3\r\nMass=3\r\n");
    Put("Units", "Speed", RawText("x12"));
    Put("Units", "Mass", {REG_BINARY, "12"});
    EXPECT_EQ(Number("Units", "Speed"), -77);
    EXPECT_EQ(Number("Units", "Mass"), -77);
}

TEST_F(IniFallback, AnswersForATextTooLongToRead)
{
    WriteSharedIni("[General]\r\nName=short\r\n");
    Put("General", "Name", RawText(std::string(1024, 'a')));
    EXPECT_EQ(Text("General", "Name"), "short");
}

TEST_F(IniFallback, GivesPlainDecimalValues)
{
    WriteSharedIni("[N]\r\na=-5\r\nb=abc\r\nc=\r\nd=12x\r\ne=99999999999\r\nf=+4\r\ng=-99999999999\r\n");
    EXPECT_EQ(Number("N", "a"), -5);
    EXPECT_EQ(Number("N", "b"), 0);
    EXPECT_EQ(Number("N", "c"), 0);
    EXPECT_EQ(Number("N", "d"), 12);
    EXPECT_EQ(Number("N", "e"), INT_MAX);
    EXPECT_EQ(Number("N", "f"), 4);
    EXPECT_EQ(Number("N", "g"), INT_MIN);
}

TEST_F(IniFallback, KeepsQuotesAndLaterEqualsSigns)
{
    WriteSharedIni("[Links]\r\nhome=\"http://x/?a=1&b=2\"\r\n");
    EXPECT_EQ(Text("Links", "home"), "\"http://x/?a=1&b=2\"");
}

TEST_F(IniFallback, SkipsLinesWithoutEqualsSignAndKeepsTheFirstOfTwo)
{
    WriteSharedIni("[Units]\r\nremark\r\nSpeed=2\r\nSpeed=3\r\n[Units]\r\nSpeed=4\r\n");
    EXPECT_EQ(Text("Units", "Speed"), "2");
    EXPECT_EQ(Text("Units", "remark"), "default");
}

TEST_F(IniFallback, MatchesExactly)
{
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(Text("units", "Speed"), "default");
    EXPECT_EQ(Text("Units", "speed"), "default");
}

TEST_F(IniFallback, PrefersTheUsersCopyAndThenIgnoresTheOtherFile)
{
    WriteSharedIni("[Units]\r\nSpeed=2\r\nMass=11\r\n");
    WriteUserIni("[Units]\r\nSpeed=7\r\n");
    EXPECT_EQ(Number("Units", "Speed"), 7);
    EXPECT_EQ(Number("Units", "Mass"), -77);
}

TEST_F(IniFallback, FindsTheUsersCopyAlone)
{
    WriteUserIni("[Units]\r\nSpeed=7\r\n");
    EXPECT_EQ(Number("Units", "Speed"), 7);
}

TEST_F(IniFallback, LoadsOnTheFirstMissWithTheModuleName)
{
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    Put("Units", "Mass", RawNumber(12));
    EXPECT_EQ(Number("Units", "Mass"), 12);
    EXPECT_TRUE(record.names.empty());
    EXPECT_EQ(Number("Units", "Speed"), 2);
    EXPECT_EQ(record.names, std::vector<std::string>{App()});
}

TEST_F(IniFallback, IsNotLoadedAgain)
{
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(Number("Units", "Speed"), 2);
    EXPECT_TRUE(record.IsLoaded());
    WriteSharedIni("[Units]\r\nSpeed=3\r\nMass=11\r\n");
    EXPECT_EQ(Number("Units", "Speed"), 2);
    EXPECT_EQ(Number("Units", "Mass"), -77);
    EXPECT_EQ(record.names.size(), 1u);
}

TEST_F(IniFallback, IsLookedForAtEveryMissUntilItIsThere)
{
    EXPECT_EQ(Number("Units", "Speed"), -77);
    EXPECT_EQ(Text("Units", "Speed"), "default");
    EXPECT_EQ(record.names.size(), 2u);
    EXPECT_FALSE(record.IsLoaded());
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(Number("Units", "Speed"), 2);
}

TEST_F(IniFallback, FindsTheUsersCopyThatComesLater)
{
    WriteUserIni("[Units]\r\nSpeed=7\r\n");
    DeleteFileA(UserIni().c_str());
    EXPECT_EQ(Number("Units", "Speed"), -77);
    WriteUserIni("[Units]\r\nSpeed=7\r\n");
    EXPECT_EQ(Number("Units", "Speed"), 7);
}

TEST_F(IniFallback, FindsAFileMadeInTheInstantAfterAMiss)
{
    for (int i = 0; i < 40; ++i)
    {
        const std::string folder = i % 2 == 0 ? SharedIni() : UserIni();
        CountingRecord fresh;
        fresh.SetModName(App().c_str());
        WriteUserIni("");
        DeleteFileA(UserIni().c_str()); // both folders changed just now: their times may not change again
        EXPECT_EQ(fresh.ReadVornInt("Units", "Speed", -77), -77);
        WriteFile(folder, "[Units]\r\nSpeed=2\r\n");
        EXPECT_EQ(fresh.ReadVornInt("Units", "Speed", -77), 2) << i;
        DeleteFileA(folder.c_str());
    }
}

TEST_F(IniFallback, FileWithoutSectionsIsLookedAtAgain)
{
    WriteSharedIni("Speed=2\r\n");
    EXPECT_EQ(Number("Units", "Speed"), -77);
    EXPECT_FALSE(record.IsLoaded());
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(Number("Units", "Speed"), 2);
}

TEST_F(IniFallback, ReadsNothingWhenThereAreTooManySections)
{
    WriteSharedIni(ManySections(3000));
    EXPECT_EQ(Number("A section with a long name 7", "key"), -77);
    EXPECT_FALSE(record.IsLoaded());
    WriteSharedIni(ManySections(1000));
    EXPECT_EQ(Number("A section with a long name 7", "key"), 7);
    EXPECT_EQ(Number("A section with a long name 999", "key"), 999);
}

TEST_F(IniFallback, SectionLargerThanTheSystemsBufferGivesWholeEntriesOnly)
{
    std::string lines = "[Big]\r\n";
    for (int i = 0; i < 4000; ++i)
    {
        lines += "key" + std::to_string(i) + "=123456789012345\r\n";
    }
    WriteSharedIni(lines + "[Behind]\r\na=1\r\n");
    EXPECT_EQ(Text("Big", "key0"), "123456789012345");
    int found = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const std::string value = Text("Big", ("key" + std::to_string(i)).c_str());
        EXPECT_TRUE(value == "123456789012345" || value == "default") << i << ' ' << value;
        found += value != "default";
    }
    EXPECT_GT(found, 2500);
    EXPECT_EQ(Number("Behind", "a"), 1);
}

TEST_F(IniFallback, FilesOfAnyBytesGiveEntriesOrNone)
{
    std::string bytes;
    for (int i = 0; i < 20000; ++i)
    {
        bytes += static_cast<char>((i * 7919 + i / 251) & 0xFF);
    }
    WriteSharedIni(bytes);
    EXPECT_EQ(Text("Units", "Speed"), "default");
    WriteSharedIni(bytes + "\r\n[Units]\r\nSpeed=2\r\n" + bytes);
    EXPECT_NO_FATAL_FAILURE(Text("Units", "Speed"));
}

TEST_F(IniFallback, FolderInPlaceOfTheFileIsNoFile)
{
    CreateDirectoryA(SharedIni().c_str(), nullptr);
    EXPECT_EQ(Number("Units", "Speed"), -77);
    RemoveDirectoryA(SharedIni().c_str());
}

TEST_F(IniFallback, DeletingAnEntryLeavesTheTable)
{
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    Put("Units", "Speed", RawNumber(5));
    EXPECT_TRUE(record.WriteVornString("Units", "Speed", nullptr));
    EXPECT_EQ(Number("Units", "Speed"), 2);
}

TEST_F(IniFallback, IsNotWrittenBack)
{
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(Number("Units", "Speed"), 2);
    EXPECT_EQ(Text("Units", "Speed"), "2");
    EXPECT_FALSE(HasKey(""));
}

TEST_F(IniFallback, LoadingByHandTakesAnyName)
{
    record.InitINITable(nullptr);
    record.InitINITable("");
    record.InitINITable("No such application");
    EXPECT_FALSE(record.IsLoaded());
    WriteSharedIni("[Units]\r\nSpeed=2\r\n");
    record.InitINITable(App().c_str());
    EXPECT_TRUE(record.IsLoaded());
}
