#include "tests/guard/GuardHeap.h"

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstring>

namespace vorn::guard
{

namespace
{

constexpr std::size_t kPage = 4096;
constexpr std::size_t kPages = 0x20000; // 512 MB of addresses
constexpr std::size_t kStrictest = 16;
constexpr unsigned char kFresh = 0xCD;
constexpr unsigned char kFront = 0xA5;

/// What lies at a page that begins a block; pages 0 says that no block begins there.
struct Block
{
    std::uint32_t pages;
    std::uint32_t size;
};

std::atomic_flag s_lock = ATOMIC_FLAG_INIT;
unsigned char* s_base = nullptr;
Block s_blocks[kPages];
bool s_taken[kPages];
std::size_t s_cursor = 0;
std::size_t s_living = 0;

struct Lock
{
    Lock()
    {
        while (s_lock.test_and_set(std::memory_order_acquire))
        {
            Sleep(0);
        }
    }

    ~Lock()
    {
        s_lock.clear(std::memory_order_release);
    }
};

[[noreturn]] void Report(const char* what)
{
    DWORD written = 0;
    const HANDLE out = GetStdHandle(STD_ERROR_HANDLE);
    WriteFile(out, "\nGUARD: ", 8, &written, nullptr);
    WriteFile(out, what, static_cast<DWORD>(std::strlen(what)), &written, nullptr);
    WriteFile(out, "\n", 1, &written, nullptr);
    s_lock.clear();
    RaiseException(0xE0475244, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    TerminateProcess(GetCurrentProcess(), 1);
    for (;;)
    {
    }
}

void Reserve()
{
    if (s_base == nullptr)
    {
        s_base = static_cast<unsigned char*>(VirtualAlloc(nullptr, kPages * kPage, MEM_RESERVE, PAGE_NOACCESS));
        if (s_base == nullptr)
        {
            Report("the address range of the guarded heap cannot be had");
        }
    }
}

/// First of so many free pages in a row, searched from where the last block was put: what was freed
/// last is used last. kPages when there are none.
std::size_t FindPages(std::size_t count)
{
    std::size_t run = 0;
    for (std::size_t tried = 0; tried < 2 * kPages; ++tried)
    {
        s_cursor = s_cursor == kPages ? 0 : s_cursor;
        run = s_cursor == 0 ? 0 : run;
        run = s_taken[s_cursor] ? 0 : run + 1;
        ++s_cursor;
        if (run == count)
        {
            return s_cursor - count;
        }
    }
    return kPages;
}

unsigned char* Start(std::size_t page)
{
    return s_base + (page + s_blocks[page].pages) * kPage - s_blocks[page].size;
}

void* Place(std::size_t page, std::size_t pages, std::size_t size)
{
    unsigned char* const begin = s_base + page * kPage;
    if (VirtualAlloc(begin, pages * kPage, MEM_COMMIT, PAGE_READWRITE) == nullptr)
    {
        return nullptr;
    }
    std::fill_n(&s_taken[page], pages + 1, true); // the page behind the block is never given memory
    s_blocks[page] = {static_cast<std::uint32_t>(pages), static_cast<std::uint32_t>(size)};
    ++s_living;
    unsigned char* const block = Start(page);
    std::memset(begin, kFront, static_cast<std::size_t>(block - begin));
    std::memset(block, kFresh, size);
    return block;
}

/// The page at which the block begins; kPages when this is no block. An empty block has the address
/// of the unreadable page behind its own.
std::size_t PageOf(const void* address)
{
    if (!InRange(address))
    {
        return kPages;
    }
    const auto page = static_cast<std::size_t>(static_cast<const unsigned char*>(address) - s_base) / kPage;
    for (const std::size_t candidate : {page, page == 0 ? page : page - 1})
    {
        if (s_blocks[candidate].pages != 0 && Start(candidate) == address)
        {
            return candidate;
        }
    }
    return kPages;
}

bool FrontIsWhole(std::size_t page)
{
    const unsigned char* const begin = s_base + page * kPage;
    return std::all_of(begin, const_cast<const unsigned char*>(Start(page)),
                       [](unsigned char byte)
                       {
                           return byte == kFront;
                       });
}

} // namespace

void* Allocate(std::size_t size)
{
    const Lock lock;
    Reserve();
    if (size > (kPages - 2) * kPage)
    {
        return nullptr;
    }
    const std::size_t pages = std::max<std::size_t>((size + kPage - 1) / kPage, 1);
    const std::size_t page = FindPages(pages + 1);
    return page == kPages ? nullptr : Place(page, pages, size);
}

void* AllocateAligned(std::size_t size, std::size_t alignment)
{
    return alignment > kPage ? nullptr : Allocate((size + alignment - 1) / alignment * alignment);
}

bool InRange(const void* address)
{
    const auto* const byte = static_cast<const unsigned char*>(address);
    return s_base != nullptr && byte >= s_base && byte < s_base + kPages * kPage;
}

bool IsBlock(const void* block)
{
    const Lock lock;
    return PageOf(block) != kPages;
}

std::size_t SizeOf(const void* block)
{
    const Lock lock;
    const std::size_t page = PageOf(block);
    return page == kPages ? 0 : s_blocks[page].size;
}

void Free(void* block)
{
    if (block == nullptr)
    {
        return;
    }
    const Lock lock;
    const std::size_t page = PageOf(block);
    if (page == kPages)
    {
        Report("freed what is no block, or freed twice");
    }
    if (!FrontIsWhole(page))
    {
        Report("bytes in front of a block were written");
    }
    const std::size_t pages = s_blocks[page].pages;
    s_blocks[page] = {};
    VirtualFree(s_base + page * kPage, pages * kPage, MEM_DECOMMIT);
    std::fill_n(&s_taken[page], pages + 1, false);
    --s_living;
}

std::size_t LivingBlocks()
{
    const Lock lock;
    return s_living;
}

} // namespace vorn::guard
