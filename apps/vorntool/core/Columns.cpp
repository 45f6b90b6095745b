#include "apps/vorntool/core/Columns.h"

#include <algorithm>

namespace vorn::tool
{

std::string LinedUp(const std::vector<LabelledText>& lines)
{
    std::size_t width = 0;
    for (const LabelledText& line : lines)
    {
        width = std::max(width, line.label.size());
    }
    std::string text;
    for (const LabelledText& line : lines)
    {
        text.append(line.label).append(width - line.label.size() + 2, ' ');
        text.append(line.text.empty() ? "-" : line.text).append("\n");
    }
    return text;
}

} // namespace vorn::tool
