#include "apps/vorntool/core/HelpTexts.h"

#include <algorithm>
#include <charconv>

namespace vorn::tool
{

namespace
{

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

/// In lower case, every run of blanks and line breaks one blank.
std::string Folded(std::string_view text)
{
    std::string folded;
    for (const char c : text)
    {
        if (!IsBlank(c))
        {
            folded += Lower(c);
        }
        else if (folded.empty() || folded.back() != ' ')
        {
            folded += ' ';
        }
    }
    return folded;
}

} // namespace

HelpEntry HelpEntryOf(int id, std::string_view text)
{
    const std::size_t end = text.find('\r');
    const bool hasInfo = end != std::string_view::npos;
    return {id, std::string(text.substr(0, end)), hasInfo ? std::string(text.substr(end + 1)) : std::string()};
}

std::optional<int> ParseHelpId(std::string_view word)
{
    int id = 0;
    const char* const end = word.data() + word.size();
    const auto [stopped, error] = std::from_chars(word.data(), end, id);
    const bool isNumber = error == std::errc() && stopped == end && word.front() != '-';
    return isNumber ? std::optional(id) : std::nullopt;
}

bool IsBlankWord(std::string_view word)
{
    return std::all_of(word.begin(), word.end(), IsBlank);
}

bool Matches(const HelpEntry& entry, std::span<const std::string> words)
{
    const std::string text = Folded(entry.tip + "\n" + entry.info);
    return std::all_of(words.begin(), words.end(),
                       [&](const std::string& word)
                       {
                           return text.find(Folded(word)) != std::string::npos;
                       });
}

std::string HelpLine(const HelpEntry& entry)
{
    std::string tip = entry.tip;
    std::replace(tip.begin(), tip.end(), '\n', ' ');
    const std::string id = std::to_string(entry.id);
    return id + std::string(id.size() < 6 ? 6 - id.size() : 1, ' ') + tip + '\n';
}

std::string HelpPage(const HelpEntry& entry)
{
    return entry.tip + '\n' + (entry.info.empty() ? "" : '\n' + entry.info + '\n');
}

void WriteHelp(JsonWriter& json, const HelpEntry& entry)
{
    json.BeginObject().Name("id").Whole(entry.id).Name("tip").Text(entry.tip).Name("info").Text(entry.info).EndObject();
}

} // namespace vorn::tool
