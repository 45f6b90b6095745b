#include "apps/vorntool/core/RegistryWords.h"

#include <gtest/gtest.h>

using namespace vorn::tool;
using namespace std::string_view_literals;

namespace
{
std::string Address(std::string_view text)
{
    const std::optional<KeyAddress> address = ParseKeyAddress(text);
    return address ? address->root + "|" + address->path : "none";
}
} // namespace

TEST(ToolRegistry, KeysAreNamedByRootAndPath)
{
    EXPECT_EQ(Address("HKEY_CURRENT_USER\\Software\\Vornwald"), "HKEY_CURRENT_USER|Software\\Vornwald");
    EXPECT_EQ(Address("HKEY_LOCAL_MACHINE"), "HKEY_LOCAL_MACHINE|");
    EXPECT_EQ(Address("HKEY_USERS\\"), "HKEY_USERS|");
    EXPECT_EQ(Address("HKEY_CURRENT_CONFIG\\a\\"), "HKEY_CURRENT_CONFIG|a");
    EXPECT_EQ(Address("HKEY_DYN_DATA\\a"), "HKEY_DYN_DATA|a");
}

TEST(ToolRegistry, RootsHaveShortNamesAndNoLetterCase)
{
    EXPECT_EQ(Address("HKCU\\Software"), "HKEY_CURRENT_USER|Software");
    EXPECT_EQ(Address("hklm\\Software"), "HKEY_LOCAL_MACHINE|Software");
    EXPECT_EQ(Address("HKCR"), "HKEY_CLASSES_ROOT|");
    EXPECT_EQ(Address("hku"), "HKEY_USERS|");
    EXPECT_EQ(Address("HKCC"), "HKEY_CURRENT_CONFIG|");
    EXPECT_EQ(Address("hkey_current_user\\x"), "HKEY_CURRENT_USER|x");
}

TEST(ToolRegistry, OtherWordsAreNoKeys)
{
    for (const char* word : {"", "\\", "Software", "HKCU/Software", "HKCUSoftware", "HKC", "\\HKCU", "HKCU\\\\a",
                             "HKCU\\a\\\\b", "HKCU\\a\\\\", "HKCU\\\\", "C:\\Windows"})
    {
        EXPECT_EQ(Address(word), "none") << word;
    }
}

TEST(ToolRegistry, KeysBelowHaveOneBackslashMore)
{
    EXPECT_EQ((KeyAddress{"HKEY_USERS", ""}.Text()), "HKEY_USERS");
    EXPECT_EQ((KeyAddress{"HKEY_USERS", ""}.Below("a").Text()), "HKEY_USERS\\a");
    EXPECT_EQ((KeyAddress{"HKEY_USERS", "a"}.Below("b").Text()), "HKEY_USERS\\a\\b");
}

TEST(ToolRegistry, TypesHaveShortNames)
{
    EXPECT_EQ(TypeNamed("sz"), 1u);
    EXPECT_EQ(TypeNamed("expand"), 2u);
    EXPECT_EQ(TypeNamed("binary"), 3u);
    EXPECT_EQ(TypeNamed("dword"), 4u);
    EXPECT_EQ(TypeNamed("list"), 7u);
    for (const char* name : {"", "SZ", "none", "qword", "type 42", "text"})
    {
        EXPECT_EQ(TypeNamed(name), std::nullopt) << name;
    }
    EXPECT_EQ(NameOfType(7), "list");
    EXPECT_EQ(NameOfType(0), "none");
    EXPECT_EQ(NameOfType(11), "qword");
    EXPECT_EQ(NameOfType(42), "type 42");
}

TEST(ToolRegistry, NumbersHave32Bits)
{
    EXPECT_EQ(ParseRegistryNumber("0"), 0u);
    EXPECT_EQ(ParseRegistryNumber("-1"), 0xFFFFFFFFu);
    EXPECT_EQ(ParseRegistryNumber("4294967295"), 0xFFFFFFFFu);
    EXPECT_EQ(ParseRegistryNumber("0x1f"), 0x1Fu);
    EXPECT_EQ(ParseRegistryNumber("0XFFFFFFFF"), 0xFFFFFFFFu);
    for (const char* text : {"", "4294967296", "-2147483649", "0x", "0x100000000", "0x-1", "12a", " 1", "1.5"})
    {
        EXPECT_EQ(ParseRegistryNumber(text), std::nullopt) << text;
    }
}

TEST(ToolRegistry, BytesAreHexadecimalDigitsInPairs)
{
    EXPECT_EQ(ParseHexBytes("00ff7F"), "\x00\xFF\x7F"sv);
    EXPECT_EQ(ParseHexBytes("00 ff 7f"), "\x00\xFF\x7F"sv);
    EXPECT_EQ(ParseHexBytes("00,ff"), "\x00\xFF"sv);
    EXPECT_EQ(ParseHexBytes(""), "");
    for (const char* text : {"0", "00f", "0x00", "gg", "0 0", " 00", "00  ff", "+1"})
    {
        EXPECT_EQ(ParseHexBytes(text), std::nullopt) << text;
    }
    EXPECT_EQ(HexBytes("\x00\xFF\x7F"sv), "00ff7f");
}
