#pragma once

#include <string>

namespace vorn::bench
{

/// A table of character fields in the folder for temporary files, about 120 bytes a record; removed with the object.
/// Its first field is sorted: "K" and the record's number in 7 digits. The others hold texts of 0 to 10 characters.
class BenchTable
{
public:
    static constexpr int kFields = 12;
    static constexpr int kFieldLength = 10;
    static constexpr int kRecordLength = 1 + kFields * kFieldLength;
    static constexpr int kHeaderLength = 33 + 32 * kFields;

    /// Throws when the file cannot be written.
    explicit BenchTable(int records);
    ~BenchTable();
    BenchTable(const BenchTable&) = delete;
    BenchTable& operator=(const BenchTable&) = delete;

    const char* Path() const
    {
        return m_path.c_str();
    }
    int Records() const
    {
        return m_records;
    }
    /// The first field of a record.
    static std::string Key(int record);

private:
    std::string m_path;
    int m_records;
};

} // namespace vorn::bench
