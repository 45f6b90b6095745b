#pragma once

/// @file
/// Memory for the elements of one list: many small blocks of one size.
#include "framework/core/BaseTypes.h"
#include "framework/core/Export.h"

#include <cstddef>

namespace vorn
{
/// Blocks of one size, cut from larger pieces of the heap. A block given back is used again; the pieces go back to the
/// heap together, by Clear() or with the pool. Not for use by two threads at once.
class HOSTFRAMEWORK_API NodePool
{
public:
    /// @param nodeSize bytes of a block, a multiple of the alignment of a pointer.
    /// @param firstPiece blocks in the first piece; each further piece holds twice as many, up to a bound.
    NodePool(std::size_t nodeSize, INT_PTR firstPiece) noexcept;
    NodePool(const NodePool&) = delete;
    NodePool& operator=(const NodePool&) = delete;
    ~NodePool();

    /// A block; short memory throws the memory exception.
    void* Take();
    void Give(void* node) noexcept;
    /// Gives all memory back. No block may be in use.
    void Clear() noexcept;

private:
    struct Link
    {
        Link* next;
    };

    void AddPiece();

    std::size_t m_nodeSize;
    std::size_t m_firstPiece;
    std::size_t m_nextPiece;
    Link* m_free = nullptr;   ///< Blocks that were given back.
    char* m_fresh = nullptr;  ///< Blocks of the newest piece that were never used: from here ...
    char* m_end = nullptr;    ///< ... to here.
    Link* m_pieces = nullptr; ///< All pieces; each begins with its link.
};
} // namespace vorn
