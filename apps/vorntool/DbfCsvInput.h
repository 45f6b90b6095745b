#pragma once

#include "apps/vorntool/core/CsvReader.h"

#include <VornCommon.h>

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace vorn::tool
{

/// Rows of a file of comma-separated values on their way into a table. What is wrong with the file is a ToolFailure
/// with the number of the line.
class DbfCsvInput
{
public:
    /// Opens the file (UTF-8 name) and reads its first line.
    explicit DbfCsvInput(const std::string& name);

    /// The names in the first line (UTF-8).
    const std::vector<std::string>& Headings() const
    {
        return m_headings;
    }

    /// Reads the next row; false at the end.
    bool Next();

    /// The values of the row, in the system's code page; as many as there are headings.
    const std::vector<std::string>& Values() const
    {
        return m_values;
    }

    /// Ends the reading for a reason in the row read last.
    [[noreturn]] void Fail(const std::string& reason) const;

    /// Bytes of the file, and how many of them were read so far.
    std::uint64_t Size() const
    {
        return m_size;
    }

    std::uint64_t Read() const
    {
        return m_read;
    }

private:
    bool NextRow(std::vector<std::string>& row);
    void ToLibraryText(std::string& value);

    std::string m_name;
    std::ifstream m_file;
    std::uint64_t m_size = 0;
    std::uint64_t m_read = 0;
    CsvReader m_reader;
    std::vector<std::string> m_headings;
    std::vector<std::string> m_values;
};

} // namespace vorn::tool
