#include "framework/core/BlockPool.h"

#include <cstdlib>

#ifdef VORN_PLAIN_HEAP
// Builds that look for memory errors must see every block come and go.
namespace vorn
{
void* TakeBlock(std::size_t& size) noexcept
{
    return std::malloc(size);
}

void* TakeFreeBlock(std::size_t&) noexcept
{
    return nullptr;
}

void GiveBlock(void* block, std::size_t) noexcept
{
    std::free(block);
}

void CloseBlockPool() noexcept
{
}
} // namespace vorn
#else
#include "framework/core/SpinLock.h"

#include <mutex>
#include <new>
#include <utility>

// Short blocks come from free lists, one for each size class, because the system heap costs more than all
// other work on a short text. The thread that loaded the module has lists of its own and needs no lock; all other
// threads share a second set. Every block is a heap block of its own: a list that is busy, empty or full is simply
// passed by, blocks may be freed on any thread, and nothing has to be torn down in any order. The lists are
// constant-initialised and have no destructors, so texts in static objects may outlive them.

namespace vorn
{
namespace
{
constexpr std::size_t kClassStep = 32;
constexpr std::size_t kClassCount = 4;
constexpr int kBlocksKept = 256;
constexpr int kSeedBlocks = 32;

struct FreeBlock
{
    FreeBlock* next;
};

class FreeList
{
public:
    void* Take() noexcept
    {
        FreeBlock* block = m_first;
        if (block != nullptr)
        {
            m_first = block->next;
            --m_count;
        }
        return block;
    }

    // The first blocks that a copy would like to have come from the heap: a list that nobody fills stays empty for
    // ever.
    void* TakeOrSeed(std::size_t size) noexcept
    {
        if (m_first != nullptr)
        {
            return Take();
        }
        if (m_seeds == 0)
        {
            return nullptr;
        }
        --m_seeds;
        return std::malloc(size);
    }

    bool Put(void* memory) noexcept
    {
        if (m_count >= m_limit)
        {
            return false;
        }
        m_first = new (memory) FreeBlock{m_first};
        ++m_count;
        return true;
    }

    FreeBlock* Close() noexcept
    {
        m_limit = 0;
        m_seeds = 0;
        m_count = 0;
        return std::exchange(m_first, nullptr);
    }

private:
    FreeBlock* m_first = nullptr;
    int m_count = 0;
    int m_limit = kBlocksKept;
    int m_seeds = kSeedBlocks;
};

struct alignas(64) SharedList
{
    SpinLock lock;
    FreeList list;
};

constinit FreeList g_ownLists[kClassCount];
constinit SharedList g_sharedLists[kClassCount];

// Something that no two living threads have in common.
const void* ThreadMark() noexcept
{
#ifdef _WIN32
    // The address of the thread's own information block, which it keeps at this place (NT_TIB::Self).
    const void* self = nullptr;
    __asm__("movl %%fs:0x18, %0" : "=r"(self));
    return self;
#else
    static thread_local char mark;
    return &mark;
#endif
}

const void* const g_ownerMark = ThreadMark(); // null until the module is loaded: then all lists are shared ones

bool IsOwner() noexcept
{
    return g_ownerMark == ThreadMark();
}

std::size_t ClassOf(std::size_t size) noexcept
{
    return (size - 1) / kClassStep;
}

void* TakeShared(SharedList& shared) noexcept
{
    const std::unique_lock lock(shared.lock, std::try_to_lock);
    return lock.owns_lock() ? shared.list.Take() : nullptr;
}

bool PutShared(SharedList& shared, void* block) noexcept
{
    const std::unique_lock lock(shared.lock, std::try_to_lock);
    return lock.owns_lock() && shared.list.Put(block);
}

FreeBlock* CloseShared(SharedList& shared) noexcept
{
    const std::lock_guard lock(shared.lock);
    return shared.list.Close();
}

void FreeAll(FreeBlock* block) noexcept
{
    while (block != nullptr)
    {
        FreeBlock* next = block->next;
        std::free(block);
        block = next;
    }
}
} // namespace

void* TakeBlock(std::size_t& size) noexcept
{
    const std::size_t sizeClass = ClassOf(size);
    if (sizeClass >= kClassCount)
    {
        return std::malloc(size);
    }
    size = (sizeClass + 1) * kClassStep;
    void* block = IsOwner() ? g_ownLists[sizeClass].Take() : TakeShared(g_sharedLists[sizeClass]);
    return block != nullptr ? block : std::malloc(size);
}

void* TakeFreeBlock(std::size_t& size) noexcept
{
    const std::size_t sizeClass = ClassOf(size);
    if (sizeClass >= kClassCount || !IsOwner())
    {
        return nullptr;
    }
    size = (sizeClass + 1) * kClassStep;
    return g_ownLists[sizeClass].TakeOrSeed(size);
}

void GiveBlock(void* block, std::size_t size) noexcept
{
    const std::size_t sizeClass = ClassOf(size);
    const bool isKept = sizeClass < kClassCount &&
                        (IsOwner() ? g_ownLists[sizeClass].Put(block) : PutShared(g_sharedLists[sizeClass], block));
    if (!isKept)
    {
        std::free(block);
    }
}

void CloseBlockPool() noexcept
{
    for (FreeList& list : g_ownLists)
    {
        FreeAll(list.Close());
    }
    for (SharedList& shared : g_sharedLists)
    {
        FreeAll(CloseShared(shared));
    }
}
} // namespace vorn
#endif
