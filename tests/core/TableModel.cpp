#include "tests/core/TableModel.h"
#include "tests/support/TableBytes.h"

#include <algorithm>

namespace vorn::test
{
namespace
{

std::string Digits(const std::string& bytes)
{
    std::string digits;
    for (const char byte : bytes)
    {
        const int value = byte & 0x0F;
        if (value != 0 || !digits.empty())
        {
            digits += std::to_string(value);
        }
    }
    return digits.empty() ? "0" : digits;
}

std::string WithoutEnd(std::string text)
{
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
    {
        text.pop_back();
    }
    return text;
}

std::string Lower(std::string text)
{
    for (char& c : text)
    {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return text;
}

} // namespace

TableModel::TableModel(std::string bytes)
    : m_bytes(std::move(bytes)), m_headerLength(Word(8)), m_recordLength(Word(10)), m_count(Word(4))
{
    int offset = 1;
    for (int i = 0; i < (m_headerLength - 32) / 32; ++i)
    {
        const std::size_t at = 32 + static_cast<std::size_t>(i) * 32;
        const char type = m_bytes[at + 11];
        const int length = Word(at + 16);
        const std::string name = m_bytes.substr(at, 11);
        m_fields.push_back({name.substr(0, name.find('\0')), type, type == 'N' ? length & 0xFF : length, offset});
        offset += length;
    }
}

int TableModel::Word(std::size_t at) const
{
    return static_cast<unsigned char>(m_bytes[at]) + 256 * static_cast<unsigned char>(m_bytes[at + 1]);
}

std::size_t TableModel::PositionOf(int index) const
{
    return static_cast<std::size_t>(m_headerLength + m_recordLength * index);
}

bool TableModel::Take(int index)
{
    m_current = index;
    m_hasRecord = false;
    const std::string bytes =
        m_bytes.substr(std::min(PositionOf(index), m_bytes.size()), static_cast<std::size_t>(m_recordLength));
    if (bytes.size() < static_cast<std::size_t>(m_recordLength))
    {
        return false;
    }
    m_record = m_key.empty() ? bytes : Scrambled(bytes, m_key);
    m_hasRecord = true;
    return true;
}

bool TableModel::ReadRecord(int index)
{
    if (index < -1)
    {
        return false;
    }
    for (;;)
    {
        if (index == -1 && m_current >= m_count - 1)
        {
            m_current = m_count;
            m_hasRecord = false;
            return false;
        }
        if (!Take(index == -1 ? m_current + 1 : index))
        {
            return false;
        }
        if (m_record[0] != '*')
        {
            return true;
        }
        index = -1;
    }
}

bool TableModel::NextRecord()
{
    return m_current >= 0 && ReadRecord(-1) && (m_queryField < 0 || Matches());
}

bool TableModel::Query(int field, const std::string& value, bool caseSensitive)
{
    m_queryField = field;
    m_queryValue = value;
    m_queryCaseSensitive = caseSensitive;
    if (field < 0)
    {
        return false;
    }
    for (bool isRead = ReadRecord(0); isRead; isRead = ReadRecord(-1))
    {
        if (Matches())
        {
            return true;
        }
    }
    return false;
}

bool TableModel::Matches() const
{
    const std::string value = Value(m_queryField);
    return m_queryCaseSensitive ? value == m_queryValue : Lower(value) == Lower(m_queryValue);
}

std::string TableModel::Value(int field) const
{
    const Field& facts = m_fields[static_cast<std::size_t>(field)];
    const std::string bytes = m_record.substr(std::min(static_cast<std::size_t>(facts.offset), m_record.size()),
                                              static_cast<std::size_t>(facts.length));
    if (facts.type == 'N')
    {
        return bytes.empty() && facts.length > 0 ? "" : Digits(bytes);
    }
    return WithoutEnd(bytes);
}

void TableModel::SetValue(int field, const std::string& value)
{
    const Field& facts = m_fields[static_cast<std::size_t>(field)];
    for (int i = 0; i < std::max(facts.length, static_cast<int>(value.size())); ++i)
    {
        const auto at = static_cast<std::size_t>(facts.offset + i);
        if (at < m_record.size())
        {
            m_record[at] = static_cast<std::size_t>(i) < value.size() ? value[static_cast<std::size_t>(i)] : ' ';
        }
    }
}

void TableModel::DeleteRecord()
{
    m_record[0] = '*';
    WriteRecordAt(m_current);
}

void TableModel::WriteRecordAt(int index)
{
    const std::size_t at = PositionOf(index);
    m_bytes.resize(std::max(m_bytes.size(), at + m_record.size()));
    m_bytes.replace(at, m_record.size(), m_record);
}

void TableModel::SetKey(const std::string& key)
{
    m_key = key;
}

} // namespace vorn::test
