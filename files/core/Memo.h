#pragma once

/// @file
/// Memo texts: entries of a file of 512-byte blocks.
#include "files/core/DecodeKey.h"
#include "framework/core/CString.h"
#include "framework/core/File.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace vorn
{
inline constexpr int kMemoBlock = 512;

/// Where memos are read: `read` gives up to `count` bytes from a position (-1 on failure) of a file of `length` bytes.
struct MemoSource
{
    std::function<int(LONGLONG position, char* bytes, int count)> read;
    LONGLONG length = 0;
    LONGLONG start = 0; ///< Where block 0 begins.
};

/// The block number in a memo field: decimal text, blanks around it allowed; 0 for anything else.
std::int64_t MemoBlockNumber(std::string_view field);

/// The text of the entry at a block; empty when there is no whole one.
///
/// An entry begins FF FF 08 00 and a 32-bit length that counts these 8 bytes. Without that mark it is a text up to the
/// first byte 0x1A, as the oldest memo files have, which no key can be used with.
void ReadMemo(const MemoSource& source, std::int64_t block, const DecodeKey& key, CString& text);

/// An entry to be written at `position`, with the zeros up to the next block. Empty for a text too long for one.
std::vector<char> MemoEntry(std::string_view text, ULONGLONG position);

/// A memo file's first block.
std::vector<char> MemoHead(std::uint32_t nextFreeBlock);
} // namespace vorn
