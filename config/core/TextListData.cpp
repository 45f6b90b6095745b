#include "config/core/TextListData.h"

#include <algorithm>

namespace vorn
{
std::vector<char> TextListData(const std::vector<std::string_view>& texts)
{
    std::vector<char> data;
    for (const std::string_view text : texts)
    {
        data.insert(data.end(), text.begin(), text.end());
        data.push_back('\0');
    }
    data.push_back('\0');
    return data;
}

std::vector<std::string_view> TextsOfListData(std::string_view data)
{
    std::vector<std::string_view> texts;
    while (!data.empty())
    {
        texts.push_back(data.substr(0, data.find('\0')));
        data.remove_prefix(std::min(texts.back().size() + 1, data.size()));
    }
    if (!texts.empty() && texts.back().empty())
    {
        texts.pop_back();
    }
    return texts;
}
} // namespace vorn
