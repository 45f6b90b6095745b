#include "framework/core/StringData.h"

#include "framework/core/BlockPool.h"
#include "framework/core/Exception.h"
#include "framework/core/ShortCopy.h"

#include <cstddef>
#include <new>

namespace vorn
{
constinit EmptyStringData g_emptyString{{0, 0, 0}, {}};
static_assert(offsetof(EmptyStringData, end) == sizeof(StringData));

namespace
{
std::size_t BlockSize(int capacity)
{
    return sizeof(StringData) + static_cast<std::size_t>(capacity) + 1;
}

int CapacityOf(std::size_t blockSize)
{
    return static_cast<int>(blockSize - sizeof(StringData) - 1);
}
} // namespace

StringData* AllocateString(int length)
{
    if (length < 0 || length > kMaxStringLength)
    {
        AfxThrowMemoryException();
    }
    std::size_t size = BlockSize(length);
    void* block = TakeBlock(size);
    if (block == nullptr)
    {
        AfxThrowMemoryException();
    }
    auto* data = new (block) StringData{0, CapacityOf(size), 1};
    data->Text()[0] = '\0';
    return data;
}

StringData* ShareShort(StringData* data) noexcept
{
    std::size_t size = BlockSize(data->length);
    void* block = TakeFreeBlock(size);
    if (block == nullptr)
    {
        data->refs.fetch_add(1, std::memory_order_relaxed);
        return data;
    }
    auto* copy = new (block) StringData{data->length, CapacityOf(size), 1};
    CopyText(copy->Text(), data->Text(), static_cast<std::size_t>(data->length) + 1);
    return copy;
}

void FreeString(StringData* data) noexcept
{
    GiveBlock(data, BlockSize(data->capacity));
}

void CloseStringPool() noexcept
{
    CloseBlockPool();
}
} // namespace vorn
