#include "config/AppRegData.h"
#include "tests/windows/settings/ScratchSettings.h"

using namespace vorn::test;

namespace
{
class RegistryWrite : public ScratchSettings
{
protected:
    RegistryWrite()
    {
        record.SetModName(App().c_str());
    }

    AppRegData record;
};
} // namespace

TEST_F(RegistryWrite, StoresTextWithItsTerminatingZero)
{
    EXPECT_EQ(record.WriteVornString("General", "Name", "Denver"), TRUE);
    EXPECT_EQ(Get("General", "Name"), RawText("Denver"));
    EXPECT_EQ(record.WriteVornString("General", "Name", ""), TRUE);
    EXPECT_EQ(Get("General", "Name"), RawText(""));
}

TEST_F(RegistryWrite, StoresNumbersAsThirtyTwoBits)
{
    EXPECT_EQ(record.WriteVornInt("Units", "Speed", 5), TRUE);
    EXPECT_EQ(Get("Units", "Speed"), RawNumber(5));
    EXPECT_EQ(record.WriteVornInt("Units", "Speed", -1), TRUE);
    EXPECT_EQ(Get("Units", "Speed"), RawNumber(0xFFFFFFFF));
    EXPECT_EQ(record.ReadVornInt("Units", "Speed", 0), -1);
}

TEST_F(RegistryWrite, StoresNumbersGivenAsText)
{
    EXPECT_EQ(record.WriteVornStrInt("Units", "Speed", "0012"), TRUE);
    EXPECT_EQ(Get("Units", "Speed"), RawNumber(12));
    EXPECT_EQ(record.WriteVornStrInt("Units", "Speed", ""), TRUE);
    EXPECT_EQ(Get("Units", "Speed"), RawNumber(0));
    EXPECT_EQ(record.WriteVornStrInt("Units", "Speed", "4294967295"), TRUE);
    EXPECT_EQ(Get("Units", "Speed"), RawNumber(0xFFFFFFFF));
}

TEST_F(RegistryWrite, RefusesTextsThatAreNoNumbersAndMakesNoKey)
{
    for (const char* text : {"-5", "+5", " 5", "5 ", "x", "4294967296"})
    {
        EXPECT_EQ(record.WriteVornStrInt("Units", "Speed", text), FALSE) << text;
    }
    EXPECT_FALSE(HasKey("Units"));
    EXPECT_FALSE(HasKey(""));
}

TEST_F(RegistryWrite, RefusedNumberLeavesTheOldValue)
{
    record.WriteVornInt("Units", "Speed", 6);
    EXPECT_EQ(record.WriteVornStrInt("Units", "Speed", "-5"), FALSE);
    EXPECT_EQ(Get("Units", "Speed"), RawNumber(6));
}

TEST_F(RegistryWrite, ReplacesAValueOfAnotherType)
{
    Put("Units", "Speed", RawText("six"));
    EXPECT_TRUE(record.WriteVornInt("Units", "Speed", 6));
    EXPECT_EQ(Get("Units", "Speed"), RawNumber(6));
}

TEST_F(RegistryWrite, StoresTextsOfAnyLengthAndByte)
{
    std::string text(3000, '\xE9');
    EXPECT_TRUE(record.WriteVornString("General", "Long", text.c_str()));
    EXPECT_EQ(Get("General", "Long"), RawText(text));
}

TEST_F(RegistryWrite, NullSectionAndNullKeyStoreNothing)
{
    EXPECT_EQ(record.WriteVornString(nullptr, "Name", "x"), FALSE);
    EXPECT_EQ(record.WriteVornInt(nullptr, "Name", 1), FALSE);
    EXPECT_EQ(record.WriteVornInt("General", nullptr, 1), FALSE);
    EXPECT_EQ(record.WriteVornStrInt(nullptr, "Name", "1"), FALSE);
    EXPECT_FALSE(HasKey(""));
}

TEST_F(RegistryWrite, FailsForNamesThatTheRegistryCannotHold)
{
    const std::string endless(20000, 'n');
    EXPECT_EQ(record.WriteVornString(endless.c_str(), "Name", "x"), FALSE);
    EXPECT_EQ(record.WriteVornInt("General", endless.c_str(), 1), FALSE);
}

TEST_F(RegistryWrite, WorksUnderTheApplicationsOwnKeyWithAnEmptySection)
{
    EXPECT_TRUE(record.WriteVornString("", "Version", "3.3"));
    EXPECT_EQ(Get("", "Version"), RawText("3.3"));
}

TEST_F(RegistryWrite, NullValueDeletesTheEntry)
{
    Put("General", "Name", RawText("Denver"));
    Put("General", "Level", RawNumber(1));
    Put("General", "Kept", RawNumber(2));
    EXPECT_EQ(record.WriteVornString("General", "Name", nullptr), TRUE);
    EXPECT_EQ(record.WriteVornStrInt("General", "Level", nullptr), TRUE);
    EXPECT_EQ(Get("General", "Name"), std::nullopt);
    EXPECT_EQ(Get("General", "Level"), std::nullopt);
    EXPECT_EQ(Get("General", "Kept"), RawNumber(2));
}

TEST_F(RegistryWrite, NullKeyDeletesTheSection)
{
    Put("General", "Name", RawText("Denver"));
    Put("Units", "Speed", RawNumber(1));
    EXPECT_EQ(record.WriteVornString("General", nullptr, "ignored"), TRUE);
    EXPECT_FALSE(HasKey("General"));
    EXPECT_TRUE(HasKey("Units"));
    EXPECT_EQ(record.WriteVornStrInt("Units", nullptr, nullptr), TRUE);
    EXPECT_FALSE(HasKey("Units"));
}

TEST_F(RegistryWrite, DeletingTheUnknownFailsAndMakesNothing)
{
    EXPECT_EQ(record.WriteVornString("General", "Name", nullptr), FALSE);
    EXPECT_EQ(record.WriteVornString("General", nullptr, nullptr), FALSE);
    EXPECT_FALSE(HasKey(""));
    Put("General", "Other", RawNumber(1));
    EXPECT_EQ(record.WriteVornString("General", "Name", nullptr), FALSE);
    EXPECT_EQ(record.WriteVornString("Units", nullptr, nullptr), FALSE);
    EXPECT_FALSE(HasKey("Units"));
}

TEST_F(RegistryWrite, NeverDeletesTheApplicationsWholeKey)
{
    Put("General", "Name", RawText("Denver"));
    for (const char* section : {static_cast<const char*>(nullptr), "", "\\", "\\\\"})
    {
        EXPECT_EQ(record.WriteVornString(section, nullptr, nullptr), FALSE);
        EXPECT_EQ(record.WriteVornStrInt(section, nullptr, nullptr), FALSE);
    }
    EXPECT_EQ(record.WriteVornString(nullptr, "Name", nullptr), FALSE);
    EXPECT_EQ(Get("General", "Name"), RawText("Denver"));
}

TEST_F(RegistryWrite, DeletesAnEntryOfTheApplicationsOwnKey)
{
    Put("", "Version", RawText("3.3"));
    EXPECT_EQ(record.WriteVornString("", "Version", nullptr), TRUE);
    EXPECT_EQ(Get("", "Version"), std::nullopt);
    EXPECT_TRUE(HasKey(""));
}

TEST_F(RegistryWrite, SectionWithKeysBelowItIsNotDeleted)
{
    Put("Views\\World", "Projection", RawNumber(2));
    EXPECT_EQ(record.WriteVornString("Views", nullptr, nullptr), FALSE);
    EXPECT_EQ(Get("Views\\World", "Projection"), RawNumber(2));
    EXPECT_EQ(record.WriteVornString("Views\\World", nullptr, nullptr), TRUE);
    EXPECT_FALSE(HasKey("Views\\World"));
    EXPECT_TRUE(HasKey("Views"));
}
