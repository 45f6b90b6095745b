#pragma once

#include <string_view>

namespace vorn
{

/// Arguments per step in which the pointer array grows.
inline constexpr int kArgumentStep = 8;

/// Appends a zero-ended copy. Whenever `argc` is a multiple of eight, 0 included, the pointer array is replaced by one
/// with room for eight more; the old one is released.
void AppendArgument(int& argc, char**& argv, std::string_view argument);

/// Every argument of a command line; before them the program's name, unless that is null. `argc` and `argv` are made
/// anew; what they held before is not looked at.
void MakeArguments(std::string_view line, const char* program, int& argc, char**& argv);

} // namespace vorn
