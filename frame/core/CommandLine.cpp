#include "frame/core/CommandLine.h"

#include <algorithm>

namespace vorn
{

namespace
{

constexpr std::string_view kBlanks = " \t";

} // namespace

bool TakeArgument(std::string_view& line, std::string_view& argument)
{
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (line.empty())
        return false;
    const bool quoted = line.front() == '"';
    if (quoted)
        line.remove_prefix(1);
    const std::size_t end = std::min(quoted ? line.find('"') : line.find_first_of(kBlanks), line.size());
    argument = line.substr(0, end);
    line.remove_prefix(std::min(end + (quoted ? 1 : 0), line.size()));
    return true;
}

} // namespace vorn
