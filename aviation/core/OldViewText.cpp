#include "aviation/core/OldViewText.h"

namespace vorn
{
namespace
{
struct Field
{
    const char* key;
    const char* otherwise;
};

constexpr Field kFields[] = {{"LogX", "0"},      {"LogY", "0"}, {"MapX", "0"},     {"MapY", "0"},   {"Scale", "0"},
                             {"SeamLon", "180"}, {"Skew", "0"}, {"CntrLat", "25"}, {"CntrLon", "0"}};
} // namespace

std::string OldViewText(const ViewFieldReader& read)
{
    std::string text = "v1|" + read("Projection", "1") + '|';
    std::string parameters;
    int count = 0;
    for (;; ++count)
    {
        std::string key = "Param";
        key += std::to_string(count + 1);
        const std::string parameter = read(key.c_str(), "");
        if (parameter.empty())
        {
            break;
        }
        parameters += parameter + '|';
    }
    text.append(std::to_string(count)).append("|").append(parameters);
    for (const Field& field : kFields)
    {
        text.append(read(field.key, field.otherwise)).append("|");
    }
    return text;
}
} // namespace vorn
