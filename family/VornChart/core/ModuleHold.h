#pragma once

#include <memory>

namespace vorn
{
/// Holds the loaded module in which @p address lies until the last copy of the result goes; null where there is none.
std::shared_ptr<void> HoldModuleOf(const void* address);
} // namespace vorn
