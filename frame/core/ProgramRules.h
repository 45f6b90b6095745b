#pragma once

#include <optional>
#include <string>
#include <string_view>

/// @file
/// The family's programs: where each stands, and which versions of its siblings each works with.
namespace vorn
{
/// Longest path of a program that is looked at, in characters.
inline constexpr std::size_t kLongestProgramPath = 260;

/// A product version's two leading numbers.
struct ProgramVersion
{
    int major = 0;
    int minor = 0;
    bool operator==(const ProgramVersion&) const = default;
};

/// A sibling that a program depends on: its name, the key of its folder in the family's INI file, and the least
/// major and minor version. Both are compared by themselves, so 10.0 does not satisfy a rule of 9 and 1.
struct SiblingRule
{
    const char* product;
    const char* pathKey;
    ProgramVersion least;

    bool IsMetBy(const ProgramVersion& version) const
    {
        return version.major >= least.major && version.minor >= least.minor;
    }
};

/// The two siblings of a program, in the order of the result flags.
struct SiblingRules
{
    SiblingRule first;
    SiblingRule second;
};

/// Rules of a program, by its name without regard to case; null for others.
const SiblingRules* FindSiblingRules(std::string_view product);

/// File of a program relative to its installation folder, by its name without regard to case; null for others.
const char* ProgramFile(std::string_view product);

/// Folder and relative file name, with a backslash between them if the folder ends in none; nothing when the path
/// is longer than the system takes.
std::optional<std::string> ProgramPath(std::string_view folder, std::string_view file);
} // namespace vorn
