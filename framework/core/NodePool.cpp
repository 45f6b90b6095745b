#include "framework/core/NodePool.h"

#include "framework/core/Exception.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace vorn
{
namespace
{
constexpr std::size_t kLargestPiece = 1024;            // blocks
constexpr std::size_t kLargestBytes = 0x10000;         // to which pieces grow
constexpr std::size_t kMostBytes = 0x1000000;          // in the first piece
constexpr std::size_t kPieceStart = 2 * sizeof(void*); // the link, at a size that keeps the blocks aligned

void* Allocate(std::size_t size)
{
    void* memory = std::malloc(size);
    if (memory == nullptr)
    {
        AfxThrowMemoryException();
    }
    return memory;
}
} // namespace

NodePool::NodePool(std::size_t nodeSize, INT_PTR firstPiece) noexcept
    : m_nodeSize(nodeSize), m_firstPiece(static_cast<std::size_t>(std::clamp<INT_PTR>(firstPiece, 1, kLargestPiece))),
      m_nextPiece(m_firstPiece)
{
    if (m_firstPiece > kMostBytes / nodeSize)
    {
        m_firstPiece = m_nextPiece = 1; // so large that they can only come one by one
    }
}

NodePool::~NodePool()
{
    Clear();
}

#ifdef VORN_PLAIN_HEAP
// Builds that look for memory errors must see every block come and go.
void* NodePool::Take()
{
    return Allocate(m_nodeSize);
}

void NodePool::Give(void* node) noexcept
{
    std::free(node);
}
#else
void* NodePool::Take()
{
    if (m_free != nullptr)
    {
        Link* node = m_free;
        m_free = node->next;
        return node;
    }
    if (m_fresh == m_end)
    {
        AddPiece();
    }
    char* node = m_fresh;
    m_fresh += m_nodeSize;
    return node;
}

void NodePool::Give(void* node) noexcept
{
    m_free = new (node) Link{m_free};
}
#endif

void NodePool::Clear() noexcept
{
    while (m_pieces != nullptr)
    {
        Link* piece = m_pieces;
        m_pieces = piece->next;
        std::free(piece);
    }
    m_free = nullptr;
    m_fresh = m_end = nullptr;
    m_nextPiece = m_firstPiece;
}

void NodePool::AddPiece()
{
    const std::size_t size = m_nextPiece * m_nodeSize;
    auto* piece = static_cast<char*>(Allocate(kPieceStart + size));
    m_pieces = new (piece) Link{m_pieces};
    m_fresh = piece + kPieceStart;
    m_end = m_fresh + size;
    if (2 * size <= kLargestBytes && 2 * m_nextPiece <= kLargestPiece)
    {
        m_nextPiece *= 2;
    }
}
} // namespace vorn
