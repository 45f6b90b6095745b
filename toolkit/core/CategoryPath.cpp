#include "toolkit/core/CategoryPath.h"

#include "frame/core/Split.h"

namespace vorn
{

std::vector<CategoryLevel> CategoryLevels(std::string_view path)
{
    std::vector<CategoryLevel> levels;
    std::string prefix;
    const auto add = [&](std::string_view text)
    {
        if (!prefix.empty())
        {
            prefix += '|';
        }
        prefix += text;
        levels.push_back({std::string(text), prefix});
    };
    SplitText(path, "|", {.trim = false, .skipEmpty = true}, add);
    return levels;
}

std::string CategoryKey(std::string_view path)
{
    const std::vector<CategoryLevel> levels = CategoryLevels(path);
    return levels.empty() ? std::string() : levels.back().prefix;
}

} // namespace vorn
