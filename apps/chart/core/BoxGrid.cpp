#include "apps/chart/core/BoxGrid.h"

#include <algorithm>

namespace vorn::chart
{

void BoxGrid::Add(int id, const PixelBox& box)
{
    VisitSquares(box,
                 [&](std::int64_t square)
                 {
                     m_squares[square].push_back({id, box});
                 });
}

void BoxGrid::Remove(int id, const PixelBox& box)
{
    VisitSquares(box,
                 [&](std::int64_t square)
                 {
                     std::vector<Entry>& entries = m_squares[square];
                     std::erase_if(entries,
                                   [id](const Entry& entry)
                                   {
                                       return entry.id == id;
                                   });
                 });
}

bool BoxGrid::HasOverlapping(const PixelBox& box) const
{
    return CountOverlapping(box) > 0;
}

int BoxGrid::CountOverlapping(const PixelBox& box) const
{
    int count = 0;
    VisitOverlapping(box,
                     [&](int)
                     {
                         ++count;
                     });
    return count;
}

} // namespace vorn::chart
