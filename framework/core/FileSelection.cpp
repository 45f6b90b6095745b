#include "framework/core/FileSelection.h"

#include <algorithm>

namespace vorn
{
namespace
{
constexpr std::size_t kRootSize = 3; // "C:\"

std::size_t NameStart(std::string_view path)
{
    const std::size_t separator = path.find_last_of("\\/:");
    return separator == std::string_view::npos ? 0 : separator + 1;
}
} // namespace

FileSelection::FileSelection(std::span<const char> buffer) : m_buffer(buffer)
{
}

std::string_view FileSelection::TextAt(std::size_t offset) const
{
    if (offset >= m_buffer.size())
        return {};
    const auto rest = m_buffer.subspan(offset);
    const auto end = std::find(rest.begin(), rest.end(), '\0');
    return {rest.data(), static_cast<std::size_t>(end - rest.begin())};
}

// A position is 1 more than an offset, so that kNone is none of them.
std::size_t FileSelection::First() const
{
    const std::string_view head = TextAt(0);
    if (head.empty())
        return kNone;
    const std::size_t second = head.size() + 1;
    return TextAt(second).empty() ? 1 : second + 1;
}

std::string FileSelection::Next(std::size_t& position) const
{
    if (position == kNone)
        return {};
    const std::string_view text = TextAt(position - 1);
    if (position == 1)
    {
        position = kNone;
        return std::string(text);
    }
    const std::size_t next = position + text.size() + 1;
    std::string path(TextAt(0));
    if (!path.empty() && path.back() != '\\' && path.back() != '/')
        path += '\\';
    path += text;
    position = TextAt(next - 1).empty() ? kNone : next;
    return path;
}

std::string FileFilter(std::string_view bars)
{
    std::string filter(bars);
    std::replace(filter.begin(), filter.end(), '|', '\0');
    filter.append(2, '\0');
    return filter;
}

std::string_view FileNameOf(std::string_view path)
{
    return path.substr(NameStart(path));
}

std::string_view ExtensionOf(std::string_view path)
{
    const std::string_view name = FileNameOf(path);
    const std::size_t point = name.rfind('.');
    return point == std::string_view::npos ? std::string_view() : name.substr(point + 1);
}

std::string_view TitleOf(std::string_view path)
{
    const std::string_view name = FileNameOf(path);
    return name.substr(0, name.rfind('.'));
}

std::string_view FolderOf(std::string_view path)
{
    const std::size_t start = NameStart(path);
    const bool keepsBackslash = start == 0 || start == kRootSize || path[start - 1] == ':';
    return path.substr(0, keepsBackslash ? start : start - 1);
}
} // namespace vorn
