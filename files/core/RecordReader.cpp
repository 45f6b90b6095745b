#include "files/core/RecordReader.h"

#include "files/core/FieldText.h"
#include "files/core/NoThrow.h"

#include <algorithm>
#include <cstring>

namespace vorn
{
namespace
{
constexpr int kMaxBlock = 16 * 1024 * 1024;
}

RecordReader::RecordReader(TableFile& file, const TableLayout& layout, const DecodeKey& key)
    : m_file(file), m_layout(layout), m_key(key)
{
}

void RecordReader::Start()
{
    m_block.reset();
    m_blockRecords = 0;
    m_record = nullptr;
    m_current = -1;
    m_isCurrent = false;
    SetPosition(m_file.Position());
}

void RecordReader::SetReadAhead(int records)
{
    m_readAhead = std::max(records, 1);
    m_left = 0; // the block itself holds the current record and goes with the next read
}

bool RecordReader::Find(int index)
{
    if (index < 0)
        index = Following();
    while (index >= 0 && Take(index))
    {
        if (*m_record != '*')
            return true;
        index = Following();
    }
    return false;
}

bool RecordReader::Take(int index)
{
    m_current = index;
    m_isCurrent = false;
    if ((m_left == 0 || static_cast<unsigned>(index) != m_next || IsTouched()) && !Fill(index))
        return false;
    m_record = m_ahead;
    m_ahead += m_layout.recordLength;
    --m_left;
    m_next = static_cast<unsigned>(index) + 1;
    m_isCurrent = true;
    m_key.Apply(m_record, static_cast<std::size_t>(m_layout.recordLength));
    return true;
}

bool RecordReader::ReadOne(int index)
{
    m_onlyOne = true;
    const bool isRead = Read(index);
    m_onlyOne = false;
    return isRead;
}

bool RecordReader::Peek(int index, char* bytes)
{
    const int length = m_layout.recordLength;
    if (length < 1 || m_file.ReadAt(m_layout.PositionOf(index), bytes, length) != length)
        return false;
    m_key.Apply(bytes, static_cast<std::size_t>(length));
    return true;
}

int RecordReader::RecordsOfBlock() const
{
    return std::min(m_readAhead, std::max(kMaxBlock / m_layout.recordLength, 1));
}

// Margins on both sides let texts be looked at and copied in whole pieces.
bool RecordReader::MakeBlock()
{
    if (m_layout.recordLength < 1)
        return false;
    const int records = RecordsOfBlock();
    if (m_block == nullptr || records != m_blockRecords)
    {
        const std::size_t size = static_cast<std::size_t>(records) * static_cast<std::size_t>(m_layout.recordLength);
        m_record = nullptr;
        m_blockRecords = 0;
        m_block = NoThrow(std::unique_ptr<char[]>(),
                          [&]
                          {
                              return std::make_unique_for_overwrite<char[]>(kTrimMargin + size + kTrimMargin);
                          });
        if (m_block == nullptr)
            return false;
        std::memset(m_block.get(), 0, kTrimMargin);
        m_blockRecords = records;
    }
    return true;
}

int RecordReader::ReadBlock(int index)
{
    const int records = m_onlyOne ? 1 : m_blockRecords;
    m_onlyOne = false; // deleted records behind it are read on ahead
    m_ahead = m_block.get() + kTrimMargin;
    return m_file.ReadAt(m_layout.PositionOf(index), m_ahead, records * m_layout.recordLength);
}

bool RecordReader::Fill(int index)
{
    SetPosition(m_layout.PositionOf(index));
    const bool hasBlock = MakeBlock();
    m_record = nullptr;
    if (!hasBlock)
        return false;
    m_left = std::max(ReadBlock(index), 0) / m_layout.recordLength;
    return m_left > 0;
}

char* RecordReader::RecordToFill()
{
    if (m_record == nullptr && MakeBlock())
    {
        m_left = 0;
        m_record = m_block.get() + kTrimMargin;
        std::memset(m_record, ' ', static_cast<std::size_t>(m_layout.recordLength));
    }
    return m_record;
}

LONGLONG RecordReader::Position() const
{
    if (IsTouched())
        return m_file.Position();
    return m_next != kNowhere ? m_layout.PositionOf(m_next) : m_position;
}

void RecordReader::SetPosition(LONGLONG position)
{
    m_left = 0;
    m_next = kNowhere;
    m_position = position;
    m_touches = m_file.Touches();
}
} // namespace vorn
