#include "framework/late/LateFunctions.h"

namespace vorn
{
namespace
{
constexpr DWORD kEntryPointNotFound = 0xC0000139; // STATUS_ENTRYPOINT_NOT_FOUND
}

extern "C" FARPROC BindLateFunction(LateFunction* function)
{
    const DWORD lastError = GetLastError();
    const HMODULE module = LoadLibraryA(function->dll);
    const FARPROC found = module != nullptr ? GetProcAddress(module, function->name) : nullptr;
    if (found == nullptr)
    {
        RaiseException(kEntryPointNotFound, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    }
    SetLastError(lastError);
    function->target = found; // two threads may both do this: they enter the same
    return found;
}
} // namespace vorn
