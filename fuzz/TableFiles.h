#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <unistd.h>

#ifdef __has_feature
#if __has_feature(address_sanitizer)
/// Lengths in a file decide nothing before they were compared with the file's own: an allocation beyond the largest
/// read-ahead of 16 MiB is a finding.
extern "C" const char* __asan_default_options()
{
    return "max_allocation_size_mb=24";
}
#endif
#endif

namespace vorn::fuzz
{

/// A folder for a table and its memo file, in memory where the system has such a folder; removed at the end.
class TableFiles
{
public:
    TableFiles()
    {
        namespace fs = std::filesystem;
        std::error_code ignored;
        const fs::path memory = "/dev/shm";
        const fs::path base = fs::is_directory(memory, ignored) ? memory : fs::temp_directory_path();
        m_folder = base / ("vorn-fuzz-" + std::to_string(getpid()));
        fs::create_directories(m_folder);
        m_table = (m_folder / "t.dbf").string();
        m_memo = (m_folder / "t.dbt").string();
    }
    ~TableFiles()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }
    TableFiles(const TableFiles&) = delete;
    TableFiles& operator=(const TableFiles&) = delete;

    const char* Table() const
    {
        return m_table.c_str();
    }
    const char* Memo() const
    {
        return m_memo.c_str();
    }
    std::string Beside(const char* name) const
    {
        return (m_folder / name).string();
    }

    static void Write(const char* path, std::string_view bytes)
    {
        FILE* file = std::fopen(path, "wb");
        if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() ||
            std::fclose(file) != 0)
        {
            std::abort();
        }
    }

    static std::string Read(const char* path)
    {
        std::string bytes;
        if (FILE* file = std::fopen(path, "rb"))
        {
            char block[4096];
            for (std::size_t count = 0; (count = std::fread(block, 1, sizeof block, file)) > 0;)
            {
                bytes.append(block, count);
            }
            std::fclose(file);
        }
        return bytes;
    }

private:
    std::filesystem::path m_folder;
    std::string m_table;
    std::string m_memo;
};

/// The parts of an input: each behind its length in 1 or 2 bytes, cut where the input ends.
class InputParts
{
public:
    InputParts(const unsigned char* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size)
    {
    }

    unsigned Number(int bytes)
    {
        unsigned number = 0;
        for (int i = 0; i < bytes && !m_rest.empty(); ++i)
        {
            number |= static_cast<unsigned>(static_cast<unsigned char>(m_rest.front())) << (8 * i);
            m_rest.remove_prefix(1);
        }
        return number;
    }
    std::string_view Part(std::size_t length)
    {
        const std::string_view part = m_rest.substr(0, length);
        m_rest.remove_prefix(part.size());
        return part;
    }
    std::string_view Rest() const
    {
        return m_rest;
    }

private:
    std::string_view m_rest;
};

inline void Require(bool condition)
{
    if (!condition)
    {
        std::abort();
    }
}

} // namespace vorn::fuzz
