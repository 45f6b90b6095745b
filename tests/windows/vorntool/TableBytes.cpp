#include "tests/windows/vorntool/TableBytes.h"

namespace vorn::test
{

namespace
{

std::string LittleEndian(std::size_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
    {
        text += static_cast<char>(value >> (8 * i));
    }
    return text;
}

std::string Descriptor(const TableField& field)
{
    std::string name = field.name;
    name.resize(11);
    const auto length = static_cast<std::size_t>(field.length) + static_cast<std::size_t>(field.decimals) * 256;
    return name + field.type + std::string(4, '\0') + LittleEndian(length, 2) + std::string(14, '\0');
}

} // namespace

std::string TableBytes(const std::vector<TableField>& fields, const std::vector<std::string>& records)
{
    std::size_t width = 1;
    std::string descriptors;
    for (const TableField& field : fields)
    {
        width += static_cast<std::size_t>(field.length);
        descriptors += Descriptor(field);
    }
    std::string bytes = std::string("\x03\x7C\x02\x1D", 4) + LittleEndian(records.size(), 4) +
                        LittleEndian(33 + descriptors.size(), 2) + LittleEndian(width, 2) + std::string(20, '\0') +
                        descriptors + "\r";
    for (const std::string& record : records)
    {
        bytes += record;
    }
    return bytes;
}

std::string MemoBytes(const std::vector<std::string>& texts)
{
    std::string bytes(512, '\0');
    for (const std::string& text : texts)
    {
        bytes += std::string("\xFF\xFF\x08\x00", 4) + LittleEndian(text.size() + 8, 4) + text;
        bytes.resize((bytes.size() + 511) / 512 * 512);
    }
    bytes.replace(0, 4, LittleEndian(bytes.size() / 512, 4));
    bytes.replace(20, 2, LittleEndian(512, 2));
    return bytes;
}

std::string Coded(std::string bytes, const std::string& key, std::size_t block)
{
    for (std::size_t i = 0; i < bytes.size(); ++i)
    {
        bytes[i] = static_cast<char>(bytes[i] ^ key[i % block % key.size()]);
    }
    return bytes;
}

} // namespace vorn::test
