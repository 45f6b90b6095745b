#pragma once

#include <string>
#include <vector>

namespace vorn::test
{

struct FieldBytes
{
    std::string name;
    char type;
    int length;       ///< 16 bits; negative ones are written as they are.
    int decimals = 0; ///< For 'N', where the length has 8 bits.
};

/// The low bytes of a number, the lowest first.
std::string LittleEndian(long long value, int bytes);

/// A header of 32 bytes, with these lengths whether they are right or not.
std::string TableHeader(unsigned records, int headerLength, int recordLength);

/// A table's bytes: header by the fields and records, descriptors, end mark, records.
std::string TableBytes(const std::vector<FieldBytes>& fields, const std::vector<std::string>& records);

/// A memo's blocks: marker, length, text, zeros up to a whole block of 512.
std::string MemoBytes(const std::string& text);

/// The first block of a memo file that has so many blocks.
std::string MemoHeader(int blocks);

/// Each byte XORed with the key's, which begins again at its end.
std::string Coded(std::string bytes, const std::string& key);

} // namespace vorn::test
