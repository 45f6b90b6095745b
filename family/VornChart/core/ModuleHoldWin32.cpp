#ifdef _WIN32
#include "family/VornChart/core/ModuleHold.h"
#include "framework/core/BaseTypes.h"

namespace vorn
{
std::shared_ptr<void> HoldModuleOf(const void* address)
{
    HMODULE module = nullptr;
    if (!GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, static_cast<const char*>(address), &module))
    {
        return nullptr;
    }
    return {module, [](void* held)
            {
                FreeLibrary(static_cast<HMODULE>(held));
            }};
}
} // namespace vorn
#endif
