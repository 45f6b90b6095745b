#include "tests/guard/GuardHeap.h"

#include <cstring>
#include <new>

// The program's allocation functions, all on the guarded heap.

namespace
{

void* OrThrow(void* block)
{
    if (block == nullptr)
    {
        throw std::bad_alloc();
    }
    return block;
}

} // namespace

void* operator new(std::size_t size)
{
    return OrThrow(vorn::guard::Allocate(size));
}

void* operator new[](std::size_t size)
{
    return OrThrow(vorn::guard::Allocate(size));
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return vorn::guard::Allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return vorn::guard::Allocate(size);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return OrThrow(vorn::guard::AllocateAligned(size, static_cast<std::size_t>(alignment)));
}

void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return OrThrow(vorn::guard::AllocateAligned(size, static_cast<std::size_t>(alignment)));
}

void operator delete(void* block) noexcept
{
    vorn::guard::Free(block);
}

void operator delete[](void* block) noexcept
{
    vorn::guard::Free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    vorn::guard::Free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    vorn::guard::Free(block);
}

void operator delete(void* block, std::align_val_t) noexcept
{
    vorn::guard::Free(block);
}

void operator delete[](void* block, std::align_val_t) noexcept
{
    vorn::guard::Free(block);
}

void operator delete(void* block, std::size_t, std::align_val_t) noexcept
{
    vorn::guard::Free(block);
}

void operator delete[](void* block, std::size_t, std::align_val_t) noexcept
{
    vorn::guard::Free(block);
}

// The linker sends the C functions of all statically linked code here. Blocks that a system library
// made come back to be freed, too, and go where they came from.
extern "C"
{
    void __real_free(void* block);
    void* __real_realloc(void* block, std::size_t size);

    void* __wrap_malloc(std::size_t size)
    {
        return vorn::guard::Allocate(size);
    }

    void* __wrap_calloc(std::size_t count, std::size_t size)
    {
        if (size != 0 && count > static_cast<std::size_t>(-1) / size)
        {
            return nullptr;
        }
        void* const block = vorn::guard::Allocate(count * size);
        return block == nullptr ? nullptr : std::memset(block, 0, count * size);
    }

    void __wrap_free(void* block)
    {
        if (vorn::guard::InRange(block))
        {
            vorn::guard::Free(block);
        }
        else
        {
            __real_free(block);
        }
    }

    void* __wrap_realloc(void* block, std::size_t size)
    {
        if (block != nullptr && !vorn::guard::InRange(block))
        {
            return __real_realloc(block, size);
        }
        if (block != nullptr && size == 0)
        {
            vorn::guard::Free(block);
            return nullptr;
        }
        void* const moved = vorn::guard::Allocate(size);
        if (moved != nullptr && block != nullptr)
        {
            const std::size_t before = vorn::guard::SizeOf(block);
            std::memcpy(moved, block, before < size ? before : size);
            vorn::guard::Free(block);
        }
        return moved;
    }
}
