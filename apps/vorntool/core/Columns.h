#pragma once

#include <string>
#include <vector>

namespace vorn::tool
{

/// What stands beside what in a printed result.
struct LabelledText
{
    std::string label;
    std::string text;
};

/// One line each, the texts lined up behind the longest label; "-" stands for an empty text.
std::string LinedUp(const std::vector<LabelledText>& lines);

} // namespace vorn::tool
