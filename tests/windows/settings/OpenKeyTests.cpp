#include "config/AppRegMgr.h"
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
        record.SetModName(App().c_str());
    }

    int Level()
    {
        return record.ReadVornInt("General", "Level", -77);
    }

    AppRegData record;
};

/// Number of the first handle that is free. Handles are given out from the lowest number on, so it tells how many are
/// in use.
std::size_t FirstFreeHandle()
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
        Put("General", "Level", RawNumber(i));
        EXPECT_EQ(Level(), static_cast<int>(i));
    }
    Put("General", "Level", RawText("21"));
    EXPECT_EQ(Level(), 21);
}

TEST_F(OpenKey, SeesAValueDeletedByAnotherProgram)
{
    Put("General", "Level", RawNumber(1));
    EXPECT_EQ(Level(), 1);
    HKEY key = nullptr;
    RegOpenKeyExA(HKEY_CURRENT_USER, ("Software\\Vornwald\\" + App() + "\\General").c_str(), 0, KEY_ALL_ACCESS, &key);
    EXPECT_EQ(RegDeleteValueA(key, "Level"), ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(Level(), -77);
}

TEST_F(OpenKey, SurvivesTheDeletionOfItsKey)
{
    Put("General", "Level", RawNumber(1));
    EXPECT_EQ(Level(), 1);
    DeleteKey("General");
    EXPECT_EQ(Level(), -77);
    EXPECT_EQ(Level(), -77);
}

TEST_F(OpenKey, SeesAKeyMadeAnew)
{
    for (DWORD i = 1; i <= 5; ++i)
    {
        Put("General", "Level", RawNumber(i));
        EXPECT_EQ(Level(), static_cast<int>(i));
        DeleteKey("");
        if (i % 2 == 0)
        {
            EXPECT_EQ(Level(), -77);
        }
    }
}

TEST_F(OpenKey, NeverRemembersThatAKeyWasMissing)
{
    EXPECT_EQ(Level(), -77);
    Put("General", "Level", RawNumber(1));
    EXPECT_EQ(Level(), 1);
}

TEST_F(OpenKey, WritesIntoAKeyMadeAnewAfterItsDeletion)
{
    EXPECT_TRUE(record.WriteVornInt("General", "Level", 1));
    DeleteKey("");
    EXPECT_TRUE(record.WriteVornInt("General", "Level", 2));
    EXPECT_EQ(Get("General", "Level"), RawNumber(2));
    EXPECT_EQ(Level(), 2);
}

TEST_F(OpenKey, WritesAndReadsAfterTheRecordDeletedTheSection)
{
    EXPECT_TRUE(record.WriteVornInt("General", "Level", 1));
    EXPECT_EQ(Level(), 1);
    EXPECT_TRUE(record.WriteVornString("General", nullptr, nullptr));
    EXPECT_EQ(Level(), -77);
    EXPECT_TRUE(record.WriteVornInt("General", "Level", 3));
    EXPECT_EQ(Level(), 3);
}

TEST_F(OpenKey, ReadingMakesNoKey)
{
    EXPECT_EQ(Level(), -77);
    EXPECT_FALSE(HasKey(""));
}

TEST_F(OpenKey, IsOneHandleHoweverOftenTheSectionIsRead)
{
    Put("General", "Level", RawNumber(1));
    Level();
    const std::size_t before = FirstFreeHandle();
    for (int i = 0; i < 1000; ++i)
    {
        Level();
    }
    EXPECT_EQ(FirstFreeHandle(), before);
}

TEST_F(OpenKey, IsClosedWithItsRecord)
{
    Put("General", "Level", RawNumber(1));
    const std::size_t before = FirstFreeHandle();
    {
        AppRegData another;
        another.SetModName(App().c_str());
        another.ReadVornInt("General", "Level", 0);
        another.WriteVornInt("General", "Level", 2);
        another.ReadVornInt("General", "Level", 0);
        EXPECT_EQ(FirstFreeHandle(), before + 2);
    }
    EXPECT_EQ(FirstFreeHandle(), before);
}

TEST_F(OpenKey, IsClosedWhenTheManagerIsFreed)
{
    Put("General", "Level", RawNumber(1));
    const std::size_t before = FirstFreeHandle();
    const int index = AppRegMgr::Instance()->AddApp(App().c_str());
    EXPECT_EQ(AppRegMgr::Instance()->ReadVornInt("General", "Level", 0, index), 1);
    EXPECT_TRUE(AppRegMgr::Instance()->WriteVornInt("General", "Level", 2, index));
    EXPECT_EQ(FirstFreeHandle(), before + 1); // a key opened for writing has the one for reading opened anew
    AppRegMgr::FreeInst();
    EXPECT_EQ(FirstFreeHandle(), before);
}

TEST_F(OpenKey, HandlesStayFewWithManySections)
{
    const std::size_t before = FirstFreeHandle();
    for (int i = 0; i < 600; ++i)
    {
        const std::string section = "Section" + std::to_string(i);
        EXPECT_TRUE(record.WriteVornInt(section.c_str(), "Level", i));
        EXPECT_EQ(record.ReadVornInt(section.c_str(), "Level", -1), i);
    }
    EXPECT_LE(FirstFreeHandle(), before + 2 * 256);
    EXPECT_EQ(record.ReadVornInt("Section0", "Level", -1), 0);
    EXPECT_EQ(record.ReadVornInt("Section599", "Level", -1), 599);
}
