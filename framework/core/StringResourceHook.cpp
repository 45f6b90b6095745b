#include "framework/core/StringResourceHook.h"

#include <atomic>

namespace vorn
{
namespace
{
constinit std::atomic<StringResourceLoader> g_loader = nullptr;
}

void SetStringResourceLoader(StringResourceLoader loader) noexcept
{
    g_loader = loader;
}

void LoadStringResource(CString& text, const char* id)
{
    if (const StringResourceLoader loader = g_loader)
    {
        loader(text, static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(id)));
    }
}
} // namespace vorn
