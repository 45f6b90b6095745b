#include "apps/sample/core/RowCache.h"

#include <algorithm>

namespace vorn
{

RowCache::RowCache(Source& source) : m_source(source)
{
}

const TableRow* RowCache::Row(int row)
{
    if (row < 0)
        return nullptr;
    const Block& block = BlockFrom(row / kBlockRows * kBlockRows);
    const std::size_t place = static_cast<std::size_t>(row % kBlockRows);
    return place < block.rows.size() ? &block.rows[place] : nullptr;
}

RowCache::Block& RowCache::BlockFrom(int first)
{
    auto block = std::find_if(m_blocks.begin(), m_blocks.end(),
                              [first](const Block& candidate)
                              {
                                  return candidate.first == first;
                              });
    if (block == m_blocks.end())
    {
        block = std::min_element(m_blocks.begin(), m_blocks.end(),
                                 [](const Block& a, const Block& b)
                                 {
                                     return a.lastUse < b.lastUse;
                                 });
        block->rows.clear();
        block->first = first;
        m_source.LoadRows(first, block->rows);
    }
    block->lastUse = ++m_uses;
    return *block;
}

void RowCache::Clear()
{
    m_blocks = {};
}

} // namespace vorn
