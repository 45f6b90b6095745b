#include "tests/windows/registry/ScratchRegistry.h"

#include <sddl.h>

#include <thread>

using namespace vorn::test;

namespace
{
using RegistryHives = ScratchRegistry;
using RegistrySecurity = ScratchRegistry;
constexpr DWORD kInvalidParameter = 87;

class RegistryNotification : public ScratchRegistry
{
protected:
    RegistryNotification() : event(CreateEventA(nullptr, TRUE, FALSE, nullptr))
    {
    }
    ~RegistryNotification() override
    {
        CloseHandle(event);
    }

    bool IsSignalled(DWORD milliseconds) const
    {
        return WaitForSingleObject(event, milliseconds) == WAIT_OBJECT_0;
    }

    HANDLE event;
};

constexpr DWORD kDeadline = 5000; // milliseconds
} // namespace

TEST_F(RegistryHives, NullArgumentsAreInvalid)
{
    EXPECT_TRUE(Refused(key, key.Load(nullptr, "file"), kInvalidParameter));
    EXPECT_TRUE(Refused(key, key.Load("subkey", nullptr), kInvalidParameter));
    EXPECT_TRUE(Refused(key, key.UnLoad(nullptr), kInvalidParameter));
    EXPECT_TRUE(Refused(key, key.Save(nullptr, nullptr), kInvalidParameter));
    EXPECT_TRUE(Refused(key, key.Restore(nullptr, 0), kInvalidParameter));
    EXPECT_TRUE(Refused(key, key.Replace("subkey", nullptr, "old"), kInvalidParameter));
    EXPECT_TRUE(Refused(key, key.Replace("subkey", "new", nullptr), kInvalidParameter));
}

// Without the backup and restore privileges the system refuses; what it would do with them is not seen here.
TEST_F(RegistryHives, TheSystemsRefusalIsReported)
{
    char folder[MAX_PATH];
    GetTempPathA(MAX_PATH, folder);
    const std::string file = std::string(folder) + "vorn-no-such-hive";
    EXPECT_TRUE(Refused(key, key.Save(file.c_str(), nullptr), ERROR_PRIVILEGE_NOT_HELD));
    ASSERT_TRUE(key.Connect(HKEY_LOCAL_MACHINE, nullptr));
    EXPECT_TRUE(Refused(key, key.Load("VornTestHive", file.c_str()), ERROR_PRIVILEGE_NOT_HELD));
    EXPECT_TRUE(Refused(key, key.UnLoad("VornTestHive"), ERROR_PRIVILEGE_NOT_HELD));
    DeleteFileA(file.c_str());
}

TEST_F(RegistrySecurity, IsReadIntoTheRoomThatItNeeds)
{
    DWORD size = 0;
    EXPECT_TRUE(Refused(key, key.GetSecurity(OWNER_SECURITY_INFORMATION, nullptr, size), ERROR_INSUFFICIENT_BUFFER));
    ASSERT_GT(size, 0u);
    std::vector<BYTE> descriptor(size);
    size = 100000; // no room, whatever is said
    EXPECT_TRUE(Refused(key, key.GetSecurity(OWNER_SECURITY_INFORMATION, nullptr, size), ERROR_INSUFFICIENT_BUFFER));
    size = static_cast<DWORD>(descriptor.size());
    EXPECT_TRUE(Done(key, key.GetSecurity(OWNER_SECURITY_INFORMATION, descriptor.data(), size)));
    EXPECT_TRUE(IsValidSecurityDescriptor(descriptor.data()));
}

TEST_F(RegistrySecurity, IsReadAsItWasWritten)
{
    PSECURITY_DESCRIPTOR made = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorA("D:(A;;KR;;;WD)(A;;KA;;;BA)", SDDL_REVISION_1,
                                                                     &made, nullptr));
    EXPECT_TRUE(Done(key, key.SetSecurity(DACL_SECURITY_INFORMATION, made)));
    LocalFree(made);
    std::vector<BYTE> read(1000);
    DWORD size = 1000;
    EXPECT_TRUE(Done(key, key.GetSecurity(DACL_SECURITY_INFORMATION, read.data(), size)));
    BOOL present = FALSE;
    BOOL defaulted = FALSE;
    PACL list = nullptr;
    ASSERT_TRUE(GetSecurityDescriptorDacl(read.data(), &present, &list, &defaulted));
    ASSERT_TRUE(present);
    ASSERT_EQ(list->AceCount, 2);
    void* rule = nullptr;
    ASSERT_TRUE(GetAce(list, 0, &rule));
    EXPECT_EQ(static_cast<ACCESS_ALLOWED_ACE*>(rule)->Mask, static_cast<DWORD>(KEY_READ));
    ASSERT_TRUE(GetAce(list, 1, &rule));
    EXPECT_EQ(static_cast<ACCESS_ALLOWED_ACE*>(rule)->Mask, static_cast<DWORD>(KEY_ALL_ACCESS));
}

TEST_F(RegistrySecurity, WithoutDescriptorIsInvalid)
{
    EXPECT_TRUE(Refused(key, key.SetSecurity(DACL_SECURITY_INFORMATION, nullptr), kInvalidParameter));
}

TEST_F(RegistryNotification, SignalsAChangeOfAValue)
{
    EXPECT_TRUE(Done(key, key.NotifyChange(event, Registry::NotifyLastSet, false, false)));
    EXPECT_FALSE(IsSignalled(0));
    Put("Name", REG_SZ, "x");
    EXPECT_TRUE(IsSignalled(kDeadline));
}

TEST_F(RegistryNotification, HeedsTheFilter)
{
    EXPECT_TRUE(Done(key, key.NotifyChange(event, Registry::NotifyName, false, false)));
    Put("Name", REG_SZ, "x");
    EXPECT_FALSE(IsSignalled(0));
    MakeKey("Below");
    EXPECT_TRUE(IsSignalled(kDeadline));
}

TEST_F(RegistryNotification, WatchesTheSubtreeWhenAsked)
{
    MakeKey("Below");
    EXPECT_TRUE(Done(key, key.NotifyChange(event, Registry::NotifyLastSet, false, false)));
    Put("Name", REG_SZ, "x", "Below");
    EXPECT_FALSE(IsSignalled(0));
    const HANDLE second = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    Registry another = Opened();
    EXPECT_TRUE(Done(another, another.NotifyChange(second, Registry::NotifyLastSet, true, false)));
    Put("Name", REG_SZ, "y", "Below");
    EXPECT_EQ(WaitForSingleObject(second, kDeadline), WAIT_OBJECT_0);
    CloseHandle(second);
}

TEST_F(RegistryNotification, WithoutEventAndWithoutWaitingIsInvalid)
{
    EXPECT_TRUE(Refused(key, key.NotifyChange(nullptr, Registry::NotifyName, false, false), kInvalidParameter));
}

TEST_F(RegistryNotification, WaitsForTheChangeWhenAsked)
{
    bool stop = false;
    Registry other = Opened();
    std::thread changing(
        [&, value = DWORD{0}]() mutable
        {
            while (!std::atomic_ref(stop).load())
            {
                other.SetDoubleWordValue("Number", ++value);
                Sleep(5);
            }
        });
    const bool notified = key.NotifyChange(nullptr, Registry::NotifyLastSet, false, true);
    std::atomic_ref(stop).store(true);
    changing.join();
    EXPECT_TRUE(Done(key, notified));
    EXPECT_TRUE(Get("Number").has_value());
}
