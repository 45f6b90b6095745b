#include "apps/chart/core/LabelPlacer.h"

#include "apps/chart/core/BoxGrid.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace vorn::chart
{

namespace
{

int Rounded(double value)
{
    return static_cast<int>(std::lround(value));
}

void Fill(BoxGrid& grid, const std::vector<PixelBox>& boxes)
{
    int id = 0;
    for (const PixelBox& box : boxes)
        grid.Add(id++, box);
}

class Placer
{
public:
    Placer(const std::vector<LabelRequest>& requests, const LabelObstacles& obstacles, const LabelMemory& before)
        : m_requests(requests), m_before(before), m_chosen(requests.size(), kNone)
    {
        Fill(m_closed, obstacles.closed);
        Fill(m_symbols, obstacles.symbols);
        Fill(m_lines, obstacles.lines);
    }

    std::vector<PlacedLabel> Run()
    {
        for (const std::size_t request : InOrder())
        {
            const std::optional<int> place = BestPlace(request);
            if (place)
                Put(request, *place);
            else
                MakeRoom(request);
        }
        return Placed();
    }

private:
    static constexpr int kNone = -1;

    const PixelBox& Box(std::size_t request, int candidate) const
    {
        return m_requests[request].candidates[static_cast<std::size_t>(candidate)];
    }

    std::vector<std::size_t> InOrder() const
    {
        std::vector<std::size_t> order(m_requests.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = i;
        std::sort(order.begin(), order.end(),
                  [this](std::size_t first, std::size_t second)
                  {
                      const LabelRequest& a = m_requests[first];
                      const LabelRequest& b = m_requests[second];
                      return a.priority != b.priority ? a.priority > b.priority : a.id < b.id;
                  });
        return order;
    }

    bool IsOpen(const PixelBox& box) const
    {
        return !box.IsEmpty() && !m_closed.HasOverlapping(box) && !m_symbols.HasOverlapping(box);
    }

    /// The place that it had; else the one with the fewest lines below it. Nothing when none is free.
    std::optional<int> BestPlace(std::size_t request) const
    {
        const int count = static_cast<int>(m_requests[request].candidates.size());
        const auto known = m_before.find(m_requests[request].id);
        std::optional<int> best;
        int least = 0;
        const auto consider = [&](int candidate)
        {
            const PixelBox& box = Box(request, candidate);
            if (!IsOpen(box) || m_labels.HasOverlapping(box))
                return;
            const int lines = m_lines.CountOverlapping(box);
            if (!best || lines < least)
            {
                best = candidate;
                least = lines;
            }
        };
        if (known != m_before.end() && known->second >= 0 && known->second < count)
            consider(known->second);
        if (best)
            return best;
        for (int candidate = 0; candidate < count && !(best && least == 0); ++candidate)
            consider(candidate);
        return best;
    }

    void Put(std::size_t request, int candidate)
    {
        m_chosen[request] = candidate;
        m_labels.Add(static_cast<int>(request), Box(request, candidate));
    }

    void Take(std::size_t request)
    {
        m_labels.Remove(static_cast<int>(request), Box(request, m_chosen[request]));
        m_chosen[request] = kNone;
    }

    /// The one label that overlaps a box; nothing when there are several.
    std::optional<std::size_t> OnlyLabelAt(const PixelBox& box) const
    {
        int only = kNone;
        bool several = false;
        m_labels.VisitOverlapping(box,
                                  [&](int id)
                                  {
                                      several = several || (only != kNone && only != id);
                                      only = id;
                                  });
        if (several || only == kNone)
            return std::nullopt;
        return static_cast<std::size_t>(only);
    }

    void MakeRoom(std::size_t request)
    {
        const int count = static_cast<int>(m_requests[request].candidates.size());
        for (int candidate = 0; candidate < count; ++candidate)
        {
            if (IsOpen(Box(request, candidate)) && MoveAside(request, candidate))
                return;
        }
    }

    bool MoveAside(std::size_t request, int candidate)
    {
        const std::optional<std::size_t> other = OnlyLabelAt(Box(request, candidate));
        if (!other)
            return false;
        const int had = m_chosen[*other];
        Take(*other);
        Put(request, candidate);
        if (const std::optional<int> place = BestPlace(*other))
        {
            Put(*other, *place);
            return true;
        }
        Take(request);
        Put(*other, had);
        return false;
    }

    std::vector<PlacedLabel> Placed() const
    {
        std::vector<PlacedLabel> placed;
        for (std::size_t i = 0; i < m_requests.size(); ++i)
        {
            if (m_chosen[i] != kNone)
                placed.push_back({m_requests[i].id, m_chosen[i], Box(i, m_chosen[i])});
        }
        std::sort(placed.begin(), placed.end(),
                  [](const PlacedLabel& first, const PlacedLabel& second)
                  {
                      return first.id < second.id;
                  });
        return placed;
    }

    const std::vector<LabelRequest>& m_requests;
    const LabelMemory& m_before;
    std::vector<int> m_chosen;
    BoxGrid m_closed;
    BoxGrid m_symbols;
    BoxGrid m_lines;
    BoxGrid m_labels;
};

} // namespace

std::vector<PixelBox> PlacesAround(PixelPoint anchor, double clearance, int width, int height)
{
    const int left = Rounded(anchor.x - clearance) - width;
    const int right = Rounded(anchor.x + clearance);
    const int centre = Rounded(anchor.x - width / 2.0);
    const int above = Rounded(anchor.y - clearance) - height;
    const int below = Rounded(anchor.y + clearance);
    const int middle = Rounded(anchor.y - height / 2.0);
    // The corners come nearer, for a symbol is round.
    const double inward = clearance * 0.7;
    const int nearLeft = Rounded(anchor.x - inward) - width;
    const int nearRight = Rounded(anchor.x + inward);
    const int nearAbove = Rounded(anchor.y - inward) - height;
    const int nearBelow = Rounded(anchor.y + inward);
    std::vector<PixelBox> places;
    for (const auto& [x, y] :
         {std::pair(right, middle), std::pair(left, middle), std::pair(centre, above), std::pair(centre, below),
          std::pair(nearRight, nearAbove), std::pair(nearLeft, nearAbove), std::pair(nearRight, nearBelow),
          std::pair(nearLeft, nearBelow)})
        places.push_back({x, y, x + width, y + height});
    return places;
}

std::vector<PlacedLabel> PlaceLabels(const std::vector<LabelRequest>& requests, const LabelObstacles& obstacles,
                                     const LabelMemory& before)
{
    return Placer(requests, obstacles, before).Run();
}

LabelMemory MemoryOf(const std::vector<PlacedLabel>& placed)
{
    LabelMemory memory;
    for (const PlacedLabel& label : placed)
        memory.emplace(label.id, label.candidate);
    return memory;
}

} // namespace vorn::chart
