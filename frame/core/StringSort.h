#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vorn
{

/// The ascending order of `texts`: element i of the result says which text comes i-th. Bytes compare as unsigned
/// numbers; without case the 26 letters count as lower case, so "_" sorts before letters. A text sorts before its own
/// continuations. Equal texts keep the order that they came in. Never quadratic.
std::vector<std::uint32_t> SortedOrder(std::span<const std::string_view> texts, bool caseSensitive);

} // namespace vorn
