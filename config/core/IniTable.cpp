#include "config/core/IniTable.h"

#include <utility>

namespace vorn
{
namespace
{
void AddLine(IniTable& table, std::string& name, std::size_t prefix, std::string_view line)
{
    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos)
    {
        return;
    }
    name.resize(prefix);
    name += line.substr(0, sign);
    const auto place = table.lower_bound(name);
    if (place == table.end() || place->first != name)
    {
        table.emplace_hint(place, name, line.substr(sign + 1));
    }
}
} // namespace

std::vector<std::string_view> BlockTexts(std::string_view block)
{
    std::vector<std::string_view> texts;
    while (!block.empty() && block.front() != '\0')
    {
        const std::string_view text = block.substr(0, block.find('\0'));
        texts.push_back(text);
        block.remove_prefix(std::min(text.size() + 1, block.size()));
    }
    return texts;
}

void AddSection(IniTable& table, std::string_view section, std::string_view block)
{
    std::string name(section);
    name += '|';
    const std::size_t prefix = name.size();
    for (const std::string_view line : BlockTexts(block))
    {
        AddLine(table, name, prefix, line);
    }
}

const std::string* FindEntry(const IniTable& table, std::string_view section, std::string_view key)
{
    std::string name;
    name.reserve(section.size() + 1 + key.size());
    name.append(section).append(1, '|').append(key);
    const auto entry = table.find(name);
    return entry == table.end() ? nullptr : &entry->second;
}
} // namespace vorn
