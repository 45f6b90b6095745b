#include "config/AppRegData.h"
#include "tests/windows/settings/ScratchSettings.h"

using namespace vorn::test;

namespace
{
/// What a record sees while another program (raw calls here) works on the same keys.
class OpenKey : public ScratchSettings
{
protected:
    OpenKey()
    {
        record.SetModName(app().c_str());
    }

    int level()
    {
        return record.ReadVornInt("General", "Level", -77);
    }

    AppRegData record;
};

/// Number of the first handle that is free. Handles are given out from the lowest number on, so it tells how many are
/// in use.
std::size_t firstFreeHandle()
{
    const HANDLE event = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    CloseHandle(event);
    return reinterpret_cast<std::size_t>(event) / 4;
}
} // namespace

TEST_F(OpenKey, SeesEveryWriteOfAnotherProgram)
{
    for (DWORD i = 1; i <= 20; ++i)
    {
        put("General", "Level", rawNumber(i));
        EXPECT_EQ(level(), static_cast<int>(i));
    }
    put("General", "Level", rawText("21"));
    EXPECT_EQ(level(), 21);
}

TEST_F(OpenKey, SeesAValueDeletedByAnotherProgram)
{
    put("General", "Level", rawNumber(1));
    EXPECT_EQ(level(), 1);
    HKEY key = nullptr;
    RegOpenKeyExA(HKEY_CURRENT_USER, ("Software\\Vornwald\\" + app() + "\\General").c_str(), 0, KEY_ALL_ACCESS, &key);
    EXPECT_EQ(RegDeleteValueA(key, "Level"), ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(level(), -77);
}

TEST_F(OpenKey, SurvivesTheDeletionOfItsKey)
{
    put("General", "Level", rawNumber(1));
    EXPECT_EQ(level(), 1);
    deleteKey("General");
    EXPECT_EQ(level(), -77);
    EXPECT_EQ(level(), -77);
}

TEST_F(OpenKey, SeesAKeyMadeAnew)
{
    for (DWORD i = 1; i <= 5; ++i)
    {
        put("General", "Level", rawNumber(i));
        EXPECT_EQ(level(), static_cast<int>(i));
        deleteKey("");
        if (i % 2 == 0)
        {
            EXPECT_EQ(level(), -77);
        }
    }
}

TEST_F(OpenKey, NeverRemembersThatAKeyWasMissing)
{
    EXPECT_EQ(level(), -77);
    put("General", "Level", rawNumber(1));
    EXPECT_EQ(level(), 1);
}

TEST_F(OpenKey, WritesIntoAKeyMadeAnewAfterItsDeletion)
{
    EXPECT_TRUE(record.WriteVornInt("General", "Level", 1));
    deleteKey("");
    EXPECT_TRUE(record.WriteVornInt("General", "Level", 2));
    EXPECT_EQ(get("General", "Level"), rawNumber(2));
    EXPECT_EQ(level(), 2);
}

TEST_F(OpenKey, WritesAndReadsAfterTheRecordDeletedTheSection)
{
    EXPECT_TRUE(record.WriteVornInt("General", "Level", 1));
    EXPECT_EQ(level(), 1);
    EXPECT_TRUE(record.WriteVornString("General", nullptr, nullptr));
    EXPECT_EQ(level(), -77);
    EXPECT_TRUE(record.WriteVornInt("General", "Level", 3));
    EXPECT_EQ(level(), 3);
}

TEST_F(OpenKey, ReadingMakesNoKey)
{
    EXPECT_EQ(level(), -77);
    EXPECT_FALSE(hasKey(""));
}

TEST_F(OpenKey, IsOneHandleHoweverOftenTheSectionIsRead)
{
    put("General", "Level", rawNumber(1));
    level();
    const std::size_t before = firstFreeHandle();
    for (int i = 0; i < 1000; ++i)
    {
        level();
    }
    EXPECT_EQ(firstFreeHandle(), before);
}

TEST_F(OpenKey, IsClosedWithItsRecord)
{
    put("General", "Level", rawNumber(1));
    const std::size_t before = firstFreeHandle();
    {
        AppRegData another;
        another.SetModName(app().c_str());
        another.ReadVornInt("General", "Level", 0);
        another.WriteVornInt("General", "Level", 2);
        another.ReadVornInt("General", "Level", 0);
        EXPECT_EQ(firstFreeHandle(), before + 2);
    }
    EXPECT_EQ(firstFreeHandle(), before);
}

TEST_F(OpenKey, HandlesStayFewWithManySections)
{
    const std::size_t before = firstFreeHandle();
    for (int i = 0; i < 600; ++i)
    {
        const std::string section = "Section" + std::to_string(i);
        EXPECT_TRUE(record.WriteVornInt(section.c_str(), "Level", i));
        EXPECT_EQ(record.ReadVornInt(section.c_str(), "Level", -1), i);
    }
    EXPECT_LE(firstFreeHandle(), before + 2 * 256);
    EXPECT_EQ(record.ReadVornInt("Section0", "Level", -1), 0);
    EXPECT_EQ(record.ReadVornInt("Section599", "Level", -1), 599);
}
