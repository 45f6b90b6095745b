#pragma once

#include <cstddef>
#include <string_view>

namespace vorn
{

/// Arguments per step in which the pointer array grows.
inline constexpr int kArgumentStep = 8;

/// Characters of the array that holds the program's name: the system's path limit and a zero, whatever the name.
inline constexpr std::size_t kProgramRoom = 261;

/// Appends a zero-ended copy, in an array of `room` characters at least. Whenever `argc` is a multiple of eight, 0
/// included, the pointer array is replaced by one with room for eight more; the old one is released.
void AppendArgument(int& argc, char**& argv, std::string_view argument, std::size_t room = 0);

/// Every argument of a command line; before them the program's name, unless that is null. `argc` and `argv` are made
/// anew; what they held before is not looked at.
void MakeArguments(std::string_view line, const char* program, int& argc, char**& argv);

} // namespace vorn
