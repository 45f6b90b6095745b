#include "config/IniFile.h"

#include <windows.h>

#include <vector>

namespace vorn
{
namespace
{
constexpr DWORD kBlockSize = 65534; // characters, the limit of the system's profile calls

/// What a profile call left in the buffer. When the buffer was too small the call says two less than its size: the
/// block is then cut somewhere.
struct Block
{
    std::string_view text;
    bool cut;
};

Block BlockOf(const std::vector<char>& buffer, DWORD length)
{
    return {{buffer.data(), length}, length >= kBlockSize - 2};
}

/// The block up to its last line's start: of a cut block the last line may be half a line.
std::string_view WholeLines(const Block& block)
{
    if (!block.cut)
    {
        return block.text;
    }
    const std::size_t end = block.text.find_last_not_of('\0');
    const std::size_t lastLine = block.text.find_last_of('\0', end);
    return block.text.substr(0, lastLine == std::string_view::npos ? 0 : lastLine + 1);
}
} // namespace

bool LoadIniFile(const std::string& path, IniTable& table)
{
    std::vector<char> names(kBlockSize);
    const Block sections = BlockOf(names, GetPrivateProfileSectionNamesA(names.data(), kBlockSize, path.c_str()));
    if (sections.text.empty() || sections.cut)
    {
        return false;
    }
    std::vector<char> lines(kBlockSize);
    for (const std::string_view section : BlockTexts(sections.text))
    {
        const DWORD length = GetPrivateProfileSectionA(section.data(), lines.data(), kBlockSize, path.c_str());
        AddSection(table, section, WholeLines(BlockOf(lines, length)));
    }
    return true;
}

std::string IniValue(const std::string& path, const char* section, const char* key, std::size_t limit)
{
    std::string value(limit + 1, '\0');
    value.resize(
        GetPrivateProfileStringA(section, key, "", value.data(), static_cast<DWORD>(value.size()), path.c_str()));
    return value;
}
} // namespace vorn
