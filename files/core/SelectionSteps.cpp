#include "files/core/SelectionSteps.h"

namespace vorn
{

namespace
{

std::string_view ServerOf(std::string_view folder)
{
    const std::size_t end = folder.starts_with("\\\\") ? folder.find('\\', 2) : folder.npos;
    return end == folder.npos ? std::string_view() : folder.substr(0, end + 1);
}

// A drive's name alone means its current folder.
std::string Selectable(std::string_view prefix)
{
    return std::string(prefix) + (prefix.ends_with(':') ? "\\" : "");
}

} // namespace

std::vector<std::string> SelectionSteps(std::string_view folder)
{
    const std::string ended = std::string(folder) + (folder.ends_with('\\') ? "" : "\\");
    const std::string_view server = ServerOf(ended);
    std::vector<std::string> steps;
    if (!server.empty())
    {
        steps.emplace_back(server);
    }
    for (std::size_t end = ended.find('\\', server.size()); end != ended.npos; end = ended.find('\\', end + 1))
    {
        if (end > 0)
        {
            steps.push_back(Selectable(std::string_view(ended).substr(0, end)));
        }
    }
    return steps;
}

} // namespace vorn
