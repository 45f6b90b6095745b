#include "tests/windows/registry/ScratchRegistry.h"

#include <chrono>

using namespace vorn::test;

namespace
{
using RegistryConnection = ScratchRegistry;
using RegistryFacts = ScratchRegistry;
using RegistryCopies = ScratchRegistry;

std::string ComputerName()
{
    char name[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD size = sizeof name;
    EXPECT_TRUE(GetComputerNameA(name, &size));
    return name;
}

/// Whether a handle is that of an open key.
bool IsOpen(HKEY key)
{
    return RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                            nullptr, nullptr) == ERROR_SUCCESS;
}

/// Its key is deleted by the time that its facts are asked for.
class GoneAtQuestion : public Registry
{
public:
    explicit GoneAtQuestion(std::string path) : m_path(std::move(path))
    {
    }

    bool QueryInfo() override
    {
        EXPECT_EQ(RegDeleteKeyA(HKEY_CURRENT_USER, m_path.c_str()), ERROR_SUCCESS);
        const bool result = Registry::QueryInfo();
        code = GetLastError();
        return result;
    }

    DWORD code = 0;

private:
    std::string m_path;
};

void ExpectClosed(const Registry& key)
{
    EXPECT_EQ(key.Key(), nullptr);
    EXPECT_EQ(key.Root(), nullptr);
    EXPECT_EQ(Std(key.KeyName()), "");
    EXPECT_EQ(Std(key.RootName()), "");
    EXPECT_EQ(Std(key.MachineName()), "");
    EXPECT_EQ(Std(key.KeyClass()), "");
    EXPECT_FALSE(key.IsRemote());
    EXPECT_EQ(key.ValueCount(), 0u);
}
} // namespace

TEST_F(RegistryConnection, TakesAPredefinedRootOfThisMachine)
{
    for (const char* machine : {static_cast<const char*>(nullptr), ""})
    {
        EXPECT_TRUE(Done(key, key.Connect(HKEY_LOCAL_MACHINE, machine)));
        EXPECT_EQ(key.Root(), HKEY_LOCAL_MACHINE);
        EXPECT_EQ(key.Key(), nullptr);
        EXPECT_EQ(Std(key.RootName()), "HKEY_LOCAL_MACHINE");
        EXPECT_EQ(Std(key.MachineName()), ComputerName());
        EXPECT_EQ(Std(key.KeyName()), "");
        EXPECT_FALSE(key.IsRemote());
    }
}

TEST_F(RegistryConnection, RefusesRootsThatOtherMachinesDoNotOfferAndHasClosedBefore)
{
    for (const HKEY root : {HKEY_CLASSES_ROOT, HKEY_CURRENT_USER})
    {
        Registry another = Opened();
        const HKEY handle = another.Key();
        EXPECT_TRUE(Refused(another, another.Connect(root, "\\\\vorn-no-such-machine"), ERROR_INVALID_HANDLE));
        ExpectClosed(another);
        EXPECT_FALSE(IsOpen(handle));
    }
}

TEST_F(RegistryConnection, NoRootIsAnInvalidParameter)
{
    EXPECT_TRUE(Refused(key, key.Connect(nullptr, nullptr), ERROR_INVALID_PARAMETER));
    ExpectClosed(key);
    EXPECT_TRUE(Refused(key, key.Connect(nullptr, "\\\\machine"), ERROR_INVALID_PARAMETER));
    ExpectClosed(key);
}

TEST_F(RegistryConnection, AMachineThatIsNotThereLeavesNothingOpen)
{
    const bool connected = key.Connect(HKEY_LOCAL_MACHINE, "\\\\vorn-no-such-machine");
    EXPECT_FALSE(connected);
    EXPECT_NE(key.GetLastError(), 0u);
    ExpectClosed(key);
}

TEST_F(RegistryConnection, ThisMachineByNameIsRemote)
{
    const std::string machine = "\\\\" + ComputerName();
    ASSERT_TRUE(Done(key, key.Connect(HKEY_LOCAL_MACHINE, machine.c_str())));
    EXPECT_TRUE(key.IsRemote());
    EXPECT_EQ(Std(key.MachineName()), machine);
    EXPECT_EQ(Std(key.RootName()), "HKEY_LOCAL_MACHINE");
    EXPECT_TRUE(Done(key, key.Open("Software", Registry::PermissionRead)));
    EXPECT_GT(key.SubkeyCount(), 0u);
    EXPECT_TRUE(Done(key, key.Close()));
    ExpectClosed(key);
}

TEST_F(RegistryConnection, ForgetsARemoteMachineWithTheNextRoot)
{
    ASSERT_TRUE(key.Connect(HKEY_LOCAL_MACHINE, ("\\\\" + ComputerName()).c_str()));
    EXPECT_TRUE(Done(key, key.Connect(HKEY_USERS, nullptr)));
    EXPECT_FALSE(key.IsRemote());
    EXPECT_EQ(Std(key.MachineName()), ComputerName());
    EXPECT_EQ(Std(key.RootName()), "HKEY_USERS");
}

TEST_F(RegistryConnection, AnotherOpenKeyCanBeTheRootAndIsThenClosedWithIt)
{
    MakeKey("Below");
    HKEY root = nullptr;
    ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, Path().c_str(), 0, KEY_READ, &root), ERROR_SUCCESS);
    Registry another;
    EXPECT_TRUE(Done(another, another.Connect(root, nullptr)));
    EXPECT_EQ(Std(another.RootName()), "");
    EXPECT_TRUE(Done(another, another.Open("Below", Registry::PermissionRead)));
    EXPECT_TRUE(Done(another, another.Close()));
    EXPECT_FALSE(IsOpen(root));
}

TEST_F(RegistryConnection, OpenIgnoresABackslashAtEitherEnd)
{
    MakeKey("Below");
    EXPECT_TRUE(Done(key, key.Open(("\\" + Path("Below") + "\\").c_str(), Registry::PermissionRead)));
    EXPECT_EQ(Std(key.KeyName()), Path("Below"));
    EXPECT_EQ(Std(key.RootName()), "HKEY_CURRENT_USER");
    EXPECT_NE(key.Key(), nullptr);
}

TEST_F(RegistryConnection, OpenOfNothingIsTheRoot)
{
    EXPECT_TRUE(Done(key, key.Open("", Registry::PermissionRead)));
    EXPECT_EQ(Std(key.KeyName()), "");
    EXPECT_GT(key.SubkeyCount(), 0u);
    EXPECT_TRUE(Done(key, key.Open("\\", Registry::PermissionRead)));
    EXPECT_GT(key.SubkeyCount(), 0u);
    EXPECT_TRUE(Done(key, key.Close()));
    EXPECT_TRUE(IsOpen(HKEY_CURRENT_USER));
}

TEST_F(RegistryConnection, OpenWithoutRootIsBelowTheClassesRoot)
{
    Registry fresh;
    EXPECT_TRUE(Done(fresh, fresh.Open("", Registry::PermissionRead)));
    EXPECT_EQ(fresh.Root(), HKEY_CLASSES_ROOT);
    EXPECT_EQ(Std(fresh.RootName()), "HKEY_CLASSES_ROOT");
    EXPECT_EQ(Std(fresh.MachineName()), ComputerName());
    EXPECT_TRUE(key.Close());
    EXPECT_TRUE(Refused(key, key.Open(Path().c_str(), Registry::PermissionRead), ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(Std(key.RootName()), "HKEY_CLASSES_ROOT");
}

TEST_F(RegistryConnection, OpenReplacesTheKeyAndKeepsTheRoot)
{
    MakeKey("Below");
    const std::size_t before = FirstFreeHandle();
    for (int i = 0; i < 50; ++i)
    {
        EXPECT_TRUE(key.Open(Path("Below").c_str(), Registry::PermissionRead));
    }
    EXPECT_EQ(FirstFreeHandle(), before);
    EXPECT_EQ(key.Root(), HKEY_CURRENT_USER);
}

TEST_F(RegistryConnection, AFailedOpenLeavesNoKeyAndKeepsTheRoot)
{
    Put("Value", REG_SZ, "text");
    ASSERT_TRUE(key.Open(Path().c_str(), Registry::PermissionRead));
    EXPECT_EQ(key.ValueCount(), 1u);
    EXPECT_TRUE(Refused(key, key.Open(Path("Absent").c_str(), Registry::PermissionRead), ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(key.Key(), nullptr);
    EXPECT_EQ(Std(key.KeyName()), "");
    EXPECT_EQ(key.ValueCount(), 0u);
    EXPECT_EQ(key.Root(), HKEY_CURRENT_USER);
    EXPECT_EQ(Std(key.RootName()), "HKEY_CURRENT_USER");
    EXPECT_TRUE(Done(key, key.Open(Path().c_str(), Registry::PermissionRead)));
}

TEST_F(RegistryConnection, NoPathIsAnInvalidParameter)
{
    EXPECT_TRUE(Refused(key, key.Open(nullptr, Registry::PermissionRead), ERROR_INVALID_PARAMETER));
    EXPECT_EQ(key.Key(), nullptr);
    EXPECT_EQ(key.Root(), HKEY_CURRENT_USER);
    EXPECT_TRUE(Refused(
        key, key.Create(nullptr, nullptr, Registry::OptionNonVolatile, Registry::PermissionRead, nullptr, nullptr),
        ERROR_INVALID_PARAMETER));
    EXPECT_EQ(key.Root(), HKEY_CURRENT_USER);
}

// Here the system tells a key's facts whatever the rights, but not those of a key that is gone.
TEST_F(RegistryConnection, AKeyWhoseFactsCannotBeReadIsOpenWithoutThem)
{
    Put("Value", REG_SZ, "text", "Below");
    GoneAtQuestion gone(Path("Below"));
    ASSERT_TRUE(gone.Connect(HKEY_CURRENT_USER, nullptr));
    EXPECT_TRUE(Done(gone, gone.Open(Path("Below").c_str(), Registry::PermissionAllAccess)));
    EXPECT_EQ(gone.code, static_cast<DWORD>(ERROR_KEY_DELETED));
    EXPECT_NE(gone.Key(), nullptr);
    EXPECT_EQ(Std(gone.KeyName()), Path("Below"));
    EXPECT_EQ(gone.ValueCount(), 0u);
    EXPECT_EQ(gone.LastWriteTime().GetTime(), 0);
}

TEST_F(RegistryConnection, AKeyOpenedForSettingOnlyIsOpen)
{
    EXPECT_TRUE(Done(key, key.Open(Path().c_str(), Registry::PermissionSetValue)));
    EXPECT_TRUE(Done(key, key.SetStringValue("Another", "text")));
    CString text;
    EXPECT_TRUE(Refused(key, key.GetStringValue("Another", text), ERROR_ACCESS_DENIED));
}

TEST_F(RegistryConnection, CreateSaysWhetherTheKeyWasThere)
{
    auto disposition = static_cast<Registry::CreationDisposition>(0);
    const auto create = [&](const char* below, Registry::CreationDisposition* result)
    {
        return key.Create((Path(below) + "\\").c_str(), "Charts", Registry::OptionNonVolatile,
                          Registry::PermissionAllAccess, nullptr, result);
    };
    EXPECT_TRUE(Done(key, create("New\\Deep", &disposition)));
    EXPECT_EQ(disposition, Registry::CreatedNewKey);
    EXPECT_EQ(Std(key.KeyName()), Path("New\\Deep"));
    EXPECT_TRUE(HasKey("New\\Deep"));
    EXPECT_TRUE(Done(key, create("New\\Deep", &disposition)));
    EXPECT_EQ(disposition, Registry::OpenedExistingKey);
    EXPECT_TRUE(Done(key, create("Other", nullptr)));
    EXPECT_TRUE(HasKey("Other"));
}

TEST_F(RegistryConnection, CreateKeepsTheClassName)
{
    EXPECT_TRUE(Done(key, key.Create(Path("New").c_str(), "Charts", Registry::OptionVolatile,
                                     Registry::PermissionAllAccess, nullptr, nullptr)));
    EXPECT_EQ(Std(key.KeyClass()), "Charts");
    EXPECT_TRUE(key.Create(Path("Plain").c_str(), nullptr, Registry::OptionNonVolatile, Registry::PermissionAllAccess,
                           nullptr, nullptr));
    EXPECT_EQ(Std(key.KeyClass()), "");
}

TEST_F(RegistryConnection, AFailedCreateLeavesNoKeyAndKeepsTheRootAndTheDisposition)
{
    auto disposition = Registry::OpenedExistingKey;
    const std::string tooLong = Path(std::string(300, 'x'));
    const bool created = key.Create(tooLong.c_str(), nullptr, Registry::OptionNonVolatile,
                                    Registry::PermissionAllAccess, nullptr, &disposition);
    EXPECT_FALSE(created);
    EXPECT_NE(key.GetLastError(), 0u);
    EXPECT_EQ(disposition, Registry::OpenedExistingKey);
    EXPECT_EQ(key.Key(), nullptr);
    EXPECT_EQ(key.Root(), HKEY_CURRENT_USER);
}

// The system takes paths of at most 259 characters here.
TEST_F(RegistryConnection, KeysWithLongNamesAreMadeAndOpened)
{
    for (const std::size_t length : {200, 230})
    {
        const ScratchKey longKey(HKEY_CURRENT_USER, "Software\\" + std::string(length, 'v'));
        EXPECT_TRUE(Done(key, key.Create(longKey.Path().c_str(), nullptr, Registry::OptionNonVolatile,
                                         Registry::PermissionAllAccess, nullptr, nullptr)));
        EXPECT_EQ(Std(key.KeyName()), longKey.Path());
        EXPECT_TRUE(Done(key, key.Open(longKey.Path().c_str(), Registry::PermissionRead)));
    }
}

TEST_F(RegistryConnection, CloseForgetsTheRootToo)
{
    const HKEY handle = key.Key();
    EXPECT_TRUE(Done(key, key.Close()));
    ExpectClosed(key);
    EXPECT_FALSE(IsOpen(handle));
    EXPECT_TRUE(Done(key, key.Close()));
}

TEST_F(RegistryConnection, CloseOfAHandleThatSomeoneElseClosedFailsAndForgetsItAllTheSame)
{
    EXPECT_EQ(RegCloseKey(key.Key()), ERROR_SUCCESS);
    EXPECT_TRUE(Refused(key, key.Close(), ERROR_INVALID_HANDLE));
    ExpectClosed(key);
    EXPECT_TRUE(Done(key, key.Close()));
}

TEST_F(RegistryConnection, EveryRootOpensOrRefusesWithoutThrowing)
{
    for (const char* name : {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_USERS",
                             "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"})
    {
        EXPECT_TRUE(key.Connect(Registry::StrToKey(name), nullptr)) << name;
        EXPECT_EQ(Std(key.RootName()), name);
        EXPECT_EQ(key.Open("", Registry::PermissionRead), key.GetLastError() == 0) << name;
        EXPECT_TRUE(key.Close()) << name;
    }
}

TEST_F(RegistryConnection, FlushWritesTheKey)
{
    EXPECT_TRUE(Done(key, key.Flush()));
}

TEST_F(RegistryConnection, TheDestructorCloses)
{
    const std::size_t before = FirstFreeHandle();
    {
        const Registry another = Opened();
        EXPECT_NE(FirstFreeHandle(), before);
    }
    EXPECT_EQ(FirstFreeHandle(), before);
}

TEST_F(RegistryConnection, OpensTheThirtyTwoBitView)
{
    const ScratchKey machine(HKEY_LOCAL_MACHINE, "Software\\VornTests\\View");
    ASSERT_TRUE(key.Connect(HKEY_LOCAL_MACHINE, nullptr));
    EXPECT_TRUE(Done(key, key.Create(machine.Path().c_str(), nullptr, Registry::OptionNonVolatile,
                                     Registry::PermissionAllAccess, nullptr, nullptr)));
    EXPECT_TRUE(machine.Exists());
}

TEST_F(RegistryFacts, AreThoseOfTheKey)
{
    Put("Name", REG_SZ, std::string_view("Denver\0", 7));
    Put("A longer name", REG_BINARY, std::string(33, 'b'));
    MakeKey("One");
    MakeKey("Number two");
    MakeKey("Three");
    EXPECT_EQ(key.ValueCount(), 0u); // as they were when the key was opened
    EXPECT_TRUE(Done(key, key.QueryInfo()));
    EXPECT_EQ(key.ValueCount(), 2u);
    EXPECT_EQ(key.LongestValueName(), 13u);
    EXPECT_EQ(key.LongestValueData(), 33u);
    EXPECT_EQ(key.SubkeyCount(), 3u);
    EXPECT_EQ(key.LongestSubkeyName(), 10u);
    EXPECT_EQ(Opened().SubkeyCount(), 3u);
}

TEST_F(RegistryFacts, HaveTheMomentOfTheLastChange)
{
    EXPECT_TRUE(key.SetStringValue("Name", "Denver"));
    EXPECT_TRUE(Done(key, key.QueryInfo()));
    const CTimeSpan age = CTime::GetCurrentTime() - key.LastWriteTime();
    EXPECT_GE(age.GetTotalSeconds(), -1);
    EXPECT_LE(age.GetTotalSeconds(), 60);
}

TEST_F(RegistryFacts, HaveClassNamesAndTheLongestOfThem)
{
    Registry below = Opened();
    ASSERT_TRUE(below.Create(Path("Below").c_str(), std::string(300, 'c').c_str(), Registry::OptionNonVolatile,
                             Registry::PermissionAllAccess, nullptr, nullptr));
    EXPECT_EQ(Std(below.KeyClass()), std::string(300, 'c'));
    EXPECT_TRUE(key.QueryInfo());
    EXPECT_EQ(key.LongestClassName(), 300u);
}

TEST_F(RegistryFacts, HaveClassNamesUpToTheRoomForThem)
{
    for (const std::size_t length : {2046, 2047, 2048, 5000})
    {
        const std::string path = Path("Below" + std::to_string(length));
        ASSERT_TRUE(key.Create(path.c_str(), std::string(length, 'c').c_str(), Registry::OptionNonVolatile,
                               Registry::PermissionAllAccess, nullptr, nullptr));
        EXPECT_EQ(Std(key.KeyClass()), std::string(length <= 2047 ? length : 0, 'c'));
    }
}

TEST_F(RegistryFacts, StayWhenTheKeyIsGone)
{
    Put("Name", REG_SZ, "x");
    ASSERT_TRUE(key.QueryInfo());
    ASSERT_EQ(RegDeleteTreeA(HKEY_CURRENT_USER, Path().c_str()), ERROR_SUCCESS);
    EXPECT_TRUE(Refused(key, key.QueryInfo(), ERROR_KEY_DELETED));
    EXPECT_EQ(key.ValueCount(), 1u);
}

TEST_F(RegistryCopies, HoldTheSameHandlesAndTexts)
{
    Put("Name", REG_SZ, "x");
    ASSERT_TRUE(key.QueryInfo());
    const Registry copy(key);
    EXPECT_EQ(copy.Key(), key.Key());
    EXPECT_EQ(copy.Root(), key.Root());
    EXPECT_EQ(Std(copy.KeyName()), Std(key.KeyName()));
    EXPECT_EQ(Std(copy.RootName()), Std(key.RootName()));
    EXPECT_EQ(Std(copy.MachineName()), Std(key.MachineName()));
    EXPECT_EQ(copy.ValueCount(), 1u);
    Registry assigned;
    assigned = key;
    EXPECT_EQ(assigned.Key(), key.Key());
}

TEST_F(RegistryCopies, KeepTheKeyOpenUntilTheLastOneCloses)
{
    Registry copy(key);
    const HKEY handle = key.Key();
    EXPECT_TRUE(Done(key, key.Close()));
    EXPECT_EQ(key.Key(), nullptr);
    EXPECT_EQ(copy.Key(), handle);
    EXPECT_TRUE(Done(copy, copy.SetStringValue("Name", "still open")));
    EXPECT_TRUE(Done(copy, copy.Close()));
    EXPECT_FALSE(IsOpen(handle));
}

TEST_F(RegistryCopies, NeverCloseAHandleTwice)
{
    HKEY reused = nullptr;
    {
        Registry copy(key);
        const HKEY handle = key.Key();
        copy.Close();
        key.Close();
        ASSERT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, Path().c_str(), 0, KEY_READ, &reused), ERROR_SUCCESS);
        EXPECT_EQ(reused, handle); // the number is given out again at once
    }
    EXPECT_TRUE(IsOpen(reused));
    EXPECT_EQ(RegCloseKey(reused), ERROR_SUCCESS);
}

TEST_F(RegistryCopies, AssignmentClosesWhatOnlyTheLeftSideHeld)
{
    Registry other = Opened();
    const HKEY handle = other.Key();
    other = key;
    EXPECT_FALSE(IsOpen(handle));
    const Registry& same = other;
    other = same;
    EXPECT_EQ(other.Key(), key.Key());
    EXPECT_TRUE(IsOpen(other.Key()));
}
