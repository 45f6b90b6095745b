#include "files/core/Memo.h"

#include "files/core/TableLayout.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <limits>
#include <optional>
#include <system_error>

namespace vorn
{
namespace
{
constexpr std::uint32_t kMarker = 0x0008FFFF;
constexpr std::int64_t kEntryHead = 8;
constexpr char kEndOfText = 0x1A;
constexpr int kBlockLengthOffset = 20;

// The first block of an entry, which is mostly all of it.
struct FirstBlock
{
    std::array<char, kMemoBlock> bytes;
    int count = 0;
};

std::optional<LONGLONG> PositionOf(const MemoSource& source, std::int64_t block)
{
    if (block < 1 || block > source.length / kMemoBlock)
        return {};
    const LONGLONG position = source.start + block * kMemoBlock;
    return position >= 0 && position < source.length ? std::optional(position) : std::nullopt;
}

bool ReadRest(const MemoSource& source, LONGLONG position, char* bytes, std::int64_t count)
{
    return count == 0 || source.read(position, bytes, static_cast<int>(count)) == count;
}

// Text that begins in the first block at `from`; `size` was compared with the file's length.
void TakeText(const MemoSource& source, LONGLONG position, const FirstBlock& first, std::int64_t from,
              std::int64_t size, CString& text)
{
    const std::int64_t ready = std::min(size, first.count - from);
    char* bytes = text.GetBufferSetLength(static_cast<int>(size));
    std::memcpy(bytes, first.bytes.data() + from, static_cast<std::size_t>(ready));
    if (!ReadRest(source, position + from + ready, bytes + ready, size - ready))
        text.Empty();
}

void TakeEntry(const MemoSource& source, LONGLONG position, const FirstBlock& first, const DecodeKey& key,
               CString& text)
{
    const auto length = static_cast<std::int32_t>(UInt32At(first.bytes.data() + 4));
    if (length <= kEntryHead || length > source.length - position || length > kMaxStringLength)
        return;
    TakeText(source, position, first, kEntryHead, length - kEntryHead, text);
    if (key.IsSet() && !text.IsEmpty())
        key.Apply(text.GetBuffer(), static_cast<std::size_t>(text.GetLength()));
}

// Bytes before the first end mark from `position` on.
std::optional<std::int64_t> LengthToEndMark(const MemoSource& source, LONGLONG position)
{
    std::array<char, 8 * kMemoBlock> piece;
    for (std::int64_t length = 0;;)
    {
        const int got = source.read(position + length, piece.data(), static_cast<int>(piece.size()));
        if (got <= 0)
            return {};
        const void* mark = std::memchr(piece.data(), kEndOfText, static_cast<std::size_t>(got));
        if (mark != nullptr)
            return length + (static_cast<const char*>(mark) - piece.data());
        length += got;
    }
}

void TakeMarkedText(const MemoSource& source, LONGLONG position, const FirstBlock& first, CString& text)
{
    const auto length = LengthToEndMark(source, position);
    if (length && *length > 0 && *length <= kMaxStringLength)
        TakeText(source, position, first, 0, *length, text);
}
} // namespace

std::int64_t MemoBlockNumber(std::string_view field)
{
    const std::size_t begin = field.find_first_not_of(' ');
    if (begin == std::string_view::npos)
        return 0;
    const std::string_view digits = field.substr(begin, field.find_last_not_of(' ') - begin + 1);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() ? number : 0;
}

void ReadMemo(const MemoSource& source, std::int64_t block, const DecodeKey& key, CString& text)
{
    text.Empty();
    const auto position = PositionOf(source, block);
    FirstBlock first;
    if (position)
        first.count = source.read(*position, first.bytes.data(), kMemoBlock);
    if (first.count >= kEntryHead && UInt32At(first.bytes.data()) == kMarker)
        TakeEntry(source, *position, first, key, text);
    else if (first.count > 0 && !key.IsSet())
        TakeMarkedText(source, *position, first, text);
}

std::vector<char> MemoEntry(std::string_view text, ULONGLONG position)
{
    if (text.size() > static_cast<std::size_t>(kMaxStringLength))
        return {};
    const std::size_t size = static_cast<std::size_t>(kEntryHead) + text.size();
    const std::size_t over = static_cast<std::size_t>((position + size) % kMemoBlock);
    std::vector<char> entry(size + (over > 0 ? kMemoBlock - over : 0));
    PutUInt32(entry.data(), kMarker);
    PutUInt32(entry.data() + 4, static_cast<std::uint32_t>(size));
    std::copy(text.begin(), text.end(), entry.begin() + kEntryHead);
    return entry;
}

std::vector<char> MemoHead(std::uint32_t nextFreeBlock)
{
    std::vector<char> head(kMemoBlock);
    PutUInt32(head.data(), nextFreeBlock);
    PutUInt32(head.data() + kBlockLengthOffset, kMemoBlock);
    return head;
}
} // namespace vorn
