#include "apps/chart/core/SceneDraft.h"

#include <cmath>
#include <utility>

namespace vorn::chart
{

namespace
{

// Pixels of a 96-dpi screen.
constexpr double kSpacing = 96;
constexpr int kEdgeInset = 4;

void AddEdgePlace(LabelWish& wish, const std::optional<PixelPoint>& middle, PixelSize size)
{
    if (!middle)
        return;
    const int left = static_cast<int>(std::lround(middle->x - size.width / 2.0));
    const int top = static_cast<int>(std::lround(middle->y - size.height / 2.0));
    wish.request.candidates.push_back({left, top, left + size.width, top + size.height});
}

void WishForLabel(SceneDraft& draft, const GridLine& line)
{
    const Graticule& graticule = draft.scene.graticule;
    const ChartView& view = draft.view;
    const std::string words = line.parallel ? ParallelText(line.minutes, graticule.latitudeStep)
                                            : MeridianText(line.minutes, graticule.longitudeStep);
    LabelWish wish{{(line.parallel ? kParallelIds : kMeridianIds) + line.minutes, kGridPriority, {}},
                   {{words, TextStyle::Grid, {}}},
                   Ink::Grid,
                   true};
    const PixelSize size = draft.labels.Measure(wish.text);
    const int inset = static_cast<int>(draft.Px(kEdgeInset));
    if (line.parallel)
    {
        AddEdgePlace(wish, CrossingAtX(line, inset + size.width / 2.0), size);
        AddEdgePlace(wish, CrossingAtX(line, view.Width() - inset - size.width / 2.0), size);
    }
    else
    {
        AddEdgePlace(wish, CrossingAtY(line, inset + size.height / 2.0), size);
        AddEdgePlace(wish, CrossingAtY(line, view.Height() - inset - size.height / 2.0), size);
    }
    draft.labels.Wish(std::move(wish));
}

} // namespace

void AddGraticule(SceneDraft& draft)
{
    draft.scene.graticule = GraticuleOf(draft.view, draft.Px(kSpacing));
    draft.scene.limb = ClippedLine(draft.view.Limb(), {0, 0, draft.view.Width(), draft.view.Height()});
    for (const GridLine& line : draft.scene.graticule.lines)
        WishForLabel(draft, line);
}

} // namespace vorn::chart
