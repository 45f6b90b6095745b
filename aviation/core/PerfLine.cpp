#include "aviation/core/PerfLine.h"

#include "aviation/core/DistributePoints.h"

#include <algorithm>
#include <cstdint>
#include <memory>

namespace vorn
{
namespace
{

void DrawDash(const CPoint* points, int count, std::int64_t first, std::int64_t steps, LinePen& pen)
{
    const std::int64_t last = std::min<std::int64_t>(first + steps, count - 1);
    if (last <= first)
    {
        return;
    }
    pen.MoveTo(points[first]);
    for (std::int64_t i = first + 1; i <= last; ++i)
    {
        pen.LineTo(points[i]);
    }
}

void DrawRun(CPoint* run, int count, double spacing, const PerfPattern& pattern, LinePen& pen)
{
    CPoint* spaced = nullptr;
    const int total = DistributePoints(run, count, spacing, &spaced);
    const std::unique_ptr<CPoint[]> owned(spaced);
    DrawPattern(spaced, total, pattern, pen);
}

} // namespace

void DrawPattern(const CPoint* points, int count, const PerfPattern& pattern, LinePen& pen)
{
    const std::int64_t dash1 = std::max(pattern.dash1, 0);
    const std::int64_t dash2 = std::max(pattern.dash2, 0);
    const std::int64_t toSecond = dash1 + std::max(pattern.gap1, 0);
    const std::int64_t toNext = toSecond + dash2 + std::max(pattern.gap2, 0);
    if (toNext == 0)
    {
        return;
    }
    for (std::int64_t i = 0; i < count; i += toNext)
    {
        DrawDash(points, count, i, dash1, pen);
        DrawDash(points, count, i + toSecond, dash2, pen);
    }
}

void DrawPerfRuns(CPoint* points, int count, double spacing, const PerfPattern& pattern, LinePen& pen)
{
    if (points == nullptr || count < 2)
    {
        return;
    }
    CPoint* const end = points + count;
    for (CPoint* run = points; run < end;)
    {
        CPoint* const runEnd = std::find_if(run, end, IsRunMarker);
        DrawRun(run, static_cast<int>(runEnd - run), spacing, pattern, pen);
        run = runEnd == end ? end : runEnd + 1;
    }
}

} // namespace vorn
