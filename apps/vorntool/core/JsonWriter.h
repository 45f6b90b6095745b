#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vorn::tool
{

/// Writes one JSON text piece by piece. Names and values come in the order in which they are to stand; the writer sets
/// commas, colons and quotes. Text is UTF-8; control characters are escaped, bytes that are no UTF-8 become U+FFFD.
class JsonWriter
{
public:
    JsonWriter& BeginObject();
    JsonWriter& EndObject();
    JsonWriter& BeginArray();
    JsonWriter& EndArray();

    /// The name of the next value of an object.
    JsonWriter& Name(std::string_view name);

    JsonWriter& Text(std::string_view value);
    JsonWriter& Whole(std::int64_t value);

    /// The shortest decimal text that reads back as @p value; null for NaN and infinities, which JSON has not.
    JsonWriter& Number(double value);
    JsonWriter& Flag(bool value);
    JsonWriter& Null();

    /// What was written, with a line end.
    std::string Line() const
    {
        return m_text + "\n";
    }

private:
    JsonWriter& Raw(std::string_view token);
    JsonWriter& Open(char bracket);
    JsonWriter& Close(char bracket);
    void Separate();
    void Quote(std::string_view text);

    std::string m_text;
    std::vector<bool> m_hasElements;
    bool m_afterName = false;
};

} // namespace vorn::tool
