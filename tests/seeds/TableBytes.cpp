#include "tests/seeds/TableBytes.h"

namespace vorn::test
{
namespace
{

std::string Descriptor(const FieldBytes& field)
{
    std::string bytes = field.name;
    bytes.resize(11);
    bytes += field.type;
    bytes.resize(16);
    bytes += LittleEndian(field.length + (field.type == 'N' ? field.decimals * 256 : 0), 2);
    bytes.resize(32);
    return bytes;
}

} // namespace

std::string LittleEndian(long long value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
    {
        text += static_cast<char>(value >> (8 * i) & 0xFF);
    }
    return text;
}

std::string TableHeader(unsigned records, int headerLength, int recordLength)
{
    std::string header{3, 126, 11, 21};
    header += LittleEndian(records, 4) + LittleEndian(headerLength, 2) + LittleEndian(recordLength, 2);
    header.resize(32);
    return header;
}

std::string TableBytes(const std::vector<FieldBytes>& fields, const std::vector<std::string>& records)
{
    int recordLength = 1;
    std::string descriptors;
    for (const FieldBytes& field : fields)
    {
        recordLength += field.length;
        descriptors += Descriptor(field);
    }
    std::string bytes =
        TableHeader(static_cast<unsigned>(records.size()), static_cast<int>(33 + descriptors.size()), recordLength) +
        descriptors + '\r';
    for (const std::string& record : records)
    {
        bytes += record;
    }
    return bytes;
}

std::string MemoBytes(const std::string& text)
{
    std::string bytes = "\xFF\xFF\x08" + std::string(1, '\0');
    bytes += LittleEndian(static_cast<long long>(text.size()) + 8, 4) + text;
    bytes.resize((bytes.size() + 511) / 512 * 512);
    return bytes;
}

std::string MemoHeader(int blocks)
{
    std::string bytes = LittleEndian(blocks, 4);
    bytes.resize(20);
    bytes += LittleEndian(512, 2);
    bytes.resize(512);
    return bytes;
}

std::string Coded(std::string bytes, const std::string& key)
{
    for (std::size_t i = 0; i < bytes.size(); ++i)
    {
        bytes[i] = static_cast<char>(bytes[i] ^ key[i % key.size()]);
    }
    return bytes;
}

} // namespace vorn::test
