#pragma once

#include "apps/chart/core/PixelGeometry.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace vorn::chart
{

/// Boxes that can be asked which of them overlap another, fast: each stands in the squares that it touches.
class BoxGrid
{
public:
    void Add(int id, const PixelBox& box);
    void Remove(int id, const PixelBox& box);

    /// Calls visit(id) for each box that overlaps; more than once for a box in several squares.
    template <typename Visit>
    void VisitOverlapping(const PixelBox& box, Visit visit) const
    {
        VisitSquares(box,
                     [&](std::int64_t square)
                     {
                         const auto found = m_squares.find(square);
                         if (found == m_squares.end())
                             return;
                         for (const Entry& entry : found->second)
                         {
                             if (Overlap(entry.box, box))
                                 visit(entry.id);
                         }
                     });
    }

    bool HasOverlapping(const PixelBox& box) const;
    int CountOverlapping(const PixelBox& box) const;

private:
    struct Entry
    {
        int id;
        PixelBox box;
    };

    static constexpr int kSquare = 64; // pixels

    static int SquareOf(int coordinate)
    {
        return coordinate >= 0 ? coordinate / kSquare : -((-(coordinate + 1)) / kSquare) - 1;
    }

    template <typename Visit>
    static void VisitSquares(const PixelBox& box, Visit visit)
    {
        if (box.IsEmpty())
            return;
        for (int y = SquareOf(box.top); y <= SquareOf(box.bottom - 1); ++y)
        {
            for (int x = SquareOf(box.left); x <= SquareOf(box.right - 1); ++x)
                visit((static_cast<std::int64_t>(y) << 32) + x);
        }
    }

    std::unordered_map<std::int64_t, std::vector<Entry>> m_squares;
};

} // namespace vorn::chart
