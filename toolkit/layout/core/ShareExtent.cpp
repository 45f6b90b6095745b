#include "toolkit/layout/core/ShareExtent.h"

#include "toolkit/layout/core/PaneMode.h"

#include <algorithm>
#include <cstdlib>

namespace vorn
{
namespace
{

using Role = ExtentShare::Role;

/// A correction of so many pixels is not divided any more.
constexpr long long kWhole = 5;

long long Divide(long long dividend, long long divisor)
{
    // A 32-bit machine divides 64 bits ten times slower than 32.
    if (dividend >= INT_MIN && dividend <= INT_MAX && divisor >= 1 && divisor <= INT_MAX)
    {
        return static_cast<int>(dividend) / static_cast<int>(divisor);
    }
    return dividend / divisor;
}

void Clamp(ExtentShare& child, int size)
{
    child.size = size;
    child.isClamped = true;
}

/// Takes a correction from the children of one role that are free to change, in proportion to their sizes.
class Spreader
{
public:
    Spreader(std::span<ExtentShare> children, Role role, long long correction, long long total)
        : m_children(children), m_role(role), m_correction(ClampToInt(correction)), m_total(total)
    {
    }

    /// What finds no taker. Each round takes something or is the last, so that the cap is never reached.
    long long Spread()
    {
        std::size_t rounds = m_children.size() + 64;
        while (m_correction != 0 && m_total >= 0 && rounds-- != 0)
        {
            const long long taken = TakeRound();
            m_correction = ClampToInt(m_correction - taken);
            if (taken == 0)
            {
                break;
            }
        }
        return m_correction;
    }

private:
    /// The correction stays as it is during a round, whatever the round has taken before.
    long long TakeRound()
    {
        m_taken = 0;
        for (ExtentShare& child : m_children)
        {
            if (child.role == m_role && !child.isClamped && child.size >= 1 && TakeFrom(child))
            {
                break;
            }
        }
        return m_taken;
    }

    /// True when it ends the round.
    bool TakeFrom(ExtentShare& child)
    {
        bool isWhole = std::llabs(m_correction) <= kWhole;
        long long share = isWhole ? m_correction : Proportion(child.size);
        if (share == 0 && m_role == Role::Greedy)
        {
            share = m_correction - m_taken;
            isWhole = true;
        }
        if (child.size - share >= child.least)
        {
            child.size = ClampToInt(child.size - share);
            m_taken += share;
            return isWhole;
        }
        m_taken += static_cast<long long>(child.size) - child.least;
        Clamp(child, child.least);
        m_total += child.least; // grows on purpose: the next round takes less from each
        return false;
    }

    long long Proportion(int size) const
    {
        return m_total == 0 ? 0 : Divide(size * m_correction, m_total);
    }

    std::span<ExtentShare> m_children;
    Role m_role;
    long long m_correction;
    long long m_total;
    long long m_taken = 0;
};

/// The state that the passes hand on.
class Sharing
{
public:
    Sharing(std::span<ExtentShare> children, long long extent) : m_children(children), m_extent(extent)
    {
    }

    void Share()
    {
        ShareFixed();
        if (m_percents != 0)
        {
            SharePercents();
        }
        if (m_greedies != 0)
        {
            ShareGreedies();
        }
        if (m_extent > 0 && m_stretchers != 0)
        {
            ShareRest();
        }
    }

private:
    void ShareFixed()
    {
        for (const ExtentShare& child : m_children)
        {
            const bool isFixed = child.role == Role::Fixed;
            m_extent -= isFixed ? child.size : 0;
            m_stretchers += isFixed && child.stretches;
            m_percents += child.role == Role::Percent;
            m_greedies += child.role == Role::Greedy;
        }
        m_extent = std::max(m_extent, 0LL);
    }

    void SharePercents()
    {
        const int base = ClampToInt(m_extent);
        long long correction = 0;
        long long spare = 0;
        long long total = 0;
        for (ExtentShare& child : m_children)
        {
            if (child.role != Role::Percent)
            {
                continue;
            }
            const int want = PercentOf(base, child.percent);
            m_extent -= want;
            if (HoldToLimits(child, want, correction))
            {
                continue;
            }
            child.size = want;
            spare += static_cast<long long>(want) - child.least;
            total += want;
        }
        if (spare < correction && m_extent >= correction - spare)
        {
            m_extent -= correction - spare;
            correction = spare;
        }
        Spreader(m_children, Role::Percent, correction, total).Spread();
    }

    void ShareGreedies()
    {
        long long correction = 0;
        long long total = 0;
        long long remaining = m_greedies;
        for (ExtentShare& child : m_children)
        {
            if (child.role != Role::Greedy)
            {
                continue;
            }
            const int share = ClampToInt(Divide(m_extent, remaining--));
            m_extent -= share;
            if (!HoldToLimits(child, share, correction))
            {
                child.size = share;
                total += share;
            }
        }
        if (correction != 0)
        {
            GrowFromLeast(Spreader(m_children, Role::Greedy, correction, total).Spread());
        }
    }

    /// True when the child stands at a limit now; the correction is what that takes from the others.
    static bool HoldToLimits(ExtentShare& child, int want, long long& correction)
    {
        const bool hasLimit = child.role == Role::Greedy ? child.most != kUnbounded : child.most >= 0;
        const bool isTooLarge = hasLimit && want > child.most;
        if (want >= child.least && !isTooLarge)
        {
            return false;
        }
        child.isAtLeast = want < child.least;
        Clamp(child, child.isAtLeast ? child.least : child.most);
        correction += static_cast<long long>(child.size) - want;
        return true;
    }

    /// A negative correction is room that is left over.
    void GrowFromLeast(long long correction)
    {
        for (ExtentShare& child : m_children)
        {
            if (correction >= 0)
            {
                return;
            }
            if (child.role != Role::Greedy || !child.isAtLeast)
            {
                continue;
            }
            const long long room = child.most == kUnbounded
                                       ? -correction
                                       : std::max(0LL, static_cast<long long>(child.most) - child.least);
            const long long more = std::min(-correction, room);
            child.size = ClampToInt(child.size + more);
            correction += more;
        }
    }

    void ShareRest()
    {
        long long remaining = m_stretchers;
        for (ExtentShare& child : m_children)
        {
            if (child.role == Role::Fixed && child.stretches && remaining > 0)
            {
                const long long share = Divide(m_extent, remaining--);
                child.size = ClampToInt(child.size + share);
                m_extent -= share;
            }
        }
    }

    std::span<ExtentShare> m_children;
    long long m_extent;
    int m_percents = 0;
    int m_greedies = 0;
    int m_stretchers = 0;
};

} // namespace

void ShareExtent(std::span<ExtentShare> children, long long extent)
{
    Sharing(children, extent).Share();
}

} // namespace vorn
