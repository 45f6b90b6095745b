#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace vorn
{

/// Bytes of a length or count field: a signed number in the machine's byte order.
inline constexpr unsigned long kLengthFieldSize = sizeof(std::int32_t);

/// A place in a record buffer that is being read or written: where the next field stands and how many bytes are left.
/// Both belong to the caller and move with every field. `Transfer` moves one field of plain bytes, `int (char*& cursor,
/// unsigned long& remaining, void* field, unsigned long size, int read)`, zero on failure.
template <class Transfer>
class RecordFields
{
public:
    RecordFields(char*& cursor, unsigned long& remaining, Transfer transfer)
        : m_cursor(cursor), m_remaining(remaining), m_transfer(transfer)
    {
    }

    bool ReadNumber(std::int32_t& value)
    {
        return m_transfer(m_cursor, m_remaining, &value, kLengthFieldSize, 1) != 0;
    }

    /// Negative numbers are written as 0.
    bool WriteNumber(std::int64_t value)
    {
        auto field = static_cast<std::int32_t>(std::clamp<std::int64_t>(value, 0, INT32_MAX));
        return m_transfer(m_cursor, m_remaining, &field, kLengthFieldSize, 0) != 0;
    }

    /// Reads a length and that many characters. `makeRoom(length)` gives the place for the characters (`length` bytes,
    /// not zero-terminated); it is asked only when the buffer holds them all, so a damaged length never allocates.
    template <class MakeRoom>
    bool ReadText(MakeRoom&& makeRoom)
    {
        std::int32_t length = 0;
        if (!ReadNumber(length))
            return false;
        if (length <= 0)
            return true;
        const auto size = static_cast<unsigned long>(length);
        return size <= m_remaining && m_transfer(m_cursor, m_remaining, makeRoom(length), size, 1) != 0;
    }

    bool WriteText(std::string_view text)
    {
        const auto length = static_cast<std::int32_t>(std::min<std::size_t>(text.size(), INT32_MAX));
        if (!WriteNumber(length))
            return false;
        // The transfer takes a writable field for both directions; it only reads this one.
        return length == 0 || m_transfer(m_cursor, m_remaining, const_cast<char*>(text.data()),
                                         static_cast<unsigned long>(length), 0) != 0;
    }

    /// Reads a count and calls `readOne(*this)` that many times, until one fails. Nothing is reserved by the count.
    template <class ReadOne>
    bool ReadList(ReadOne&& readOne)
    {
        std::int32_t count = 0;
        if (!ReadNumber(count))
            return false;
        for (std::int32_t i = 0; i < count; ++i)
        {
            if (!readOne(*this))
                return false;
        }
        return true;
    }

private:
    char*& m_cursor;
    unsigned long& m_remaining;
    Transfer m_transfer;
};

} // namespace vorn
