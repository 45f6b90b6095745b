#pragma once

/// @file
/// Free lists for the short blocks of texts.
#include <cstddef>

namespace vorn
{
/// A block of at least `size` bytes, where `size` is rounded up to what the block really has; null when memory is
/// short.
void* TakeBlock(std::size_t& size) noexcept;

/// Like TakeBlock(), but only a block that costs next to nothing: from the calling thread's own free list, without lock
/// and, but for the first few, without the heap. Otherwise null.
void* TakeFreeBlock(std::size_t& size) noexcept;

/// Gives a block back, with the size that TakeBlock() reported. Any thread may call it.
void GiveBlock(void* block, std::size_t size) noexcept;

/// Gives all free blocks back to the heap; from then on every block comes from there.
void CloseBlockPool() noexcept;
} // namespace vorn
