#pragma once

#include <vector>

namespace vorn
{

/// Which record stands in which row of a list that leaves deleted records out. Memory goes with the number of deleted
/// records alone; both questions take a binary search among them.
class LiveRows
{
public:
    /// A table of `records` records, none deleted.
    void Reset(int records);

    /// Takes a record out. Nothing for a record that is out already or outside the table.
    void Delete(int record);

    /// Live records.
    int Count() const;

    int DeletedCount() const;

    /// The record of a row; -1 for a row outside 0 to Count() - 1.
    int RecordOf(int row) const;

    /// The row of a live record; -1 for a deleted one and outside the table.
    int RowOf(int record) const;

private:
    int DeletedBefore(int record) const;

    int m_records = 0;
    std::vector<int> m_deleted; // ascending
};

} // namespace vorn
