#pragma once

#include <string>
#include <string_view>

/// @file
/// How links are opened without the shell's help, and what is told when they cannot be.
namespace vorn
{

/// The command line that opens a URL, from a browser's registered one: up to the placeholder "%1", the quoted one
/// first, its opening quote gone too; then a blank and the URL. What stands behind the placeholder is dropped.
std::string BrowserCommand(std::string_view registered, std::string_view url);

/// Why a link could not be opened, by the code of the shell or of the program's start.
std::string LinkErrorMessage(int code);

} // namespace vorn
