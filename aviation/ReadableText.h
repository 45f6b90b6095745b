#pragma once

#include <optional>
#include <string>

namespace vorn
{
/// The zero-terminated text at an address of which nothing is known; none when its bytes cannot be read, or when it has
/// no end within 4,096 characters. Other threads must leave the memory alone meanwhile.
std::optional<std::string> ReadableText(const char* address);
} // namespace vorn
