#include "apps/sample/StartOptions.h"

#include "apps/datasets/DataSets.h"

#include <algorithm>
#include <array>
#include <charconv>
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

struct TextOption
{
    std::string_view name;
    std::string StartOptions::*text;
};

constexpr std::array kTextOptions = {
    TextOption{"--snapshot", &StartOptions::snapshotFile},
    TextOption{"--shots", &StartOptions::shotsFolder},
    TextOption{"--page", &StartOptions::page},
    TextOption{"--table", &StartOptions::table},
    TextOption{"--find", &StartOptions::find},
    TextOption{"--view", &StartOptions::view},
    TextOption{"--picture", &StartOptions::picture},
    TextOption{"--startup", &StartOptions::startup},
};

const TextOption* FindTextOption(std::string_view name)
{
    const auto option = std::find_if(kTextOptions.begin(), kTextOptions.end(),
                                     [name](const TextOption& candidate)
                                     {
                                         return candidate.name == name;
                                     });
    return option == kTextOptions.end() ? nullptr : &*option;
}

bool ParseRounds(std::string_view text, StartOptions& options)
{
    constexpr int kMost = 1000;
    const char* const end = text.data() + text.size();
    const auto rounds = std::from_chars(text.data(), end, options.rounds);
    return rounds.ptr == end && options.rounds > 0 && options.rounds <= kMost;
}

bool TakesValue(std::string_view name)
{
    return name == "--size" || name == "--rounds" || FindTextOption(name) != nullptr;
}

void TakeValue(StartOptions& options, std::string_view name, const char* value)
{
    if (const TextOption* const option = FindTextOption(name))
        options.*option->text = value;
    else if (name == "--rounds" && !ParseRounds(value, options))
        options.error = "--rounds wants a number from 1 to 1000";
    else if (name == "--size" && !ParseSize(value, options))
        options.error = "--size wants WIDTHxHEIGHT, for example 1180x900";
    if (name == "--find" && options.find.find('=') == std::string::npos)
        options.error = "--find wants FIELD=VALUE, for example IDENT=SEA";
    if (name == "--startup" && !CurrencyNamed(options.startup))
        options.error = std::string("--startup wants ") + CurrencyWords();
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
        else if (argument == "--night")
            options.night = true;
        else if (argument == "--no-startup")
            options.noStartup = true;
        else if (argument == "--help")
            options.help = true;
        else if (!TakesValue(argument))
            options.error = "unknown option " + std::string(argument);
        else if (value == nullptr)
            options.error = std::string(argument) + " wants a value";
        else
            TakeValue(options, argument, arguments[++i]);
    }
    return options;
}

const char* StartOptionsHelp()
{
    return "VornSample [--page NAME] [--table FILE.dbf] [--find FIELD=VALUE]\n"
           "           [--view TEXT] [--night] [--picture FILE]\n"
           "           [--startup CASE | --no-startup]\n"
           "           [--size WIDTHxHEIGHT] [--snapshot FILE.png] [--summary] [--rounds N]\n"
           "           [--shots FOLDER]\n"
           "\n"
           "Shows the family's programs and versions, the settings in force, values in your units, tables and "
           "pictures.\n"
           "\n"
           "  --page NAME            start with this page, for example Overview; its beginning will do\n"
           "  --table FILE.dbf       browse this table instead of the sample's own\n"
           "  --find FIELD=VALUE     select the first record of the table with this value\n"
           "  --view TEXT            show this view of the chart, as --page Chart --summary prints it\n"
           "  --night                show the chart in its colours for the night\n"
           "  --picture FILE         view this picture: BMP, PCX, GIF, PNG or JPEG\n"
           "  --startup CASE         show the startup dialog with data of this case: mixed, valid, expiring or late;\n"
           "                         a snapshot or summary is then of that dialog\n"
           "  --no-startup           begin with the main window\n"
           "  --size WIDTHxHEIGHT    start with a window of this size\n"
           "  --snapshot FILE.png    save a picture of the window and exit\n"
           "  --rounds N             open and close everything N times, and print what the last two times leave in "
           "memory\n"
           "  --shots FOLDER         save pictures of the planner's windows there, say what is cut or overlaps, and "
           "exit\n"
           "  --summary              print what the pages show and exit\n";
}
