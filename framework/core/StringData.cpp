#include "framework/core/StringData.h"

#include "framework/core/Exception.h"
#include "framework/core/SpinLock.h"

#include <cstddef>
#include <cstdlib>
#include <mutex>
#include <new>
#include <utility>

// Short blocks come from free lists, one for each size class, because the system heap costs more than all
// other work on a short text. Every block is a heap block of its own: a list that is busy, empty or full is simply
// passed by, blocks may be freed on any thread, and nothing has to be torn down in any order. The lists are
// constant-initialised and have no destructors, so texts in static objects may outlive them.

namespace vorn
{
constinit EmptyStringData g_emptyString{{0, 0, 0}, {}};
static_assert(offsetof(EmptyStringData, end) == sizeof(StringData));

namespace
{
[[maybe_unused]] constexpr std::size_t kClassStep = 32;
[[maybe_unused]] constexpr std::size_t kClassCount = 4;
[[maybe_unused]] constexpr int kBlocksKept = 256;

std::size_t BlockSize(int capacity)
{
    return sizeof(StringData) + static_cast<std::size_t>(capacity) + 1;
}

int CapacityOf(std::size_t blockSize)
{
    return static_cast<int>(blockSize - sizeof(StringData) - 1);
}

StringData* AllocateBlock(std::size_t size)
{
    void* block = std::malloc(size);
    if (block == nullptr)
    {
        AfxThrowMemoryException();
    }
    return static_cast<StringData*>(block);
}

#ifndef VORN_PLAIN_HEAP
struct FreeBlock
{
    FreeBlock* next;
};

class alignas(64) FreeList
{
public:
    void* Take() noexcept
    {
        const std::unique_lock lock(m_lock, std::try_to_lock);
        if (!lock.owns_lock() || m_first == nullptr)
        {
            return nullptr;
        }
        FreeBlock* block = m_first;
        m_first = block->next;
        --m_count;
        return block;
    }

    bool Put(void* memory) noexcept
    {
        const std::unique_lock lock(m_lock, std::try_to_lock);
        if (!lock.owns_lock() || m_count >= m_limit)
        {
            return false;
        }
        m_first = new (memory) FreeBlock{m_first};
        ++m_count;
        return true;
    }

    void Close() noexcept
    {
        FreeBlock* block = TakeAll();
        while (block != nullptr)
        {
            FreeBlock* next = block->next;
            std::free(block);
            block = next;
        }
    }

private:
    FreeBlock* TakeAll() noexcept
    {
        const std::lock_guard lock(m_lock);
        m_limit = 0;
        m_count = 0;
        return std::exchange(m_first, nullptr);
    }

    SpinLock m_lock;
    int m_count = 0;
    int m_limit = kBlocksKept;
    FreeBlock* m_first = nullptr;
};

constinit FreeList g_freeLists[kClassCount];

std::size_t ClassOf(std::size_t blockSize)
{
    return (blockSize - 1) / kClassStep;
}
#endif
} // namespace

StringData* AllocateString(int length)
{
    if (length < 0 || length > kMaxStringLength)
    {
        AfxThrowMemoryException();
    }
    std::size_t size = BlockSize(length);
    StringData* data = nullptr;
#ifndef VORN_PLAIN_HEAP
    if (const std::size_t sizeClass = ClassOf(size); sizeClass < kClassCount)
    {
        size = (sizeClass + 1) * kClassStep;
        data = static_cast<StringData*>(g_freeLists[sizeClass].Take());
    }
#endif
    if (data == nullptr)
    {
        data = AllocateBlock(size);
    }
    new (data) StringData{0, CapacityOf(size), 1};
    data->Text()[0] = '\0';
    return data;
}

void FreeString(StringData* data) noexcept
{
#ifndef VORN_PLAIN_HEAP
    const std::size_t sizeClass = ClassOf(BlockSize(data->capacity));
    if (sizeClass < kClassCount && g_freeLists[sizeClass].Put(data))
    {
        return;
    }
#endif
    std::free(data);
}

void CloseStringPool() noexcept
{
#ifndef VORN_PLAIN_HEAP
    for (FreeList& list : g_freeLists)
    {
        list.Close();
    }
#endif
}
} // namespace vorn
