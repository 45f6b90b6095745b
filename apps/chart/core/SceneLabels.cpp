#include "apps/chart/core/SceneLabels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace vorn::chart
{

namespace
{

TextSide SideOf(int candidate)
{
    constexpr std::array kSides = {TextSide::Left, TextSide::Right, TextSide::Centre, TextSide::Centre,
                                   TextSide::Left, TextSide::Right, TextSide::Left,   TextSide::Right};
    return kSides[static_cast<std::size_t>(candidate % 8)];
}

PixelBox BoxAround(PixelPoint at, double half)
{
    return {static_cast<int>(std::floor(at.x - half)), static_cast<int>(std::floor(at.y - half)),
            static_cast<int>(std::ceil(at.x + half)), static_cast<int>(std::ceil(at.y + half))};
}

bool IsWithin(const PixelBox& box, const PixelBox& whole)
{
    return box.left >= whole.left && box.top >= whole.top && box.right <= whole.right && box.bottom <= whole.bottom;
}

} // namespace

SceneLabels::SceneLabels(LabelMeter& meter, const PixelBox& drawing, const std::vector<PixelBox>& closed)
    : m_meter(meter), m_drawing(drawing)
{
    m_obstacles.closed = closed;
}

PixelSize SceneLabels::Measure(const LabelText& text)
{
    return m_meter.Measure(text);
}

bool SceneLabels::IsUnderPanel(PixelPoint at) const
{
    return std::any_of(m_obstacles.closed.begin(), m_obstacles.closed.end(),
                       [at](const PixelBox& box)
                       {
                           return box.Contains(at);
                       });
}

void SceneLabels::Wish(LabelWish wish)
{
    // An empty place is none, and the others keep their numbers.
    for (PixelBox& place : wish.request.candidates)
    {
        if (!IsWithin(place, m_drawing))
            place = {};
    }
    m_wishes.push_back(std::move(wish));
}

void SceneLabels::AvoidSymbol(PixelPoint at, double half)
{
    m_obstacles.symbols.push_back(BoxAround(at, half));
}

void SceneLabels::AvoidPlace(PixelPoint at, double half)
{
    m_obstacles.lines.push_back(BoxAround(at, half));
}

void SceneLabels::AvoidLine(const PixelLine& line, double half)
{
    for (std::size_t i = 1; i < line.size(); ++i)
    {
        const double dx = line[i].x - line[i - 1].x;
        const double dy = line[i].y - line[i - 1].y;
        const int steps = std::max(1, static_cast<int>(std::hypot(dx, dy) / (2 * half)));
        for (int step = 0; step < steps; ++step)
            AvoidPlace({line[i - 1].x + dx * step / steps, line[i - 1].y + dy * step / steps}, half);
    }
}

void SceneLabels::Place(const LabelMemory& before, ChartScene& scene)
{
    std::vector<LabelRequest> requests;
    std::map<int, LabelWish*> byId;
    for (LabelWish& wish : m_wishes)
    {
        byId[wish.request.id] = &wish;
        requests.push_back(wish.request);
    }
    const std::vector<PlacedLabel> placed = PlaceLabels(requests, m_obstacles, before);
    for (const PlacedLabel& label : placed)
    {
        LabelWish& wish = *byId[label.id];
        scene.labels.push_back(
            {std::move(wish.text), label.box, wish.centred ? TextSide::Centre : SideOf(label.candidate), wish.ink});
    }
    scene.memory = MemoryOf(placed);
}

} // namespace vorn::chart
