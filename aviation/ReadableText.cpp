#include "aviation/ReadableText.h"

#include <algorithm>
#include <cstring>
#include <windows.h>

namespace vorn
{
namespace
{
constexpr std::size_t kLongest = 4096;

/// How many bytes from `address` on can be read, as far as the system tells in one answer.
std::size_t ReadableBytes(const char* address)
{
    constexpr DWORD kReadable = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READ |
                                PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    MEMORY_BASIC_INFORMATION region{};
    if (VirtualQuery(address, &region, sizeof region) != sizeof region || region.State != MEM_COMMIT ||
        (region.Protect & kReadable) == 0 || (region.Protect & PAGE_GUARD) != 0)
    {
        return 0;
    }
    return static_cast<std::size_t>(static_cast<const char*>(region.BaseAddress) + region.RegionSize - address);
}
} // namespace

std::optional<std::string> ReadableText(const char* address)
{
    std::string text;
    while (text.size() <= kLongest)
    {
        const char* const from = address + text.size();
        const std::size_t count = std::min(ReadableBytes(from), kLongest + 1 - text.size());
        if (count == 0)
        {
            return std::nullopt;
        }
        if (const void* end = std::memchr(from, '\0', count))
        {
            return text.append(from, static_cast<const char*>(end));
        }
        text.append(from, count);
    }
    return std::nullopt;
}
} // namespace vorn
