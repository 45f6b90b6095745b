#pragma once

#include <cstdint>
#include <cstring>

namespace vorn::test
{

/// The place of a virtual operation in its class's table, counted from 0 (a virtual destructor takes two places), read
/// from the compiler's representation of a pointer to it; -1 for an operation that is not virtual.
template <class Operation>
int SlotOf(Operation operation)
{
    std::intptr_t code = 0;
    static_assert(sizeof(operation) >= sizeof(code));
    std::memcpy(&code, &operation, sizeof(code));
    return code % 2 == 1 ? static_cast<int>(code / static_cast<std::intptr_t>(sizeof(void*))) : -1;
}

} // namespace vorn::test
