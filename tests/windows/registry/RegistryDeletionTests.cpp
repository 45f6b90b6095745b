#include "tests/windows/registry/ScratchRegistry.h"

using namespace vorn::test;

namespace
{
using RegistryDeletion = ScratchRegistry;

/// A link to another key below the open one for as long as it lives. A key that is a link cannot be deleted by its path
/// while the other has keys below it: the system then means the other.
class Link
{
public:
    Link(const Registry& parent, const char* path, const std::wstring& target)
    {
        constexpr DWORD kOptions = REG_OPTION_CREATE_LINK | REG_OPTION_VOLATILE;
        HKEY made = nullptr;
        EXPECT_EQ(RegCreateKeyExA(parent.Key(), path, 0, nullptr, kOptions, KEY_ALL_ACCESS, nullptr, &made, nullptr),
                  ERROR_SUCCESS);
        m_link.reset(made);
        EXPECT_EQ(RegSetValueExW(made, L"SymbolicLinkValue", 0, REG_LINK, reinterpret_cast<const BYTE*>(target.data()),
                                 static_cast<DWORD>(target.size() * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }
    ~Link()
    {
        const auto deleteKey = reinterpret_cast<LONG(NTAPI*)(HANDLE)>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll"), "NtDeleteKey")));
        EXPECT_EQ(deleteKey(m_link.get()), 0);
    }
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

private:
    vorn::RegistryKey m_link;
};
} // namespace

TEST_F(RegistryDeletion, DeletesAKeyBelow)
{
    MakeKey("Below");
    Put("Value", REG_SZ, "x", "Below");
    EXPECT_TRUE(Done(key, key.DeleteKey("Below", false)));
    EXPECT_FALSE(HasKey("Below"));
    EXPECT_TRUE(Refused(key, key.DeleteKey("Below", false), ERROR_FILE_NOT_FOUND));
    EXPECT_TRUE(Refused(key, key.DeleteKey("Below", true), ERROR_FILE_NOT_FOUND));
}

TEST_F(RegistryDeletion, RefusesAKeyWithKeysBelowUnlessRecursive)
{
    MakeKey("A\\B");
    EXPECT_TRUE(Refused(key, key.DeleteKey("A", false), ERROR_ACCESS_DENIED));
    EXPECT_TRUE(HasKey("A\\B"));
    EXPECT_TRUE(Done(key, key.DeleteKey("A", true)));
    EXPECT_FALSE(HasKey("A"));
}

TEST_F(RegistryDeletion, RecursiveTakesTheWholeSubtree)
{
    for (const char* path : {"A\\B\\C\\D", "A\\B\\E", "A\\F", "A\\G\\H", "Stays\\Too"})
    {
        Put("Value", REG_SZ, "x", path);
    }
    EXPECT_TRUE(Done(key, key.DeleteKey("A", true)));
    EXPECT_FALSE(HasKey("A"));
    EXPECT_TRUE(HasKey("Stays\\Too"));
    EXPECT_TRUE(HasKey(""));
}

TEST_F(RegistryDeletion, RecursiveOfAKeyWithoutKeysBelow)
{
    MakeKey("A");
    EXPECT_TRUE(Done(key, key.DeleteKey("A", true)));
    EXPECT_FALSE(HasKey("A"));
}

TEST_F(RegistryDeletion, OfAPathTakesItsLastKeyOnly)
{
    MakeKey("a\\b\\c");
    const HKEY handle = key.Key();
    EXPECT_TRUE(Done(key, key.DeleteKey("a\\b\\c", false)));
    EXPECT_FALSE(HasKey("a\\b\\c"));
    EXPECT_TRUE(HasKey("a\\b"));
    EXPECT_EQ(key.Key(), handle);
    EXPECT_TRUE(Done(key, key.SetStringValue("Name", "the open key stays open")));
    MakeKey("a\\b\\c\\d");
    EXPECT_TRUE(Done(key, key.DeleteKey("\\a\\b\\", true)));
    EXPECT_FALSE(HasKey("a\\b"));
    EXPECT_TRUE(HasKey("a"));
    EXPECT_TRUE(Refused(key, key.DeleteKey("x\\y", false), ERROR_FILE_NOT_FOUND));
}

TEST_F(RegistryDeletion, OfNothingIsAnInvalidParameterAndTheOpenKeyStays)
{
    MakeKey("a");
    for (const char* path : {static_cast<const char*>(nullptr), "", "\\", "\\\\", "a\\\\"})
    {
        EXPECT_TRUE(Refused(key, key.DeleteKey(path, false), ERROR_INVALID_PARAMETER));
        EXPECT_TRUE(Refused(key, key.DeleteKey(path, true), ERROR_INVALID_PARAMETER));
        EXPECT_TRUE(HasKey("a"));
    }
}

TEST_F(RegistryDeletion, ClosesWhatItOpened)
{
    MakeKey("a\\b\\c\\d");
    MakeKey("a\\b\\e");
    const std::size_t before = FirstFreeHandle();
    EXPECT_TRUE(key.DeleteKey("a\\b\\c\\d", false));
    EXPECT_TRUE(key.DeleteKey("a\\b", true));
    EXPECT_FALSE(key.DeleteKey("x\\y", true));
    EXPECT_EQ(FirstFreeHandle(), before);
}

TEST_F(RegistryDeletion, EndsAtTheFirstKeyThatCannotBeDeletedAndSaysWhy)
{
    const ScratchKey target(HKEY_LOCAL_MACHINE, "Software\\VornTests\\LinkTarget");
    Registry machine;
    ASSERT_TRUE(machine.Connect(HKEY_LOCAL_MACHINE, nullptr));
    ASSERT_TRUE(machine.Create((target.Path() + "\\Below").c_str(), nullptr, Registry::OptionNonVolatile,
                               Registry::PermissionAllAccess, nullptr, nullptr));
    MakeKey("A\\B");
    MakeKey("A\\D");
    {
        const Link link(key, "A\\B\\C", L"\\Registry\\Machine\\Software\\VornTests\\LinkTarget");
        const std::size_t before = FirstFreeHandle();
        EXPECT_TRUE(Refused(key, key.DeleteKey("A", true), ERROR_ACCESS_DENIED));
        EXPECT_EQ(FirstFreeHandle(), before);
        EXPECT_TRUE(HasKey("A\\B\\C"));
        EXPECT_TRUE(HasKey("A\\D"));
    }
    EXPECT_TRUE(machine.Open((target.Path() + "\\Below").c_str(), Registry::PermissionRead));
    EXPECT_TRUE(Done(key, key.DeleteKey("A", true)));
    EXPECT_FALSE(HasKey("A"));
}

TEST_F(RegistryDeletion, GoesAsDeepAsKeysGo)
{
    MakeDeepKey(std::vector<std::string>(500, "D"));
    EXPECT_TRUE(Done(key, key.DeleteKey("D", true)));
    EXPECT_FALSE(HasKey("D"));
}

TEST_F(RegistryDeletion, TakesLongNames)
{
    MakeDeepKey({"A", std::string(230, 'k'), std::string(255, 'k')});
    EXPECT_TRUE(Done(key, key.DeleteKey("A", true)));
    EXPECT_FALSE(HasKey("A"));
}

TEST_F(RegistryDeletion, OfValues)
{
    Put("Value", REG_SZ, "x");
    Put("", REG_SZ, "default");
    EXPECT_TRUE(Refused(key, key.DeleteValue(nullptr), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(Get("").has_value());
    EXPECT_TRUE(Done(key, key.DeleteValue("Value")));
    EXPECT_FALSE(Get("Value").has_value());
    EXPECT_TRUE(Refused(key, key.DeleteValue("Value"), ERROR_FILE_NOT_FOUND));
    EXPECT_TRUE(Done(key, key.DeleteValue("")));
    EXPECT_FALSE(Get("").has_value());
}
