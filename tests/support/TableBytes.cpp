#include "tests/support/TableBytes.h"

namespace vorn::test
{

TableBytes& TableBytes::Field(std::string_view name, char type, int length, int decimals)
{
    m_fields.push_back({std::string(name), type, length, decimals});
    return *this;
}

TableBytes& TableBytes::Record(std::string_view values, char flag)
{
    m_records.push_back(flag + Padded(values, static_cast<std::size_t>(RecordLength() - 1)));
    return *this;
}

TableBytes& TableBytes::StateHeaderLength(int length)
{
    m_headerLength = length;
    return *this;
}

TableBytes& TableBytes::StateRecordLength(int length)
{
    m_recordLength = length;
    return *this;
}

TableBytes& TableBytes::StateCount(unsigned long count)
{
    m_count = count;
    return *this;
}

TableBytes& TableBytes::EndHeaderWith(std::string_view end)
{
    m_end = end;
    return *this;
}

TableBytes& TableBytes::Date(int year, int month, int day)
{
    m_date = {static_cast<char>(year), static_cast<char>(month), static_cast<char>(day)};
    return *this;
}

int TableBytes::HeaderLength() const
{
    return 32 + 32 * static_cast<int>(m_fields.size()) + static_cast<int>(m_end.size());
}

int TableBytes::RecordLength() const
{
    int length = 1;
    for (const Descriptor& field : m_fields)
        length += field.type == 'N' ? field.length : field.length + 256 * field.decimals;
    return length;
}

std::string TableBytes::Header() const
{
    std::string bytes = "\x03" + m_date;
    bytes += LittleEndian(m_count.value_or(m_records.size()), 4);
    bytes += LittleEndian(static_cast<unsigned long>(m_headerLength.value_or(HeaderLength())), 2);
    bytes += LittleEndian(static_cast<unsigned long>(m_recordLength.value_or(RecordLength())), 2);
    bytes += std::string(20, '\0');
    for (const Descriptor& field : m_fields)
    {
        bytes += Padded(field.name, 11, '\0') + field.type + std::string(4, '\0');
        bytes += static_cast<char>(field.length);
        bytes += static_cast<char>(field.decimals);
        bytes += std::string(14, '\0');
    }
    return bytes + m_end;
}

std::string TableBytes::Bytes() const
{
    std::string bytes = Header();
    for (const std::string& record : m_records)
        bytes += record;
    return bytes;
}

std::string LittleEndian(unsigned long value, int size)
{
    std::string bytes;
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    return bytes;
}

std::string MemoEntryBytes(std::string_view text)
{
    std::string entry = std::string("\xFF\xFF\x08\x00", 4) + LittleEndian(text.size() + 8, 4);
    entry += text;
    return Padded(entry, (entry.size() + 511) / 512 * 512, '\0');
}

std::string Padded(std::string_view text, std::size_t width, char with)
{
    std::string padded(text);
    padded.resize(width, with);
    return padded;
}

std::string Scrambled(std::string bytes, std::string_view key)
{
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(bytes[i] ^ key[i % key.size()]);
    return bytes;
}

} // namespace vorn::test
