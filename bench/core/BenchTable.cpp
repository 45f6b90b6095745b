#include "bench/core/BenchTable.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace vorn::bench
{
namespace
{

std::string FreshPath()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return (std::filesystem::temp_directory_path() / ("vorn-bench-" + std::to_string(now) + ".dbf")).string();
}

void AppendNumber(std::string& bytes, int value, int count)
{
    for (int i = 0; i < count; ++i)
    {
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

std::string HeaderOf(int records)
{
    std::string header{3, 126, 11, 21};
    AppendNumber(header, records, 4);
    AppendNumber(header, BenchTable::kHeaderLength, 2);
    AppendNumber(header, BenchTable::kRecordLength, 2);
    header.resize(32);
    for (int i = 0; i < BenchTable::kFields; ++i)
    {
        std::string field = "FIELD" + std::to_string(i);
        field.resize(11);
        field += 'C';
        field.resize(16);
        AppendNumber(field, BenchTable::kFieldLength, 2);
        field.resize(32);
        header += field;
    }
    return header + '\r';
}

void AppendField(std::string& bytes, const std::string& value)
{
    bytes += value;
    bytes.append(BenchTable::kFieldLength - value.size(), ' ');
}

void AppendRecord(std::string& bytes, int record)
{
    bytes += ' ';
    AppendField(bytes, BenchTable::Key(record));
    for (int field = 1; field < BenchTable::kFields; ++field)
    {
        const unsigned mixed = (static_cast<unsigned>(record) * 12 + static_cast<unsigned>(field)) * 2654435761u;
        AppendField(bytes, std::string("abc defghij", (mixed >> 16) % 11));
    }
}

} // namespace

BenchTable::BenchTable(int records) : m_path(FreshPath()), m_records(records)
{
    std::ofstream file(m_path, std::ios::binary);
    file << HeaderOf(records);
    std::string block;
    for (int i = 0; i < records; ++i)
    {
        AppendRecord(block, i);
        if (block.size() > 1 << 20 || i + 1 == records)
        {
            file << block;
            block.clear();
        }
    }
    if (!file.flush())
    {
        throw std::runtime_error("the benchmarks' table cannot be written");
    }
}

BenchTable::~BenchTable()
{
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
}

std::string BenchTable::Key(int record)
{
    char text[16];
    std::snprintf(text, sizeof text, "K%07d", record);
    return text;
}

} // namespace vorn::bench
