#include "tests/windows/registry/ScratchRegistry.h"

using namespace vorn::test;
using namespace std::string_view_literals;

namespace
{
constexpr DWORD kWrongType = 1804;
constexpr DWORD kRefused = 87;
constexpr DWORD kInvalidData = 13;
constexpr DWORD kNotFound = 2;

class RegistryValues : public ScratchRegistry
{
protected:
    std::string Text(const char* name)
    {
        CString value = "untouched";
        key.GetStringValue(name, value);
        return Std(value);
    }

    std::vector<std::string> Texts(const char* name)
    {
        CStringArray value;
        value.Add("untouched");
        key.GetStringArrayValue(name, value);
        return Std(value);
    }
};

using TextList = std::vector<std::string>;

RawValue TextValue(std::string_view text)
{
    return {REG_SZ, std::string(text) + '\0'};
}

RawValue NumberValue(DWORD number)
{
    return {REG_DWORD, std::string(reinterpret_cast<const char*>(&number), sizeof number)};
}
} // namespace

TEST_F(RegistryValues, RawBytesGoInAndOut)
{
    BYTE data[] = {1, 0, 2, 0};
    EXPECT_TRUE(Done(key, key.SetValue("Bytes", Registry::TypeQuadWord, data, sizeof data)));
    EXPECT_EQ(Get("Bytes"), (RawValue{REG_QWORD, std::string("\1\0\2\0", 4)}));
    BYTE read[10] = {};
    DWORD size = sizeof read;
    Registry::KeyValueTypes type = Registry::TypeNone;
    EXPECT_TRUE(Done(key, key.QueryValue("Bytes", type, read, size)));
    EXPECT_EQ(type, Registry::TypeQuadWord);
    EXPECT_EQ(size, 4u);
    EXPECT_EQ(read[2], 2);
}

TEST_F(RegistryValues, RawReadsTellTheRoomNeeded)
{
    Put("Bytes", REG_BINARY, "12345");
    BYTE read[4] = {};
    DWORD size = sizeof read;
    Registry::KeyValueTypes type = Registry::TypeNone;
    EXPECT_TRUE(Refused(key, key.QueryValue("Bytes", type, read, size), ERROR_MORE_DATA));
    EXPECT_EQ(size, 5u);
    EXPECT_EQ(type, Registry::TypeBinary);
    size = 0;
    EXPECT_TRUE(Done(key, key.QueryValue("Bytes", type, nullptr, size)));
    EXPECT_EQ(size, 5u);
    EXPECT_TRUE(Refused(key, key.QueryValue("Absent", type, nullptr, size), kNotFound));
}

TEST_F(RegistryValues, RawTextsAreStoredToTheByte)
{
    BYTE data[] = {'a', 'b', 'c', 0};
    for (const auto type : {Registry::TypeString, Registry::TypeExpandString, Registry::TypeMultiString})
    {
        EXPECT_TRUE(Done(key, key.SetValue("Text", type, data, 3)));
        EXPECT_EQ(Get("Text"), (RawValue{type, "abc"}));
        EXPECT_TRUE(Done(key, key.SetValue("Text", type, data, 4)));
        EXPECT_EQ(Get("Text"), (RawValue{type, std::string("abc\0", 4)}));
        EXPECT_TRUE(Done(key, key.SetValue("Text", type, nullptr, 0)));
        EXPECT_EQ(Get("Text"), (RawValue{type, ""}));
    }
    EXPECT_TRUE(Refused(key, key.SetValue("Text", Registry::TypeString, nullptr, 3), kRefused));
}

TEST_F(RegistryValues, NullNamesAreInvalidAndNeverTheDefaultValue)
{
    Put("", REG_SZ, "default\0"sv);
    CString text = "untouched";
    DWORD number = 7;
    DWORD size = 0;
    CByteArray bytes;
    CStringArray texts;
    BYTE data[] = {1};
    auto type = Registry::TypeLink;
    EXPECT_TRUE(Refused(key, key.QueryValue(nullptr, type, data, size), kRefused));
    EXPECT_TRUE(Refused(key, key.SetValue(nullptr, Registry::TypeBinary, data, 1), kRefused));
    EXPECT_TRUE(Refused(key, key.GetStringValue(nullptr, text), kRefused));
    EXPECT_TRUE(Refused(key, key.SetStringValue(nullptr, "x"), kRefused));
    EXPECT_TRUE(Refused(key, key.SetStringValue("x", nullptr), kRefused));
    EXPECT_TRUE(Refused(key, key.GetDoubleWordValue(nullptr, number), kRefused));
    EXPECT_TRUE(Refused(key, key.SetDoubleWordValue(nullptr, 1), kRefused));
    EXPECT_TRUE(Refused(key, key.GetBinaryValue(nullptr, bytes), kRefused));
    EXPECT_TRUE(Refused(key, key.SetBinaryValue(nullptr, bytes), kRefused));
    EXPECT_TRUE(Refused(key, key.GetStringArrayValue(nullptr, texts), kRefused));
    EXPECT_TRUE(Refused(key, key.SetStringArrayValue(nullptr, texts), kRefused));
    EXPECT_TRUE(Refused(key, key.GetValue(nullptr, number), kRefused));
    EXPECT_TRUE(Refused(key, key.SetValue(nullptr, 1), kRefused));
    EXPECT_EQ(Std(text), "untouched");
    EXPECT_EQ(number, 7u);
    EXPECT_EQ(type, Registry::TypeLink);
    EXPECT_EQ(Get(""), TextValue("default"));
}

TEST_F(RegistryValues, AnEmptyNameIsTheDefaultValue)
{
    EXPECT_TRUE(Done(key, key.SetStringValue("", "default")));
    EXPECT_EQ(Get(""), TextValue("default"));
    EXPECT_EQ(Text(""), "default");
}

TEST_F(RegistryValues, TextsGoInAndOut)
{
    EXPECT_TRUE(Done(key, key.SetStringValue("Name", "Denver")));
    EXPECT_EQ(Get("Name"), TextValue("Denver"));
    EXPECT_EQ(Text("Name"), "Denver");
    EXPECT_TRUE(Done(key, key.SetStringValue("Name", "")));
    EXPECT_EQ(Get("Name"), TextValue(""));
    EXPECT_EQ(Text("Name"), "");
    CString value;
    EXPECT_TRUE(Refused(key, key.GetStringValue("Absent", value), kNotFound));
}

TEST_F(RegistryValues, NamesOf230CharactersHoldValues)
{
    const std::string name(230, 'n');
    EXPECT_TRUE(Done(key, key.SetStringValue(name.c_str(), "Denver")));
    EXPECT_EQ(Text(name.c_str()), "Denver");
}

TEST_F(RegistryValues, TextsOf2048BytesWithTheirZeroAreRead)
{
    EXPECT_TRUE(key.SetStringValue("Name", std::string(2047, 't').c_str()));
    CString value = "untouched";
    EXPECT_TRUE(Done(key, key.GetStringValue("Name", value)));
    EXPECT_EQ(Std(value), std::string(2047, 't'));
    EXPECT_TRUE(Done(key, key.SetStringValue("Name", std::string(2048, 't').c_str())));
    value = "untouched";
    EXPECT_TRUE(Refused(key, key.GetStringValue("Name", value), ERROR_MORE_DATA));
    EXPECT_EQ(Std(value), "untouched");
}

TEST_F(RegistryValues, TextsWithoutClosingZeroEndWithTheirBytes)
{
    Put("Name", REG_SZ, "abc");
    EXPECT_EQ(Text("Name"), "abc");
    Put("Name", REG_SZ, "");
    EXPECT_EQ(Text("Name"), "");
    Put("Name", REG_SZ, std::string(2048, 't'));
    EXPECT_EQ(Text("Name"), std::string(2048, 't'));
    Put("Name", REG_SZ, "abc\0def\0"sv);
    EXPECT_EQ(Text("Name"), "abc");
}

TEST_F(RegistryValues, TextsWithVariablesAreReadAsStored)
{
    Put("Name", REG_EXPAND_SZ, "%windir%\\x\0"sv);
    CString value;
    EXPECT_TRUE(Done(key, key.GetStringValue("Name", value)));
    EXPECT_EQ(Std(value), "%windir%\\x");
}

TEST_F(RegistryValues, NumbersGoInAndOut)
{
    for (const DWORD number : {0ul, 1ul, 0x80000000ul, 0xFFFFFFFFul})
    {
        DWORD value = 77;
        EXPECT_TRUE(Done(key, key.SetDoubleWordValue("Number", number)));
        EXPECT_EQ(Get("Number"), NumberValue(number));
        EXPECT_TRUE(Done(key, key.GetDoubleWordValue("Number", value)));
        EXPECT_EQ(value, number);
    }
}

TEST_F(RegistryValues, NumbersHaveFourBytes)
{
    DWORD value = 77;
    for (const std::string_view bytes : {""sv, "123"sv, "12345"sv, "12345678"sv})
    {
        Put("Number", REG_DWORD, bytes);
        EXPECT_TRUE(Refused(key, key.GetDoubleWordValue("Number", value), kInvalidData)) << bytes;
    }
    EXPECT_TRUE(Refused(key, key.GetDoubleWordValue("Absent", value), kNotFound));
    EXPECT_EQ(value, 77u);
}

TEST_F(RegistryValues, OfAnotherTypeAreRefused)
{
    CString text = "untouched";
    DWORD number = 77;
    CStringArray texts;
    texts.Add("untouched");
    Put("Number", REG_DWORD, "1234");
    Put("Bytes", REG_BINARY, "1234");
    Put("Long bytes", REG_BINARY, std::string(5000, 'b'));
    Put("List", REG_MULTI_SZ, "a\0\0"sv);
    Put("Text", REG_SZ, "abc\0"sv);
    Put("Variables", REG_EXPAND_SZ, "abc\0"sv);
    Put("Big endian", REG_DWORD_BIG_ENDIAN, "1234");
    for (const char* name : {"Number", "Bytes", "Long bytes", "List"})
    {
        EXPECT_TRUE(Refused(key, key.GetStringValue(name, text), kWrongType)) << name;
    }
    for (const char* name : {"Bytes", "Long bytes", "List", "Text", "Big endian"})
    {
        EXPECT_TRUE(Refused(key, key.GetDoubleWordValue(name, number), kWrongType)) << name;
    }
    for (const char* name : {"Bytes", "Long bytes", "Number", "Variables"})
    {
        EXPECT_TRUE(Refused(key, key.GetStringArrayValue(name, texts), kWrongType)) << name;
    }
    EXPECT_EQ(Std(text), "untouched");
    EXPECT_EQ(number, 77u);
    EXPECT_EQ(Std(texts), TextList{"untouched"});
}

TEST_F(RegistryValues, BytesOfAnyLengthGoInAndOut)
{
    for (const std::size_t length : {0, 1, 1023, 1024, 1025, 10000})
    {
        std::string content(length, '\0');
        for (std::size_t i = 0; i < length; ++i)
        {
            content[i] = static_cast<char>(i * 7);
        }
        CByteArray bytes;
        Fill(bytes, content);
        EXPECT_TRUE(Done(key, key.SetBinaryValue("Bytes", bytes)));
        EXPECT_EQ(Get("Bytes"), (RawValue{REG_BINARY, content}));
        CByteArray read;
        Fill(read, "older content that is replaced");
        EXPECT_TRUE(Done(key, key.GetBinaryValue("Bytes", read)));
        EXPECT_EQ(Std(read), content);
    }
}

TEST_F(RegistryValues, BytesAreReadFromAnyType)
{
    CByteArray read;
    Put("Text", REG_SZ, "abc\0"sv);
    Put("List", REG_MULTI_SZ, "a\0b\0\0"sv);
    Put("Number", REG_DWORD, "1234");
    EXPECT_TRUE(Done(key, key.GetBinaryValue("Text", read)));
    EXPECT_EQ(Std(read), "abc\0"sv);
    EXPECT_TRUE(Done(key, key.GetBinaryValue("List", read)));
    EXPECT_EQ(Std(read), "a\0b\0\0"sv);
    EXPECT_TRUE(Done(key, key.GetBinaryValue("Number", read)));
    EXPECT_EQ(Std(read), "1234");
    EXPECT_TRUE(Refused(key, key.GetBinaryValue("Absent", read), kNotFound));
    EXPECT_EQ(Std(read), "1234");
}

TEST_F(RegistryValues, ListsGoInAndOutInOrder)
{
    CStringArray texts;
    Fill(texts, {"one", "two", "three"});
    EXPECT_TRUE(Done(key, key.SetStringArrayValue("List", texts)));
    EXPECT_EQ(Get("List"), (RawValue{REG_MULTI_SZ, std::string("one\0two\0three\0\0", 15)}));
    EXPECT_EQ(Texts("List"), (TextList{"one", "two", "three"}));
    texts.RemoveAll();
    EXPECT_TRUE(Done(key, key.SetStringArrayValue("List", texts)));
    EXPECT_EQ(Get("List"), (RawValue{REG_MULTI_SZ, std::string(1, '\0')}));
    EXPECT_EQ(Texts("List"), TextList{});
    Fill(texts, {"", "one", ""});
    EXPECT_TRUE(Done(key, key.SetStringArrayValue("List", texts)));
    EXPECT_EQ(Texts("List"), (TextList{"", "one", ""}));
}

TEST_F(RegistryValues, ListsOf300TextsGoInAndOut)
{
    TextList many;
    for (int i = 0; i < 300; ++i)
    {
        many.push_back("Text number " + std::to_string(i));
    }
    CStringArray texts;
    Fill(texts, many);
    EXPECT_TRUE(Done(key, key.SetStringArrayValue("List", texts)));
    EXPECT_EQ(Texts("List"), many);
}

TEST_F(RegistryValues, ListsWithoutClosingZeroEndWithTheirBytes)
{
    Put("List", REG_MULTI_SZ, "one\0two\0"sv);
    EXPECT_EQ(Texts("List"), (TextList{"one", "two"}));
    Put("List", REG_MULTI_SZ, "one\0two"sv);
    EXPECT_EQ(Texts("List"), (TextList{"one", "two"}));
    Put("List", REG_MULTI_SZ, "");
    EXPECT_EQ(Texts("List"), TextList{});
}

TEST_F(RegistryValues, ASingleTextIsAListOfOne)
{
    Put("Text", REG_SZ, "one\0"sv);
    EXPECT_EQ(Texts("Text"), TextList{"one"});
    Put("Text", REG_SZ, "one");
    EXPECT_EQ(Texts("Text"), TextList{"one"});
    Put("Text", REG_SZ, "\0"sv);
    EXPECT_EQ(Texts("Text"), TextList{""});
}

TEST_F(RegistryValues, GoByTheTypeOfTheArgument)
{
    CByteArray bytes;
    Fill(bytes, "12");
    CStringArray texts;
    Fill(texts, {"a", "b"});
    EXPECT_TRUE(Done(key, key.SetValue("Number", DWORD{5})));
    EXPECT_TRUE(Done(key, key.SetValue("Text", "abc")));
    EXPECT_TRUE(Done(key, key.SetValue("Bytes", bytes)));
    EXPECT_TRUE(Done(key, key.SetValue("List", texts)));
    EXPECT_EQ(Get("Number"), NumberValue(5));
    EXPECT_EQ(Get("Text"), TextValue("abc"));
    EXPECT_EQ(Get("Bytes"), (RawValue{REG_BINARY, "12"}));
    EXPECT_EQ(Get("List"), (RawValue{REG_MULTI_SZ, std::string("a\0b\0\0", 5)}));
    DWORD number = 0;
    CString text;
    CByteArray bytesRead;
    CStringArray textsRead;
    EXPECT_TRUE(Done(key, key.GetValue("Number", number)));
    EXPECT_TRUE(Done(key, key.GetValue("Text", text)));
    EXPECT_TRUE(Done(key, key.GetValue("Bytes", bytesRead)));
    EXPECT_TRUE(Done(key, key.GetValue("List", textsRead)));
    EXPECT_EQ(number, 5u);
    EXPECT_EQ(Std(text), "abc");
    EXPECT_EQ(Std(bytesRead), "12");
    EXPECT_EQ(Std(textsRead), (TextList{"a", "b"}));
}

TEST_F(RegistryValues, OrdinaryNumbersNeedNoCast)
{
    EXPECT_TRUE(Done(key, key.SetValue("Number", 0)));
    EXPECT_EQ(Get("Number"), NumberValue(0));
    EXPECT_TRUE(Done(key, key.SetValue("Number", -1)));
    EXPECT_EQ(Get("Number"), NumberValue(0xFFFFFFFF));
    EXPECT_TRUE(Done(key, key.SetValue("Number", 5u)));
    EXPECT_TRUE(Done(key, key.SetValue("Number", true)));
    EXPECT_EQ(Get("Number"), NumberValue(1));
}

TEST_F(RegistryValues, WithoutTheRightAreRefused)
{
    Put("Text", REG_SZ, "abc\0"sv);
    ASSERT_TRUE(key.Open(Path().c_str(), Registry::PermissionRead));
    EXPECT_TRUE(Refused(key, key.SetStringValue("Text", "x"), ERROR_ACCESS_DENIED));
    EXPECT_TRUE(Refused(key, key.SetDoubleWordValue("Text", 1), ERROR_ACCESS_DENIED));
    EXPECT_TRUE(Refused(key, key.DeleteValue("Text"), ERROR_ACCESS_DENIED));
    EXPECT_EQ(Text("Text"), "abc");
    EXPECT_EQ(key.GetLastError(), 0u);
}

TEST_F(RegistryValues, OfADeletedKeyAreRefused)
{
    ASSERT_EQ(RegDeleteTreeA(HKEY_CURRENT_USER, Path().c_str()), ERROR_SUCCESS);
    CString text;
    EXPECT_TRUE(Refused(key, key.SetStringValue("Text", "x"), ERROR_KEY_DELETED));
    EXPECT_TRUE(Refused(key, key.GetStringValue("Text", text), ERROR_KEY_DELETED));
    EXPECT_TRUE(Refused(key, key.EnumerateKeys(0, text), ERROR_KEY_DELETED));
}
