#include "tests/support/MemoryRefusal.h"

#include <cstdlib>
#include <new>

namespace vorn::test
{

namespace
{

/// Requests that may still be granted; below 0: any number.
int g_allowed = -1;
int g_refused = 0;

bool IsRefused()
{
    if (g_allowed < 0)
    {
        return false;
    }
    if (g_allowed > 0)
    {
        --g_allowed;
        return false;
    }
    ++g_refused;
    return true;
}

void* __cdecl MeteredCalloc(std::size_t count, std::size_t size)
{
    return IsRefused() ? nullptr : std::calloc(count, size);
}

void* __cdecl MeteredMalloc(std::size_t size)
{
    return IsRefused() ? nullptr : std::malloc(size);
}

void* MeteredNew(std::size_t size)
{
    void* const memory = IsRefused() ? nullptr : std::malloc(size);
    if (memory == nullptr)
    {
        throw std::bad_alloc();
    }
    return memory;
}

void* MeteredNewOrNull(std::size_t size, const std::nothrow_t&) noexcept
{
    return IsRefused() ? nullptr : std::malloc(size);
}

struct Source
{
    const char* name;
    const void* metered;
};

const Source kSources[] = {
    {"calloc", reinterpret_cast<const void*>(MeteredCalloc)},
    {"malloc", reinterpret_cast<const void*>(MeteredMalloc)},
    {"_Znwj", reinterpret_cast<const void*>(MeteredNew)},
    {"_Znaj", reinterpret_cast<const void*>(MeteredNew)},
    {"_ZnwjRKSt9nothrow_t", reinterpret_cast<const void*>(MeteredNewOrNull)},
    {"_ZnajRKSt9nothrow_t", reinterpret_cast<const void*>(MeteredNewOrNull)},
};

} // namespace

MemoryRefusal::MemoryRefusal(std::initializer_list<const char*> libraries)
{
    for (const char* library : libraries)
    {
        for (const Source& source : kSources)
        {
            m_redirects.push_back(std::make_unique<ImportRedirect>(library, source.name, source.metered));
        }
    }
}

MemoryRefusal::~MemoryRefusal()
{
    Stop();
}

void MemoryRefusal::RefuseAfter(int requests)
{
    g_refused = 0;
    g_allowed = requests;
}

int MemoryRefusal::Stop()
{
    g_allowed = -1;
    return g_refused;
}

} // namespace vorn::test
