#include "apps/vorntool/core/FileList.h"

#include "apps/vorntool/core/Moments.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

std::string Counted(std::uint64_t number, const char* what)
{
    return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

std::size_t WidestSize(const std::vector<ListedFile>& files)
{
    std::size_t width = 0;
    for (const ListedFile& file : files)
    {
        width = std::max(width, std::to_string(file.size).size());
    }
    return width;
}

} // namespace

std::string PathLines(const std::vector<ListedFile>& files)
{
    std::string text;
    for (const ListedFile& file : files)
    {
        text.append(file.path).append("\n");
    }
    return text;
}

std::string LongLines(const std::vector<ListedFile>& files)
{
    const std::size_t width = WidestSize(files);
    std::uint64_t bytes = 0;
    std::string text;
    for (const ListedFile& file : files)
    {
        const std::string size = std::to_string(file.size);
        text.append(width - size.size(), ' ').append(size).append("  ");
        text.append(MomentText(file.written)).append("  ").append(file.path).append("\n");
        bytes += file.size;
    }
    return text + Counted(files.size(), "file") + ", " + Counted(bytes, "byte") + "\n";
}

void WriteFiles(JsonWriter& json, const std::vector<ListedFile>& files)
{
    json.BeginArray();
    for (const ListedFile& file : files)
    {
        json.BeginObject().Name("path").Text(file.path);
        json.Name("size").Whole(static_cast<std::int64_t>(file.size));
        json.Name("written").Text(MomentText(file.written)).EndObject();
    }
    json.EndArray();
}

} // namespace vorn::tool
