#pragma once

#include <cstddef>

/// A heap for tests in which a byte outside a block cannot be touched unseen: each block ends at an
/// unreadable page, a freed block becomes unreadable and stays so until the whole address range was
/// used once around, and bytes in front of a block are compared when it is freed. It replaces
/// operator new and delete and, by the linker's --wrap, the C library's functions.
namespace vorn::guard
{

/// The block's last byte is the last of a readable page. Its address is a multiple of the largest
/// power of two that divides the size (16 at most): enough for any object or array of that size.
/// Filled with 0xCD. Null when the address range is used up.
void* Allocate(std::size_t size);

/// The same for objects of a stricter alignment; the size is rounded up to a multiple of it.
void* AllocateAligned(std::size_t size, std::size_t alignment);

/// True for the address of a living block of this heap.
bool IsBlock(const void* block);

/// Size that a living block was asked with.
std::size_t SizeOf(const void* block);

/// True for any address of the heap's range, living or not.
bool InRange(const void* address);

/// Ends the process with a report when the block is none (any more) or was written in front of.
void Free(void* block);

/// Blocks that live now.
std::size_t LivingBlocks();

} // namespace vorn::guard
