#include "aviation/core/SmoothLine.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <cstdlib>

namespace
{

constexpr int kSamples = 10;
constexpr int kWeightSum = kSamples * kSamples * kSamples;

/// The four Bernstein weights of t = k / 10, as thousandths.
struct Weights
{
    int start;
    int control1;
    int control2;
    int end;
};

constexpr std::array<Weights, kSamples> MakeWeights()
{
    std::array<Weights, kSamples> weights{};
    for (int k = 0; k < kSamples; ++k)
    {
        const int rest = kSamples - k;
        weights[static_cast<std::size_t>(k)] = {rest * rest * rest, 3 * k * rest * rest, 3 * k * k * rest, k * k * k};
    }
    return weights;
}

constexpr std::array<Weights, kSamples> kWeights = MakeWeights();

LONG Middle(LONG first, LONG second)
{
    return static_cast<LONG>((static_cast<std::int64_t>(first) + second) / 2);
}

/// One coordinate of the curve that bends toward `corner` between the middles of the two segments that meet there.
struct Curve
{
    Curve(LONG before, LONG corner, LONG after)
        : start(Middle(before, corner)), end(Middle(corner, after)), control1(Middle(corner, start)),
          control2(Middle(corner, end))
    {
    }

    /// Whether the weighted sum fits 32 bits, where a division costs a fraction.
    bool IsSmall() const
    {
        constexpr LONG kLimit = INT_MAX / kWeightSum;
        const auto [least, largest] = std::minmax({start, control1, control2, end});
        return least >= -kLimit && largest <= kLimit;
    }

    template <typename Sum>
    LONG At(const Weights& weights) const
    {
        const Sum sum = static_cast<Sum>(start) * weights.start + static_cast<Sum>(control1) * weights.control1 +
                        static_cast<Sum>(control2) * weights.control2 + static_cast<Sum>(end) * weights.end;
        return static_cast<LONG>(sum / kWeightSum);
    }

    LONG start;
    LONG end;
    LONG control1;
    LONG control2;
};

template <typename Sum>
CPoint* Emit(const Curve& x, const Curve& y, CPoint* out)
{
    for (const Weights& weights : kWeights)
    {
        out->x = x.At<Sum>(weights);
        out->y = y.At<Sum>(weights);
        ++out;
    }
    return out;
}

CPoint* EmitCurve(const CPoint& before, const CPoint& corner, const CPoint& after, CPoint* out)
{
    const Curve x(before.x, corner.x, after.x);
    const Curve y(before.y, corner.y, after.y);
    return x.IsSmall() && y.IsSmall() ? Emit<std::int32_t>(x, y, out) : Emit<std::int64_t>(x, y, out);
}

int Copied(const CPoint* points, int count, CPoint** out)
{
    *out = new CPoint[static_cast<std::size_t>(count)];
    std::copy_n(points, count, *out);
    return count;
}

} // namespace

int BezierSmoothLine(CPoint* points, int count, CPoint** out)
{
    if (points == nullptr || out == nullptr || count <= 0 || count > INT_MAX / kSamples)
    {
        return 0;
    }
    if (count < 3)
    {
        return Copied(points, count, out);
    }
    const bool closed = points[0] == points[count - 1];
    const int curves = closed ? count - 1 : count - 2;
    const int total = kSamples * curves + (closed ? 0 : 2);
    *out = new CPoint[static_cast<std::size_t>(total)];
    CPoint* next = *out;
    if (!closed)
    {
        *next++ = points[0];
    }
    for (int i = 0; i < curves; ++i)
    {
        const int after = i + 2 == count ? 1 : i + 2; // of a closed line, whose last point is its first
        next = EmitCurve(points[i], points[i + 1], points[after], next);
    }
    if (!closed)
    {
        *next = points[count - 1];
    }
    return total;
}
