#include "apps/sample/StartOptions.h"

#include <charconv>
#include <cstring>
#include <string_view>

namespace
{

bool ParseSize(std::string_view text, StartOptions& options)
{
    const std::size_t cross = text.find('x');
    if (cross == std::string_view::npos)
        return false;
    const char* const end = text.data() + text.size();
    const auto width = std::from_chars(text.data(), text.data() + cross, options.width);
    const auto height = std::from_chars(text.data() + cross + 1, end, options.height);
    return width.ptr == text.data() + cross && height.ptr == end && options.width > 0 && options.height > 0;
}

} // namespace

StartOptions ParseStartOptions(int count, const char* const* arguments)
{
    StartOptions options;
    for (int i = 1; i < count && options.error.empty(); ++i)
    {
        const std::string_view argument = arguments[i];
        const char* const value = i + 1 < count ? arguments[i + 1] : nullptr;
        if (argument == "--summary")
            options.summary = true;
        else if (argument == "--help")
            options.help = true;
        else if (argument != "--snapshot" && argument != "--page" && argument != "--size")
            options.error = "unknown option " + std::string(argument);
        else if (value == nullptr)
            options.error = std::string(argument) + " wants a value";
        else if (++i; argument == "--snapshot")
            options.snapshotFile = value;
        else if (argument == "--page")
            options.page = value;
        else if (!ParseSize(value, options))
            options.error = "--size wants WIDTHxHEIGHT, for example 1180x900";
    }
    return options;
}

const char* StartOptionsHelp()
{
    return "VornSample [--page NAME] [--size WIDTHxHEIGHT] [--snapshot FILE.png] [--summary]\n"
           "\n"
           "Shows the family's programs and versions, the settings in force and values in your units.\n"
           "\n"
           "  --page NAME            start with this page, for example Overview\n"
           "  --size WIDTHxHEIGHT    start with a window of this size\n"
           "  --snapshot FILE.png    save a picture of the window and exit\n"
           "  --summary              print what the pages show and exit\n";
}
