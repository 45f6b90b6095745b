#pragma once

#include <windows.h>

namespace vorn::test
{

/// "module.dll+0x1234" of a code address; the plain address when it lies in no module.
void PrintCodeAddress(const void* address);

/// Prints the instruction of the context and, from its stack, the addresses that follow a call in
/// some module's code: most are return addresses of callers, some are left over from earlier calls.
void PrintStack(const CONTEXT& context);

} // namespace vorn::test
