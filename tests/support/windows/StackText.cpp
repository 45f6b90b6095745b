#include "tests/support/windows/StackText.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace vorn::test
{

namespace
{

constexpr int kMostAddresses = 32;
constexpr std::uintptr_t kMostStackBytes = 0x8000;

bool IsReadable(const void* address, DWORD rights)
{
    MEMORY_BASIC_INFORMATION region = {};
    return VirtualQuery(address, &region, sizeof region) != 0 && region.State == MEM_COMMIT &&
           (region.Protect & rights) != 0 && (region.Protect & PAGE_GUARD) == 0;
}

bool IsCode(const void* address)
{
    return IsReadable(address, PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY);
}

// A return address stands behind a call instruction: E8 with four bytes, or FF with two to six.
bool FollowsCall(const unsigned char* address)
{
    return IsCode(address - 7) &&
           (address[-5] == 0xE8 || address[-2] == 0xFF || address[-3] == 0xFF || address[-6] == 0xFF);
}

std::uintptr_t StackEnd(std::uintptr_t from)
{
    MEMORY_BASIC_INFORMATION region = {};
    if (VirtualQuery(reinterpret_cast<const void*>(from), &region, sizeof region) == 0)
    {
        return from;
    }
    const std::uintptr_t end = reinterpret_cast<std::uintptr_t>(region.BaseAddress) + region.RegionSize;
    return end - from > kMostStackBytes ? from + kMostStackBytes : end;
}

} // namespace

void PrintCodeAddress(const void* address)
{
    HMODULE module = nullptr;
    char path[MAX_PATH] = "";
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<LPCSTR>(address), &module);
    if (module == nullptr || GetModuleFileNameA(module, path, MAX_PATH) == 0)
    {
        std::fprintf(stderr, "    %p\n", address);
        return;
    }
    const char* name = std::strrchr(path, '\\');
    const std::uintptr_t offset = reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(module);
    std::fprintf(stderr, "    %s+0x%lx\n", name != nullptr ? name + 1 : path, static_cast<unsigned long>(offset));
}

void PrintStack(const CONTEXT& context)
{
    PrintCodeAddress(reinterpret_cast<const void*>(static_cast<std::uintptr_t>(context.Eip)));
    const std::uintptr_t begin = context.Esp & ~std::uintptr_t{3};
    const std::uintptr_t end = StackEnd(begin);
    int printed = 0;
    for (std::uintptr_t at = begin; at + sizeof(void*) <= end && printed < kMostAddresses; at += sizeof(void*))
    {
        const auto* const code = *reinterpret_cast<const unsigned char* const*>(at);
        if (IsCode(code) && FollowsCall(code))
        {
            PrintCodeAddress(code);
            ++printed;
        }
    }
}

} // namespace vorn::test
