#include "tests/windows/VornSample/Listings.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace vorn::test
{

namespace fs = std::filesystem;

std::string Hex(const void* data, std::size_t size)
{
    std::string text;
    for (std::size_t i = 0; i < size; ++i)
    {
        char byte[4];
        std::snprintf(byte, sizeof byte, " %02X", static_cast<const BYTE*>(data)[i]);
        text += byte;
    }
    return text;
}

namespace
{

std::string ValueText(DWORD type, const std::vector<BYTE>& data)
{
    if (type == REG_DWORD && data.size() == sizeof(DWORD))
    {
        int number = 0;
        std::memcpy(&number, data.data(), sizeof number);
        return std::to_string(number);
    }
    if (type == REG_SZ && !data.empty() && data.back() == 0)
        return '"' + std::string(data.begin(), data.end() - 1) + '"';
    return (type == REG_BINARY ? "binary" : "type " + std::to_string(type)) + Hex(data.data(), data.size());
}

void AddValues(HKEY key, const std::string& path, Lines& lines)
{
    constexpr DWORD kMostData = 0x10000;
    std::vector<char> name(0x4000);
    for (DWORD index = 0;; ++index)
    {
        DWORD length = static_cast<DWORD>(name.size());
        DWORD type = 0;
        std::vector<BYTE> data(kMostData);
        DWORD size = kMostData;
        if (RegEnumValueA(key, index, name.data(), &length, nullptr, &type, data.data(), &size) != ERROR_SUCCESS)
            return;
        data.resize(size);
        lines.push_back(path + name.data() + " = " + ValueText(type, data));
    }
}

void AddKey(HKEY key, const std::string& path, Lines& lines)
{
    const std::size_t before = lines.size();
    AddValues(key, path, lines);
    char name[256];
    for (DWORD index = 0; RegEnumKeyA(key, index, name, sizeof name) == ERROR_SUCCESS; ++index)
    {
        HKEY child = nullptr;
        if (RegOpenKeyExA(key, name, 0, KEY_READ | KEY_WOW64_32KEY, &child) != ERROR_SUCCESS)
            continue;
        AddKey(child, path + name + '\\', lines);
        RegCloseKey(child);
    }
    if (lines.size() == before && !path.empty())
        lines.push_back(path);
}

} // namespace

Lines RegistryLines(HKEY root, const std::string& path)
{
    Lines lines;
    HKEY key = nullptr;
    if (RegOpenKeyExA(root, path.c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &key) != ERROR_SUCCESS)
        return lines;
    AddKey(key, "", lines);
    RegCloseKey(key);
    std::sort(lines.begin(), lines.end());
    return lines;
}

Lines FileLines(const fs::path& folder)
{
    Lines lines;
    std::error_code failure; // a file may go while it is looked at
    for (fs::recursive_directory_iterator at(folder, fs::directory_options::skip_permission_denied, failure), end;
         !failure && at != end; at.increment(failure))
    {
        std::error_code gone;
        if (!at->is_regular_file(gone))
            continue;
        const std::string path =
            fs::path(at->path().string().substr(folder.string().size() + 1)).make_preferred().string();
        lines.push_back(path + ", " + std::to_string(at->file_size(gone)) + " bytes, " +
                        std::to_string(at->last_write_time(gone).time_since_epoch().count()));
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

Lines Without(const Lines& lines, const Lines& others)
{
    Lines rest;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(rest),
                 [&](const std::string& line)
                 {
                     return std::find(others.begin(), others.end(), line) == others.end();
                 });
    return rest;
}

std::string Joined(const Lines& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}

} // namespace vorn::test
