#include "frame/LibraryModule.h"

namespace vorn
{

HINSTANCE LibraryModule()
{
    HMODULE module = nullptr;
    const auto address = reinterpret_cast<LPCSTR>(reinterpret_cast<ULONG_PTR>(&LibraryModule));
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, address,
                         &module);
    return module;
}

} // namespace vorn
