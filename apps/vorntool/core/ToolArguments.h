#pragma once

#include "apps/vorntool/core/Command.h"

#include <optional>

namespace vorn::tool
{

/// Options that every command takes.
std::span<const Option> CommonOptions();

/// Whether a word asks for help: "--help", "-h" or "/?".
bool AsksForHelp(std::string_view word);

/// Sorts the words after a command into values and options. An option is "--name", "--name VALUE" or "--name=VALUE" and
/// may stand anywhere; after "--" every word is a value, and so is a word with one hyphen ("-40").
///
/// A word that asks for help makes the call one for help ("help" among the options), whatever else it holds.
///
/// @return nothing when the words do not fit the command, with the reason in @p reason.
std::optional<Invocation> ParseArguments(const Command& command, std::span<const std::string> words,
                                         std::string& reason);

} // namespace vorn::tool
