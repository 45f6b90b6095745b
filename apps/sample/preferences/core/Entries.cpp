#include "apps/sample/preferences/core/Entries.h"

#include <array>
#include <charconv>
#include <cmath>

namespace vorn::preferences
{

namespace
{

constexpr std::size_t kLongestFolder = 259;
constexpr std::string_view kDigits = "0123456789";

std::string_view Trimmed(std::string_view text, std::string_view around)
{
    const std::size_t first = text.find_first_not_of(around);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(around) - first + 1);
}

/// "18,000" without its commas; empty when they do not part groups of three.
std::string Ungrouped(std::string_view text)
{
    std::string digits;
    const std::size_t comma = text.find(',');
    if (comma == 0 || (comma != std::string_view::npos && (comma > 3 || (text.size() - comma) % 4 != 0)))
        return {};
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const bool isGroupEnd = comma != std::string_view::npos && i >= comma && (i - comma) % 4 == 0;
        if (isGroupEnd != (text[i] == ','))
            return {};
        if (!isGroupEnd)
            digits += text[i];
    }
    return digits;
}

bool IsLetter(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

bool BeginsAtARoot(std::string_view folder)
{
    const bool isDrive = folder.size() >= 3 && IsLetter(folder[0]) && folder[1] == ':' && folder[2] == '\\';
    const bool isComputer = folder.size() >= 4 && folder.substr(0, 2) == "\\\\" && folder[2] != '\\';
    return isDrive || isComputer;
}

} // namespace

std::optional<int> WholeNumber(std::string_view text, int least, int most)
{
    const std::string digits = Ungrouped(Trimmed(text, " "));
    int value = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    const bool isWhole = !digits.empty() && read.ec == std::errc() && read.ptr == digits.data() + digits.size();
    return isWhole && value >= least && value <= most ? std::optional(value) : std::nullopt;
}

std::optional<double> Factor(std::string_view text)
{
    std::string number(Trimmed(text, " "));
    if (const std::size_t comma = number.find(','); comma != std::string::npos)
        number[comma] = '.';
    if (number.find_first_not_of(std::string(kDigits) + '.') != std::string::npos)
        return std::nullopt; // no exponents, no "inf"
    double value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    const bool isNumber = !number.empty() && read.ec == std::errc() && read.ptr == number.data() + number.size();
    return isNumber && value >= 0 && value <= 1 ? std::optional(value) : std::nullopt;
}

std::string FactorText(double factor)
{
    std::array<char, 40> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), factor, std::chars_format::fixed);
    return {text.data(), end.ptr};
}

std::string FolderText(std::string_view typed)
{
    std::string folder(Trimmed(typed, " \""));
    for (char& character : folder)
        character = character == '/' ? '\\' : character;
    if (!folder.empty() && folder.back() != '\\')
        folder += '\\';
    return folder;
}

std::string FolderFault(std::string_view folder)
{
    if (folder.empty())
        return "Enter a folder, or press Reset for the one that the installation chose.";
    if (!BeginsAtARoot(folder))
        return "A folder begins with a drive, as in C:\\Charts, or with a computer, as in \\\\Hangar\\Charts.";
    if (folder.find_first_of("<>\"|?*") != std::string_view::npos || folder.find(':', 2) != std::string_view::npos)
        return "The name of a folder has none of these characters: < > : \" | ? *";
    return folder.size() > kLongestFolder ? "A folder's name has at most 259 characters." : std::string();
}

} // namespace vorn::preferences
