#include "config/RegistryWriteTime.h"
#include "tests/support/Thrown.h"
#include "tests/support/VirtualSlot.h"
#include "tests/windows/registry/ScratchRegistry.h"

using namespace vorn::test;

namespace
{
/// Lets the tests at what is protected.
class OpenRegistry : public Registry
{
public:
    using Registry::Initialize;
};

void ExpectNew(const Registry& key)
{
    EXPECT_EQ(key.GetLastError(), 0u);
    EXPECT_EQ(key.Key(), nullptr);
    EXPECT_EQ(key.Root(), nullptr);
    EXPECT_EQ(Std(key.KeyName()), "");
    EXPECT_EQ(Std(key.RootName()), "");
    EXPECT_EQ(Std(key.MachineName()), "");
    EXPECT_EQ(Std(key.KeyClass()), "");
    EXPECT_FALSE(key.IsRemote());
    EXPECT_EQ(key.SubkeyCount() + key.LongestSubkeyName() + key.LongestClassName() + key.ValueCount(), 0u);
    EXPECT_EQ(key.LongestValueName() + key.LongestValueData() + key.SecuritySize(), 0u);
    EXPECT_EQ(key.LastWriteTime().GetTime(), 0);
}

template <class... Arguments>
int SlotOfOverload(bool (Registry::*operation)(Arguments...))
{
    return SlotOf(operation);
}
} // namespace

TEST(RegistryInterface, OperationsStandInTheOrderOfTheInterfaceAfterTheDestructor)
{
    const int slots[] = {
        SlotOf(&OpenRegistry::Initialize),
        SlotOf(&Registry::Connect),
        SlotOf(&Registry::Open),
        SlotOf(&Registry::Create),
        SlotOf(&Registry::Close),
        SlotOf(&Registry::Flush),
        SlotOf(&Registry::DeleteKey),
        SlotOf(&Registry::DeleteValue),
        SlotOfOverload<DWORD, CString&, CString&>(&Registry::EnumerateKeys),
        SlotOfOverload<DWORD, CString&>(&Registry::EnumerateKeys),
        SlotOfOverload<DWORD, char*, DWORD*, char*, DWORD*>(&Registry::EnumerateKeys),
        SlotOfOverload<DWORD, CString&, Registry::KeyValueTypes&>(&Registry::EnumerateValues),
        SlotOfOverload<DWORD, CString&, Registry::KeyValueTypes&, BYTE*, DWORD&>(&Registry::EnumerateValues),
        SlotOfOverload<DWORD, char*, DWORD*, Registry::KeyValueTypes*, BYTE*, DWORD*>(&Registry::EnumerateValues),
        SlotOf(&Registry::QueryInfo),
        SlotOf(&Registry::QueryValue),
        SlotOfOverload<const char*, Registry::KeyValueTypes, BYTE*, DWORD>(&Registry::SetValue),
        SlotOf(&Registry::GetStringValue),
        SlotOf(&Registry::SetStringValue),
        SlotOf(&Registry::GetDoubleWordValue),
        SlotOf(&Registry::SetDoubleWordValue),
        SlotOf(&Registry::GetBinaryValue),
        SlotOf(&Registry::SetBinaryValue),
        SlotOf(&Registry::GetStringArrayValue),
        SlotOf(&Registry::SetStringArrayValue),
        SlotOfOverload<const char*, DWORD&>(&Registry::GetValue),
        SlotOfOverload<const char*, CString&>(&Registry::GetValue),
        SlotOfOverload<const char*, CByteArray&>(&Registry::GetValue),
        SlotOfOverload<const char*, CStringArray&>(&Registry::GetValue),
        SlotOf(static_cast<bool (Registry::*)(const char*, DWORD)>(&Registry::SetValue)),
        SlotOfOverload<const char*, const char*>(&Registry::SetValue),
        SlotOfOverload<const char*, CByteArray&>(&Registry::SetValue),
        SlotOfOverload<const char*, CStringArray&>(&Registry::SetValue),
        SlotOf(&Registry::Load),
        SlotOf(&Registry::UnLoad),
        SlotOf(&Registry::Save),
        SlotOf(&Registry::Restore),
        SlotOf(&Registry::Replace),
        SlotOf(&Registry::GetSecurity),
        SlotOf(&Registry::SetSecurity),
        SlotOf(&Registry::NotifyChange),
    };
    int expected = 2;
    for (const int slot : slots)
    {
        EXPECT_EQ(slot, expected++);
    }
    EXPECT_TRUE(std::has_virtual_destructor_v<Registry>);
}

TEST(RegistryInterface, EnumerationsHaveTheSystemsValues)
{
    static_assert(std::is_same_v<std::underlying_type_t<Registry::CreateOptions>, DWORD>);
    static_assert(std::is_same_v<std::underlying_type_t<Registry::CreatePermissions>, DWORD>);
    static_assert(std::is_same_v<std::underlying_type_t<Registry::CreationDisposition>, DWORD>);
    static_assert(std::is_same_v<std::underlying_type_t<Registry::KeyValueTypes>, DWORD>);
    static_assert(std::is_same_v<std::underlying_type_t<Registry::NotifyChangeFilter>, DWORD>);
    EXPECT_EQ(DWORD{Registry::OptionVolatile}, 1u);
    EXPECT_EQ(DWORD{Registry::OptionBackupRestore}, 4u);
    EXPECT_EQ(DWORD{Registry::PermissionRead}, 0x20019u);
    EXPECT_EQ(DWORD{Registry::PermissionWrite}, 0x20006u);
    EXPECT_EQ(DWORD{Registry::PermissionAllAccess}, 0xF003Fu);
    EXPECT_EQ(DWORD{Registry::CreatedNewKey}, 1u);
    EXPECT_EQ(DWORD{Registry::OpenedExistingKey}, 2u);
    EXPECT_EQ(DWORD{Registry::TypeNone}, 0u);
    EXPECT_EQ(DWORD{Registry::TypeString}, 1u);
    EXPECT_EQ(DWORD{Registry::TypeExpandString}, 2u);
    EXPECT_EQ(DWORD{Registry::TypeBinary}, 3u);
    EXPECT_EQ(DWORD{Registry::TypeDoubleWord}, 4u);
    EXPECT_EQ(DWORD{Registry::TypeDoubleWordBigEndian}, 5u);
    EXPECT_EQ(DWORD{Registry::TypeMultiString}, 7u);
    EXPECT_EQ(DWORD{Registry::TypeQuadWord}, 11u);
    EXPECT_EQ(DWORD{Registry::NotifyName}, 1u);
    EXPECT_EQ(DWORD{Registry::NotifyLastSet}, 4u);
}

TEST(RegistryInterface, FlagsCombine)
{
    const Registry::CreatePermissions rights = Registry::PermissionQueryValue | Registry::PermissionSetValue;
    EXPECT_EQ(DWORD{rights}, 3u);
    const Registry::CreateOptions options = Registry::OptionVolatile | Registry::OptionBackupRestore;
    EXPECT_EQ(DWORD{options}, 5u);
    const Registry::NotifyChangeFilter filter = Registry::NotifyName | Registry::NotifyLastSet;
    EXPECT_EQ(DWORD{filter}, 5u);
}

TEST(RegistryInterface, RootNamesGoBothWays)
{
    CString name;
    EXPECT_TRUE(Registry::KeyToStr(Registry::StrToKey("HKEY_LOCAL_MACHINE"), name));
    EXPECT_EQ(Std(name), "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(Registry::StrToKey("hkey_local_machine"), nullptr);
    EXPECT_EQ(Registry::StrToKey(""), nullptr);
    EXPECT_EQ(Registry::StrToKey("HKEY_CLASSES_ROOT"), HKEY_CLASSES_ROOT);
    EXPECT_EQ(Registry::StrToKey("HKEY_CURRENT_USER"), HKEY_CURRENT_USER);
    EXPECT_EQ(Registry::StrToKey("HKEY_LOCAL_MACHINE"), HKEY_LOCAL_MACHINE);
    EXPECT_EQ(Registry::StrToKey("HKEY_USERS"), HKEY_USERS);
    EXPECT_EQ(Registry::StrToKey("HKEY_CURRENT_CONFIG"), HKEY_CURRENT_CONFIG);
    EXPECT_EQ(Registry::StrToKey("HKEY_DYN_DATA"), HKEY_DYN_DATA);
}

TEST(RegistryInterface, OtherHandlesHaveNoName)
{
    CString name = "as it was";
    EXPECT_FALSE(Registry::KeyToStr(nullptr, name));
    EXPECT_FALSE(Registry::KeyToStr(HKEY_PERFORMANCE_DATA, name));
    EXPECT_EQ(Std(name), "as it was");
}

TEST(RegistryInterface, PathsAreNormalizedInPlace)
{
    CString path = "\\Software\\Vornwald\\";
    Registry::NormalizeKey(path, false);
    EXPECT_EQ(Std(path), "Software\\Vornwald");
    path = "\\";
    Registry::NormalizeKey(path, true);
    EXPECT_EQ(Std(path), "\\");
    Registry::NormalizeKey(path, false);
    EXPECT_EQ(Std(path), "");
    Registry::NormalizeKey(path, true);
    EXPECT_EQ(Std(path), "\\");
}

TEST(RegistryInterface, PathsAreJoinedAndNullIsNothing)
{
    EXPECT_EQ(Std(Registry::ConcatenateKeys("Software\\\\", "\\Vornwald")), "Software\\Vornwald");
    EXPECT_EQ(Std(Registry::ConcatenateKeys(nullptr, "Vornwald")), "Vornwald");
    EXPECT_EQ(Std(Registry::ConcatenateKeys("Software", nullptr)), "Software");
    EXPECT_EQ(Std(Registry::ConcatenateKeys(nullptr, nullptr)), "");
}

TEST(RegistryInterface, ANewObjectHasNothing)
{
    ExpectNew(Registry());
}

TEST(RegistryInterface, InitializeForgetsAndClosesEverything)
{
    const ScratchKey scratch;
    const std::size_t before = FirstFreeHandle();
    OpenRegistry key;
    EXPECT_TRUE(key.Connect(HKEY_CURRENT_USER, nullptr));
    EXPECT_TRUE(key.Create(scratch.Path().c_str(), "Charts", Registry::OptionNonVolatile, Registry::PermissionAllAccess,
                           nullptr, nullptr));
    EXPECT_FALSE(key.GetLastError() == 0 && Std(key.KeyClass()).empty());
    key.Initialize();
    ExpectNew(key);
    EXPECT_EQ(FirstFreeHandle(), before);
}

TEST(RegistryInterface, EveryOperationWithoutAnOpenKeyIsAnInvalidHandle)
{
    Registry key;
    CString text;
    CByteArray bytes;
    CStringArray texts;
    DWORD number = 0;
    DWORD size = 0;
    char name[10];
    DWORD nameSize = sizeof name;
    Registry::KeyValueTypes type = Registry::TypeNone;
    constexpr DWORD kInvalidHandle = 6;
    EXPECT_TRUE(Refused(key, key.Flush(), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.DeleteKey("x", false), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.DeleteKey("x", true), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.DeleteValue("x"), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(0, text, text), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(0, text), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(0, name, &nameSize, nullptr, nullptr), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.EnumerateValues(0, text, type), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.EnumerateValues(0, text, type, nullptr, size), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.EnumerateValues(0, name, &nameSize, &type, nullptr, &size), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.QueryInfo(), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.QueryValue("x", type, nullptr, size), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.SetValue("x", Registry::TypeBinary, nullptr, 0), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.GetStringValue("x", text), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.SetStringValue("x", "y"), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.GetDoubleWordValue("x", number), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.SetDoubleWordValue("x", 1), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.GetBinaryValue("x", bytes), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.SetBinaryValue("x", bytes), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.GetStringArrayValue("x", texts), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.SetStringArrayValue("x", texts), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.Load("x", "y"), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.UnLoad("x"), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.Save("x", nullptr), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.Restore("x", 0), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.Replace(nullptr, "x", "y"), kInvalidHandle));
    EXPECT_TRUE(Refused(key, key.GetSecurity(DACL_SECURITY_INFORMATION, nullptr, size), kInvalidHandle));
    SECURITY_DESCRIPTOR descriptor;
    InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION);
    EXPECT_TRUE(Refused(key, key.SetSecurity(DACL_SECURITY_INFORMATION, &descriptor), kInvalidHandle));
    EXPECT_TRUE(
        Refused(key, key.NotifyChange(GetCurrentProcess(), Registry::NotifyName, false, false), kInvalidHandle));
    EXPECT_TRUE(Done(key, key.Close()));
}

TEST(RegistryInterface, ATimeBeyondTheCalendarIsAnInvalidArgument)
{
    // 100-nanosecond steps from 1601 to the last second of 1969 and the first of 1970.
    constexpr ULONGLONG k1970 = 116444736000000000ull;
    const auto time = [](ULONGLONG steps)
    {
        return FILETIME{static_cast<DWORD>(steps), static_cast<DWORD>(steps >> 32)};
    };
    EXPECT_EQ(vorn::WriteTime(time(k1970)).GetTime(), 0);
    EXPECT_EQ(vorn::WriteTime(time(k1970 + 17092100960000000ull)).GetTime(), 1709210096);
    for (const ULONGLONG steps : {0ull, k1970 - 10000000, ~0ull})
    {
        EXPECT_THROWN(vorn::WriteTime(time(steps)), COleException);
    }
}
