#include "apps/vorntool/core/JsonWriter.h"

#include "apps/vorntool/core/Utf8.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace vorn::tool
{

namespace
{

std::string Escaped(char c)
{
    switch (c)
    {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x20 && code != 0x7F)
    {
        return std::string(1, c);
    }
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(code));
    return escape;
}

} // namespace

JsonWriter& JsonWriter::BeginObject()
{
    return Open('{');
}

JsonWriter& JsonWriter::EndObject()
{
    return Close('}');
}

JsonWriter& JsonWriter::BeginArray()
{
    return Open('[');
}

JsonWriter& JsonWriter::EndArray()
{
    return Close(']');
}

JsonWriter& JsonWriter::Name(std::string_view name)
{
    Separate();
    Quote(name);
    m_text += ':';
    m_afterName = true;
    return *this;
}

JsonWriter& JsonWriter::Text(std::string_view value)
{
    Separate();
    Quote(value);
    return *this;
}

JsonWriter& JsonWriter::Whole(std::int64_t value)
{
    return Raw(std::to_string(value));
}

JsonWriter& JsonWriter::Number(double value)
{
    if (!std::isfinite(value))
    {
        return Null();
    }
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value);
    return Raw({buffer, static_cast<std::size_t>(end.ptr - buffer)});
}

JsonWriter& JsonWriter::Flag(bool value)
{
    return Raw(value ? "true" : "false");
}

JsonWriter& JsonWriter::Null()
{
    return Raw("null");
}

JsonWriter& JsonWriter::Raw(std::string_view token)
{
    Separate();
    m_text += token;
    return *this;
}

JsonWriter& JsonWriter::Open(char bracket)
{
    Separate();
    m_text += bracket;
    m_hasElements.push_back(false);
    return *this;
}

JsonWriter& JsonWriter::Close(char bracket)
{
    m_text += bracket;
    m_hasElements.pop_back();
    return *this;
}

// A comma before every element but the first, none between a name and its value.
void JsonWriter::Separate()
{
    if (m_afterName)
    {
        m_afterName = false;
        return;
    }
    if (m_hasElements.empty())
    {
        return;
    }
    if (m_hasElements.back())
    {
        m_text += ',';
    }
    m_hasElements.back() = true;
}

void JsonWriter::Quote(std::string_view text)
{
    m_text += '"';
    for (const char c : ValidUtf8(text))
    {
        m_text += Escaped(c);
    }
    m_text += '"';
}

} // namespace vorn::tool
