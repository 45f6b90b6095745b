#include "tests/windows/registry/ScratchRegistry.h"

#include <algorithm>
#include <map>
#include <set>

using namespace vorn::test;

namespace
{
using RegistryEnumeration = ScratchRegistry;
constexpr DWORD kNoMore = ERROR_NO_MORE_ITEMS;
} // namespace

TEST_F(RegistryEnumeration, ListsTheKeysBelow)
{
    std::set<std::string> expected;
    for (int i = 0; i < 20; ++i)
    {
        expected.insert("Key " + std::to_string(i));
        MakeKey("Key " + std::to_string(i));
    }
    std::set<std::string> found;
    CString name;
    DWORD index = 0;
    while (key.EnumerateKeys(index, name))
    {
        EXPECT_EQ(key.GetLastError(), 0u);
        found.insert(Std(name));
        ++index;
    }
    EXPECT_EQ(key.GetLastError(), kNoMore);
    EXPECT_EQ(index, 20u);
    EXPECT_EQ(found, expected);
}

TEST_F(RegistryEnumeration, GivesClassNamesOfAnyLength)
{
    CString name;
    CString className;
    Registry below = Opened();
    for (const std::size_t length : {0, 5, 255, 256, 3000})
    {
        const std::string text(length, 'c');
        ASSERT_TRUE(below.Create(Path("Below").c_str(), text.c_str(), Registry::OptionNonVolatile,
                                 Registry::PermissionAllAccess, nullptr, nullptr));
        EXPECT_TRUE(Done(key, key.EnumerateKeys(0, name, className)));
        EXPECT_EQ(Std(name), "Below");
        EXPECT_EQ(Std(className), text);
        ASSERT_TRUE(key.DeleteKey("Below", false));
    }
    name = "untouched";
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(0, name, className), kNoMore));
    EXPECT_EQ(Std(name), "untouched");
}

TEST_F(RegistryEnumeration, KeyNamesMayBeLong)
{
    const std::string longName(230, 'k');
    MakeDeepKey({longName});
    CString name;
    EXPECT_TRUE(Done(key, key.EnumerateKeys(0, name)));
    EXPECT_EQ(Std(name), longName);
}

TEST_F(RegistryEnumeration, IntoBuffersSaysHowLongTheTextsAre)
{
    MakeKey("Below");
    char name[6];
    DWORD nameSize = sizeof name;
    char className[10];
    DWORD classSize = sizeof className;
    EXPECT_TRUE(Done(key, key.EnumerateKeys(0, name, &nameSize, className, &classSize)));
    EXPECT_STREQ(name, "Below");
    EXPECT_EQ(nameSize, 5u);
    EXPECT_EQ(classSize, 0u);
    nameSize = sizeof name;
    EXPECT_TRUE(Done(key, key.EnumerateKeys(0, name, &nameSize, nullptr, nullptr)));
    nameSize = 5;
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(0, name, &nameSize, nullptr, nullptr), ERROR_MORE_DATA));
    nameSize = sizeof name;
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(1, name, &nameSize, nullptr, nullptr), kNoMore));
}

TEST_F(RegistryEnumeration, WithoutBuffersIsAnInvalidParameter)
{
    MakeKey("Below");
    Put("Name", REG_SZ, "x");
    char name[100];
    DWORD size = sizeof name;
    BYTE data[10];
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(0, nullptr, &size, nullptr, nullptr), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(0, name, nullptr, nullptr, nullptr), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(0, name, &size, name, nullptr), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(
        Refused(key, key.EnumerateValues(0, nullptr, &size, nullptr, nullptr, nullptr), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(
        Refused(key, key.EnumerateValues(0, name, nullptr, nullptr, nullptr, nullptr), ERROR_INVALID_PARAMETER));
    EXPECT_TRUE(Refused(key, key.EnumerateValues(0, name, &size, nullptr, data, nullptr), ERROR_INVALID_PARAMETER));
}

TEST_F(RegistryEnumeration, ListsTheValuesWithTheirTypes)
{
    Put("Text", REG_SZ, "x");
    Put("Number", REG_DWORD, "1234");
    Put("", REG_BINARY, "b");
    std::map<std::string, DWORD> found;
    CString name;
    Registry::KeyValueTypes type = Registry::TypeNone;
    DWORD index = 0;
    for (; key.EnumerateValues(index, name, type); ++index)
    {
        found[Std(name)] = type;
    }
    EXPECT_EQ(key.GetLastError(), kNoMore);
    EXPECT_EQ(index, 3u);
    EXPECT_EQ(found, (std::map<std::string, DWORD>{{"Text", REG_SZ}, {"Number", REG_DWORD}, {"", REG_BINARY}}));
}

TEST_F(RegistryEnumeration, GivesTheDataOfValues)
{
    Put("Bytes", REG_BINARY, "12345");
    CString name;
    Registry::KeyValueTypes type = Registry::TypeNone;
    BYTE data[10] = {};
    DWORD size = sizeof data;
    EXPECT_TRUE(Done(key, key.EnumerateValues(0, name, type, data, size)));
    EXPECT_EQ(Std(name), "Bytes");
    EXPECT_EQ(DWORD{type}, DWORD{REG_BINARY});
    EXPECT_EQ(size, 5u);
    EXPECT_EQ(std::string(data, data + 5), "12345");
    size = 77;
    EXPECT_TRUE(Done(key, key.EnumerateValues(0, name, type, nullptr, size)));
    EXPECT_EQ(size, 5u);
    EXPECT_TRUE(Refused(key, key.EnumerateValues(1, name, type, data, size), kNoMore));
}

TEST_F(RegistryEnumeration, SaysHowMuchRoomTheDataNeed)
{
    const std::string longName(600, 'v'); // its room is asked for as well
    for (const std::string& valueName : {std::string("Bytes"), longName})
    {
        Put(valueName, REG_BINARY, "12345");
        CString name = "untouched";
        auto type = Registry::TypeLink;
        BYTE data[5] = {9, 9, 9, 9, 9};
        DWORD size = 4;
        EXPECT_TRUE(Refused(key, key.EnumerateValues(0, name, type, data, size), ERROR_MORE_DATA));
        EXPECT_EQ(size, 5u);
        EXPECT_EQ(data[4], 9);
        EXPECT_EQ(Std(name), "untouched");
        EXPECT_EQ(type, Registry::TypeLink);
        EXPECT_TRUE(Done(key, key.EnumerateValues(0, name, type, data, size)));
        EXPECT_EQ(Std(name), valueName);
        EXPECT_EQ(std::string(data, data + 5), "12345");
        ASSERT_TRUE(key.DeleteValue(valueName.c_str()));
    }
}

// The key's facts know nothing of values that came after it was opened.
TEST_F(RegistryEnumeration, FindsLongNamesAddedAfterOpening)
{
    for (const std::size_t length : {230, 255, 256, 257, 5000, 16000})
    {
        const std::string longName(length, 'v');
        Put(longName, REG_SZ, std::string_view("text\0", 5));
        CString name;
        Registry::KeyValueTypes type = Registry::TypeNone;
        EXPECT_TRUE(Done(key, key.EnumerateValues(0, name, type))) << length;
        EXPECT_EQ(Std(name), longName);
        BYTE data[5];
        DWORD size = sizeof data;
        EXPECT_TRUE(Done(key, key.EnumerateValues(0, name, type, data, size))) << length;
        EXPECT_EQ(Std(name), longName);
        EXPECT_EQ(size, 5u);
        ASSERT_TRUE(key.DeleteValue(longName.c_str()));
    }
    EXPECT_EQ(key.LongestValueName(), 0u);
}

TEST_F(RegistryEnumeration, OfValuesIntoBuffers)
{
    Put("Bytes", REG_BINARY, "12345");
    char name[6];
    DWORD nameSize = sizeof name;
    Registry::KeyValueTypes type = Registry::TypeNone;
    BYTE data[5];
    DWORD dataSize = sizeof data;
    EXPECT_TRUE(Done(key, key.EnumerateValues(0, name, &nameSize, &type, data, &dataSize)));
    EXPECT_STREQ(name, "Bytes");
    EXPECT_EQ(nameSize, 5u);
    EXPECT_EQ(type, Registry::TypeBinary);
    EXPECT_EQ(dataSize, 5u);
    nameSize = 5;
    EXPECT_TRUE(Refused(key, key.EnumerateValues(0, name, &nameSize, nullptr, nullptr, nullptr), ERROR_MORE_DATA));
    nameSize = sizeof name;
    EXPECT_TRUE(Done(key, key.EnumerateValues(0, name, &nameSize, nullptr, nullptr, nullptr)));
    EXPECT_TRUE(Refused(key, key.EnumerateValues(7, name, &nameSize, nullptr, nullptr, nullptr), kNoMore));
}
