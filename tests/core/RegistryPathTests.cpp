#include "config/core/RegistryPath.h"
#include "config/core/RegistryRoots.h"

#include <gtest/gtest.h>

using namespace vorn;

TEST(RegistryRoots, AreTheSixDocumentedOnesInBothDirections)
{
    constexpr std::pair<std::uint32_t, const char*> kRoots[] = {
        {0x80000000, "HKEY_CLASSES_ROOT"}, {0x80000001, "HKEY_CURRENT_USER"},   {0x80000002, "HKEY_LOCAL_MACHINE"},
        {0x80000003, "HKEY_USERS"},        {0x80000005, "HKEY_CURRENT_CONFIG"}, {0x80000006, "HKEY_DYN_DATA"}};
    for (const auto& [handle, name] : kRoots)
    {
        EXPECT_EQ(RootName(handle), name);
        EXPECT_EQ(RootNamed(name), handle);
    }
}

TEST(RegistryRoots, HaveNoOtherHandlesAndNames)
{
    for (const std::uint32_t handle : {0u, 1u, 0x7FFFFFFFu, 0x80000004u, 0x80000007u, 0x80000050u, 0xFFFFFFFFu})
    {
        EXPECT_EQ(RootName(handle), std::nullopt) << handle;
    }
    for (const char* name : {"", "hkey_local_machine", "HKEY_LOCAL_MACHINE ", "HKEY_LOCAL_MACHIN", "HKLM",
                             "HKEY_PERFORMANCE_DATA", "HKEY_LOCAL_MACHINE\\Software"})
    {
        EXPECT_EQ(RootNamed(name), std::nullopt) << name;
    }
}

TEST(NormalizedKey, LosesOneBackslashAtEachEndWhenTheRootIsNotAllowed)
{
    EXPECT_EQ(NormalizedKey("\\Software\\Vornwald\\", false), "Software\\Vornwald");
    EXPECT_EQ(NormalizedKey("Software\\Vornwald", false), "Software\\Vornwald");
    EXPECT_EQ(NormalizedKey("Software\\", false), "Software");
    EXPECT_EQ(NormalizedKey("\\Software", false), "Software");
    EXPECT_EQ(NormalizedKey("\\\\Software\\\\", false), "\\Software\\");
}

TEST(NormalizedKey, KeepsTheLeadingBackslashWhenTheRootIsAllowed)
{
    EXPECT_EQ(NormalizedKey("\\Software\\Vornwald\\", true), "\\Software\\Vornwald");
    EXPECT_EQ(NormalizedKey("Software\\Vornwald\\\\", true), "Software\\Vornwald\\");
}

TEST(NormalizedKey, OfNothingIsTheRootOrEmpty)
{
    EXPECT_EQ(NormalizedKey("", false), "");
    EXPECT_EQ(NormalizedKey("", true), "\\");
    EXPECT_EQ(NormalizedKey("\\", false), "");
    EXPECT_EQ(NormalizedKey("\\", true), "\\");
    EXPECT_EQ(NormalizedKey("\\\\", false), "");
    EXPECT_EQ(NormalizedKey("\\\\", true), "\\");
    EXPECT_EQ(NormalizedKey("\\\\\\", false), "\\");
}

TEST(JoinedKeys, HaveExactlyOneBackslashBetweenThem)
{
    EXPECT_EQ(JoinedKeys("Software", "Vornwald"), "Software\\Vornwald");
    EXPECT_EQ(JoinedKeys("Software\\", "Vornwald"), "Software\\Vornwald");
    EXPECT_EQ(JoinedKeys("Software", "\\Vornwald"), "Software\\Vornwald");
    EXPECT_EQ(JoinedKeys("Software\\\\\\", "\\\\Vornwald"), "Software\\Vornwald");
    EXPECT_EQ(JoinedKeys("A\\\\B", "C\\\\D\\"), "A\\\\B\\C\\\\D\\");
}

TEST(JoinedKeys, OneOfWhichIsEmptyAreTheOther)
{
    EXPECT_EQ(JoinedKeys("", "Vornwald"), "Vornwald");
    EXPECT_EQ(JoinedKeys("Software", ""), "Software");
    EXPECT_EQ(JoinedKeys("", "\\Vornwald"), "\\Vornwald");
    EXPECT_EQ(JoinedKeys("Software\\", ""), "Software\\");
    EXPECT_EQ(JoinedKeys("", ""), "");
}

TEST(JoinedKeys, OfBackslashesAloneKeepOne)
{
    EXPECT_EQ(JoinedKeys("\\", "Software"), "\\Software");
    EXPECT_EQ(JoinedKeys("Software", "\\\\"), "Software\\");
    EXPECT_EQ(JoinedKeys("\\\\", "\\\\"), "\\");
}

TEST(SplitKey, TakesTheLastNameOff)
{
    EXPECT_EQ(SplitKey("a\\b\\c").parent, "a\\b");
    EXPECT_EQ(SplitKey("a\\b\\c").name, "c");
    EXPECT_EQ(SplitKey("c").parent, "");
    EXPECT_EQ(SplitKey("c").name, "c");
    EXPECT_EQ(SplitKey("a\\").parent, "a");
    EXPECT_EQ(SplitKey("a\\").name, "");
    EXPECT_EQ(SplitKey("").parent, "");
    EXPECT_EQ(SplitKey("").name, "");
}
