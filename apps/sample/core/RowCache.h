#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vorn
{

/// The cells of one row, in the order of the table's fields.
using TableRow = std::vector<std::string>;

/// Rows that a list has lately asked for, kept in blocks of neighbours: painting a page of a long table reads a block
/// or two, forwards and backwards alike, and the memory stays the same however far the user scrolls.
class RowCache
{
public:
    static constexpr int kBlockRows = 64;
    static constexpr int kBlocks = 8;

    /// Fills in `rows` with the rows from `first` on, at most kBlockRows, fewer at the table's end or where reading
    /// fails.
    class Source
    {
    public:
        virtual void LoadRows(int first, std::vector<TableRow>& rows) = 0;

    protected:
        ~Source() = default;
    };

    /// The source must outlive the cache.
    explicit RowCache(Source& source);

    /// The row's cells, null for a row that the source has not. Valid until the next call.
    const TableRow* Row(int row);

    /// Forgets everything: the table has changed.
    void Clear();

private:
    struct Block
    {
        int first = -1;
        std::uint64_t lastUse = 0;
        std::vector<TableRow> rows;
    };

    Block& BlockFrom(int first);

    Source& m_source;
    std::array<Block, kBlocks> m_blocks;
    std::uint64_t m_uses = 0;
};

} // namespace vorn
