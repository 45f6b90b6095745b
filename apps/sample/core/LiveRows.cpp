#include "apps/sample/core/LiveRows.h"

#include <algorithm>

namespace vorn
{

void LiveRows::Reset(int records)
{
    m_records = std::max(0, records);
    m_deleted.clear();
}

void LiveRows::Delete(int record)
{
    const auto place = std::lower_bound(m_deleted.begin(), m_deleted.end(), record);
    if (record >= 0 && record < m_records && (place == m_deleted.end() || *place != record))
        m_deleted.insert(place, record);
}

int LiveRows::Count() const
{
    return m_records - DeletedCount();
}

int LiveRows::DeletedCount() const
{
    return static_cast<int>(m_deleted.size());
}

int LiveRows::RecordOf(int row) const
{
    if (row < 0 || row >= Count())
        return -1;
    // The k-th deleted record has m_deleted[k] - k live ones before it, so it stands before the row when those are no
    // more than `row`. The difference never falls from one deleted record to the next.
    int low = 0;
    int high = DeletedCount();
    while (low < high)
    {
        const int middle = low + (high - low) / 2;
        if (m_deleted[static_cast<std::size_t>(middle)] - middle <= row)
            low = middle + 1;
        else
            high = middle;
    }
    return row + low;
}

int LiveRows::RowOf(int record) const
{
    if (record < 0 || record >= m_records || std::binary_search(m_deleted.begin(), m_deleted.end(), record))
        return -1;
    return record - DeletedBefore(record);
}

int LiveRows::DeletedBefore(int record) const
{
    return static_cast<int>(std::lower_bound(m_deleted.begin(), m_deleted.end(), record) - m_deleted.begin());
}

} // namespace vorn
