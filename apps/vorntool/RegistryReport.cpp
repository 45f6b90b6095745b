#include "apps/vorntool/RegistryReport.h"

#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace vorn::tool
{

namespace
{

bool IsText(const RegistryValue& value)
{
    return value.type == REG_SZ || value.type == REG_EXPAND_SZ;
}

bool IsNumber(const RegistryValue& value)
{
    return value.type == REG_DWORD && value.bytes.size() == sizeof(DWORD);
}

bool IsLongNumber(const RegistryValue& value)
{
    return value.type == REG_QWORD && value.bytes.size() == sizeof(std::uint64_t);
}

template <class Number>
Number NumberOf(const RegistryValue& value)
{
    Number number = 0;
    std::memcpy(&number, value.bytes.data(), sizeof number);
    return number;
}

// Texts to the end of the data; the closing zero of the list is none.
std::vector<std::string> TextsOf(const RegistryValue& value)
{
    std::vector<std::string> texts;
    for (std::size_t start = 0; start < value.bytes.size();)
    {
        const std::size_t end = std::min(value.bytes.find('\0', start), value.bytes.size());
        texts.push_back(Utf8FromLibrary(value.bytes.substr(start, end - start)));
        start = end + 1;
    }
    if (!texts.empty() && texts.back().empty())
    {
        texts.pop_back();
    }
    return texts;
}

std::string PlainText(const RegistryValue& value)
{
    if (IsText(value))
    {
        return Utf8FromLibrary(value.bytes.substr(0, value.bytes.find('\0')));
    }
    return IsNumber(value)       ? std::to_string(NumberOf<DWORD>(value))
           : IsLongNumber(value) ? std::to_string(NumberOf<std::uint64_t>(value))
                                 : HexBytes(value.bytes);
}

// On one line of a list of values; the texts of a list in quotes.
std::string ShortText(const RegistryValue& value)
{
    if (value.type != REG_MULTI_SZ)
    {
        return OneLine(PlainText(value));
    }
    std::string line;
    for (const std::string& text : TextsOf(value))
    {
        line.append(line.empty() ? "\"" : ", \"").append(OneLine(text)).append("\"");
    }
    return line;
}

void WriteData(JsonWriter& json, const RegistryValue& value)
{
    json.Name("type").Text(NameOfType(value.type)).Name("value");
    if (value.type == REG_MULTI_SZ)
    {
        json.BeginArray();
        std::ranges::for_each(TextsOf(value),
                              [&](const std::string& text)
                              {
                                  json.Text(text);
                              });
        json.EndArray();
        return;
    }
    IsNumber(value) ? json.Whole(NumberOf<DWORD>(value)) : json.Text(PlainText(value));
}

struct Row
{
    std::string name;
    std::string type;
    std::string text;
};

std::vector<Row> RowsOf(const RegistryKeyContent& content)
{
    std::vector<Row> rows;
    for (const RegistryValue& value : content.values)
    {
        const std::string name = value.name.empty() ? "(default)" : OneLine(Utf8FromLibrary(value.name));
        rows.push_back({name, NameOfType(value.type), ShortText(value)});
    }
    for (const std::string& name : content.subkeys)
    {
        rows.push_back({OneLine(Utf8FromLibrary(name)) + "\\", "key", ""});
    }
    return rows;
}

std::string Padded(const std::string& text, std::size_t width)
{
    return text + std::string(width - CharacterCount(text), ' ');
}

} // namespace

std::string ValueText(const RegistryValue& value)
{
    if (value.type != REG_MULTI_SZ)
    {
        return PlainText(value) + "\n";
    }
    std::string lines;
    for (const std::string& text : TextsOf(value))
    {
        lines += text + "\n";
    }
    return lines;
}

std::string JsonOf(const KeyAddress& address, const RegistryValue& value)
{
    JsonWriter json;
    json.BeginObject().Name("key").Text(Utf8FromLibrary(address.Text())).Name("name").Text(Utf8FromLibrary(value.name));
    WriteData(json, value);
    return json.EndObject().Line();
}

std::string TextOf(const RegistryKeyContent& content)
{
    const std::vector<Row> rows = RowsOf(content);
    std::size_t nameWidth = 0;
    std::size_t typeWidth = 0;
    for (const Row& row : rows)
    {
        nameWidth = std::max(nameWidth, CharacterCount(row.name));
        typeWidth = std::max(typeWidth, row.type.size());
    }
    std::string text = std::string("[").append(OneLine(Utf8FromLibrary(content.address.Text()))).append("]\n");
    for (const Row& row : rows)
    {
        const std::string line = Padded(row.name, nameWidth) + "  " + Padded(row.type, typeWidth) + "  " + row.text;
        text.append("  ").append(line, 0, line.find_last_not_of(' ') + 1).append("\n");
    }
    return text;
}

void Write(JsonWriter& json, const RegistryKeyContent& content)
{
    json.BeginObject().Name("key").Text(Utf8FromLibrary(content.address.Text())).Name("values").BeginArray();
    for (const RegistryValue& value : content.values)
    {
        json.BeginObject().Name("name").Text(Utf8FromLibrary(value.name));
        WriteData(json, value);
        json.EndObject();
    }
    json.EndArray().Name("subkeys").BeginArray();
    for (const std::string& name : content.subkeys)
    {
        json.Text(Utf8FromLibrary(name));
    }
    json.EndArray().EndObject();
}

} // namespace vorn::tool
