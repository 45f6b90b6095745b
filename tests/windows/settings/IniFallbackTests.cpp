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

    bool isLoaded() const
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
        record.SetModName(app().c_str());
    }

    std::string text(const char* section, const char* key)
    {
        return record.ReadVornString(section, key, "default").GetString();
    }

    int number(const char* section, const char* key)
    {
        return record.ReadVornInt(section, key, -77);
    }

    CountingRecord record;
};

std::string manySections(int count)
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
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(number("Units", "Speed"), 2);
    EXPECT_EQ(text("Units", "Speed"), "2");
    EXPECT_EQ(number("Units", "Distance"), -77);
    EXPECT_EQ(number("General", "Speed"), -77);
}

TEST_F(IniFallback, YieldsToTheRegistry)
{
    writeSharedIni("[Units]\r\nSpeed=2\r\nName=ini\r\n");
    put("Units", "Speed", rawNumber(5));
    put("Units", "Name", rawText("registry"));
    EXPECT_EQ(number("Units", "Speed"), 5);
    EXPECT_EQ(text("Units", "Name"), "registry");
}

TEST_F(IniFallback, YieldsToAnEmptyTextInTheRegistry)
{
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    put("Units", "Speed", rawText(""));
    EXPECT_EQ(text("Units", "Speed"), "");
    EXPECT_EQ(number("Units", "Speed"), -77);
}

TEST_F(IniFallback, YieldsToAValueThatIsNoNumber)
{
    writeSharedIni("[Units]\r\nSpeed=3\r\nMass=3\r\n");
    put("Units", "Speed", rawText("x12"));
    put("Units", "Mass", {REG_BINARY, "12"});
    EXPECT_EQ(number("Units", "Speed"), -77);
    EXPECT_EQ(number("Units", "Mass"), -77);
}

TEST_F(IniFallback, AnswersForATextTooLongToRead)
{
    writeSharedIni("[General]\r\nName=short\r\n");
    put("General", "Name", rawText(std::string(1024, 'a')));
    EXPECT_EQ(text("General", "Name"), "short");
}

TEST_F(IniFallback, GivesPlainDecimalValues)
{
    writeSharedIni("[N]\r\na=-5\r\nb=abc\r\nc=\r\nd=12x\r\ne=99999999999\r\nf=+4\r\ng=-99999999999\r\n");
    EXPECT_EQ(number("N", "a"), -5);
    EXPECT_EQ(number("N", "b"), 0);
    EXPECT_EQ(number("N", "c"), 0);
    EXPECT_EQ(number("N", "d"), 12);
    EXPECT_EQ(number("N", "e"), INT_MAX);
    EXPECT_EQ(number("N", "f"), 4);
    EXPECT_EQ(number("N", "g"), INT_MIN);
}

TEST_F(IniFallback, KeepsQuotesAndLaterEqualsSigns)
{
    writeSharedIni("[Links]\r\nhome=\"http://x/?a=1&b=2\"\r\n");
    EXPECT_EQ(text("Links", "home"), "\"http://x/?a=1&b=2\"");
}

TEST_F(IniFallback, SkipsLinesWithoutEqualsSignAndKeepsTheFirstOfTwo)
{
    writeSharedIni("[Units]\r\nremark\r\nSpeed=2\r\nSpeed=3\r\n[Units]\r\nSpeed=4\r\n");
    EXPECT_EQ(text("Units", "Speed"), "2");
    EXPECT_EQ(text("Units", "remark"), "default");
}

TEST_F(IniFallback, MatchesExactly)
{
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(text("units", "Speed"), "default");
    EXPECT_EQ(text("Units", "speed"), "default");
}

TEST_F(IniFallback, PrefersTheUsersCopyAndThenIgnoresTheOtherFile)
{
    writeSharedIni("[Units]\r\nSpeed=2\r\nMass=11\r\n");
    writeUserIni("[Units]\r\nSpeed=7\r\n");
    EXPECT_EQ(number("Units", "Speed"), 7);
    EXPECT_EQ(number("Units", "Mass"), -77);
}

TEST_F(IniFallback, FindsTheUsersCopyAlone)
{
    writeUserIni("[Units]\r\nSpeed=7\r\n");
    EXPECT_EQ(number("Units", "Speed"), 7);
}

TEST_F(IniFallback, LoadsOnTheFirstMissWithTheModuleName)
{
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    put("Units", "Mass", rawNumber(12));
    EXPECT_EQ(number("Units", "Mass"), 12);
    EXPECT_TRUE(record.names.empty());
    EXPECT_EQ(number("Units", "Speed"), 2);
    EXPECT_EQ(record.names, std::vector<std::string>{app()});
}

TEST_F(IniFallback, IsNotLoadedAgain)
{
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(number("Units", "Speed"), 2);
    EXPECT_TRUE(record.isLoaded());
    writeSharedIni("[Units]\r\nSpeed=3\r\nMass=11\r\n");
    EXPECT_EQ(number("Units", "Speed"), 2);
    EXPECT_EQ(number("Units", "Mass"), -77);
    EXPECT_EQ(record.names.size(), 1u);
}

TEST_F(IniFallback, IsLookedForAtEveryMissUntilItIsThere)
{
    EXPECT_EQ(number("Units", "Speed"), -77);
    EXPECT_EQ(text("Units", "Speed"), "default");
    EXPECT_EQ(record.names.size(), 2u);
    EXPECT_FALSE(record.isLoaded());
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(number("Units", "Speed"), 2);
}

TEST_F(IniFallback, FindsTheUsersCopyThatComesLater)
{
    writeUserIni("[Units]\r\nSpeed=7\r\n");
    DeleteFileA(userIni().c_str());
    EXPECT_EQ(number("Units", "Speed"), -77);
    writeUserIni("[Units]\r\nSpeed=7\r\n");
    EXPECT_EQ(number("Units", "Speed"), 7);
}

TEST_F(IniFallback, FindsAFileMadeInTheInstantAfterAMiss)
{
    for (int i = 0; i < 40; ++i)
    {
        const std::string folder = i % 2 == 0 ? sharedIni() : userIni();
        CountingRecord fresh;
        fresh.SetModName(app().c_str());
        writeUserIni("");
        DeleteFileA(userIni().c_str()); // both folders changed just now: their times may not change again
        EXPECT_EQ(fresh.ReadVornInt("Units", "Speed", -77), -77);
        writeFile(folder, "[Units]\r\nSpeed=2\r\n");
        EXPECT_EQ(fresh.ReadVornInt("Units", "Speed", -77), 2) << i;
        DeleteFileA(folder.c_str());
    }
}

TEST_F(IniFallback, FileWithoutSectionsIsLookedAtAgain)
{
    writeSharedIni("Speed=2\r\n");
    EXPECT_EQ(number("Units", "Speed"), -77);
    EXPECT_FALSE(record.isLoaded());
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(number("Units", "Speed"), 2);
}

TEST_F(IniFallback, ReadsNothingWhenThereAreTooManySections)
{
    writeSharedIni(manySections(3000));
    EXPECT_EQ(number("A section with a long name 7", "key"), -77);
    EXPECT_FALSE(record.isLoaded());
    writeSharedIni(manySections(1000));
    EXPECT_EQ(number("A section with a long name 7", "key"), 7);
    EXPECT_EQ(number("A section with a long name 999", "key"), 999);
}

TEST_F(IniFallback, SectionLargerThanTheSystemsBufferGivesWholeEntriesOnly)
{
    std::string lines = "[Big]\r\n";
    for (int i = 0; i < 4000; ++i)
    {
        lines += "key" + std::to_string(i) + "=123456789012345\r\n";
    }
    writeSharedIni(lines + "[Behind]\r\na=1\r\n");
    EXPECT_EQ(text("Big", "key0"), "123456789012345");
    int found = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const std::string value = text("Big", ("key" + std::to_string(i)).c_str());
        EXPECT_TRUE(value == "123456789012345" || value == "default") << i << ' ' << value;
        found += value != "default";
    }
    EXPECT_GT(found, 2500);
    EXPECT_EQ(number("Behind", "a"), 1);
}

TEST_F(IniFallback, FilesOfAnyBytesGiveEntriesOrNone)
{
    std::string bytes;
    for (int i = 0; i < 20000; ++i)
    {
        bytes += static_cast<char>((i * 7919 + i / 251) & 0xFF);
    }
    writeSharedIni(bytes);
    EXPECT_EQ(text("Units", "Speed"), "default");
    writeSharedIni(bytes + "\r\n[Units]\r\nSpeed=2\r\n" + bytes);
    EXPECT_NO_FATAL_FAILURE(text("Units", "Speed"));
}

TEST_F(IniFallback, FolderInPlaceOfTheFileIsNoFile)
{
    CreateDirectoryA(sharedIni().c_str(), nullptr);
    EXPECT_EQ(number("Units", "Speed"), -77);
    RemoveDirectoryA(sharedIni().c_str());
}

TEST_F(IniFallback, DeletingAnEntryLeavesTheTable)
{
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    put("Units", "Speed", rawNumber(5));
    EXPECT_TRUE(record.WriteVornString("Units", "Speed", nullptr));
    EXPECT_EQ(number("Units", "Speed"), 2);
}

TEST_F(IniFallback, IsNotWrittenBack)
{
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    EXPECT_EQ(number("Units", "Speed"), 2);
    EXPECT_EQ(text("Units", "Speed"), "2");
    EXPECT_FALSE(hasKey(""));
}

TEST_F(IniFallback, LoadingByHandTakesAnyName)
{
    record.InitINITable(nullptr);
    record.InitINITable("");
    record.InitINITable("No such application");
    EXPECT_FALSE(record.isLoaded());
    writeSharedIni("[Units]\r\nSpeed=2\r\n");
    record.InitINITable(app().c_str());
    EXPECT_TRUE(record.isLoaded());
}
