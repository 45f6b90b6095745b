#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vorn::guard
{

using Bytes = std::vector<std::uint8_t>;

/// Calls the action with the whole input and with many damaged forms of it, the same ones each time:
/// cut short at each length, bytes changed, blocks removed, repeated and exchanged. The text says
/// what was done. Ends early when the action returns false.
void ForEachDamage(const Bytes& whole, const std::function<bool(const Bytes&, const std::string&)>& action);

} // namespace vorn::guard
