#include "family/TarnUtil/core/TarnObject.h"
#include "frame/core/Serialise.h"

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace
{

using Fields = vorn::RecordFields<decltype(&TarnObject::ReadWriteSimpleValue)>;

bool ReadInto(Fields& fields, std::vector<std::string>& texts)
{
    std::string text;
    const bool read = fields.ReadText(
        [&text](std::int32_t length)
        {
            text.resize(static_cast<std::size_t>(length));
            return text.data();
        });
    if (read)
    {
        texts.push_back(text);
    }
    return read;
}

std::vector<std::string> ReadTexts(std::string& record, std::size_t& used)
{
    std::vector<std::string> texts;
    char* cursor = record.data();
    unsigned long remaining = record.size();
    Fields fields(cursor, remaining, &TarnObject::ReadWriteSimpleValue);
    fields.ReadList(
        [&texts](Fields& f)
        {
            return ReadInto(f, texts);
        });
    used = static_cast<std::size_t>(cursor - record.data());
    if (used + remaining != record.size())
    {
        std::abort();
    }
    return texts;
}

std::string Written(const std::vector<std::string>& texts, std::size_t room)
{
    std::string record(room, '\0');
    char* cursor = record.data();
    unsigned long remaining = record.size();
    Fields fields(cursor, remaining, &TarnObject::ReadWriteSimpleValue);
    bool written = fields.WriteNumber(static_cast<std::int64_t>(texts.size()));
    for (const std::string& text : texts)
    {
        written = written && fields.WriteText(text);
    }
    if (!written || remaining != 0)
    {
        std::abort();
    }
    return record;
}

} // namespace

/// Any bytes as a list of texts: what was read fits the buffer, and written again it reads the same.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    std::string record(reinterpret_cast<const char*>(data), size);
    std::size_t used = 0;
    const std::vector<std::string> texts = ReadTexts(record, used);
    std::size_t room = vorn::kLengthFieldSize;
    for (const std::string& text : texts)
    {
        room += vorn::kLengthFieldSize + text.size();
    }
    std::string again = Written(texts, room);
    if (ReadTexts(again, used) != texts || used != room)
    {
        std::abort();
    }
    return 0;
}
