#include "files/core/ImageRotate.h"
#include "files/core/ImagePixels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vorn
{
namespace
{
constexpr double kHalfTurn = 180.0;

/// An angle by its sine and cosine, which are whole numbers for quarter turns.
struct Turn
{
    double sine;
    double cosine;
    bool isQuarter;
};

Turn TurnBy(double degrees)
{
    static constexpr Turn kQuarters[] = {{0, 1, true}, {1, 0, true}, {0, -1, true}, {-1, 0, true}};
    double angle = std::fmod(degrees, 2 * kHalfTurn);
    angle += angle < 0 ? 2 * kHalfTurn : 0;
    const double quarters = angle / (kHalfTurn / 2);
    if (quarters == std::floor(quarters))
        return kQuarters[static_cast<int>(quarters) % 4];
    const double radians = angle * std::numbers::pi / kHalfTurn;
    return {std::sin(radians), std::cos(radians), false};
}

/// The whole number that holds an extent; what is above by rounding alone is not counted.
int Extent(double along, double across)
{
    constexpr double kTolerance = 1e-6;
    return static_cast<int>(std::ceil(std::min(std::abs(along) + std::abs(across) - kTolerance, 2e9)));
}

/// A place in the source: whole numbers are the edges of pixels.
struct Place
{
    double x;
    double y;
};

/// The channels of a pixel, the fourth byte of 32 bits among them.
struct Channels
{
    double values[4];
};

/// Takes pixels for a turned picture out of the source.
class Sampler
{
public:
    Sampler(const ImageView& source, Rgb background)
        : m_source(source), m_isMasked(source.depth == 16 || source.isMasked),
          m_background(source.depth <= 8 ? static_cast<DWORD>(NearestEntry(source.table, background))
                                         : StoredOfColor(source, background, 0))
    {
    }

    DWORD Nearest(Place place) const
    {
        return StoredAt(static_cast<int>(std::floor(place.x)), static_cast<int>(std::floor(place.y)));
    }

    DWORD Mixed(Place place) const
    {
        const double left = std::floor(place.x - 0.5);
        const double top = std::floor(place.y - 0.5);
        const double right = place.x - 0.5 - left;
        const double bottom = place.y - 0.5 - top;
        const int x = static_cast<int>(left);
        const int y = static_cast<int>(top);
        Channels sum{};
        Add(sum, x, y, (1 - right) * (1 - bottom));
        Add(sum, x + 1, y, right * (1 - bottom));
        Add(sum, x, y + 1, (1 - right) * bottom);
        Add(sum, x + 1, y + 1, right * bottom);
        return Stored(sum);
    }

private:
    DWORD StoredAt(int x, int y) const
    {
        return m_source.Contains(x, y) ? StoredPixel(m_source.Row(y), x, m_source.depth) : m_background;
    }

    void Add(Channels& sum, int x, int y, double weight) const
    {
        DWORD stored = StoredAt(x, y);
        if (m_isMasked)
        {
            const Rgb color = ColorOfStored(m_source, stored);
            stored = DWORD{color.red} | DWORD{color.green} << 8 | DWORD{color.blue} << 16;
        }
        for (double& value : sum.values)
        {
            value += weight * (stored & 0xFF);
            stored >>= 8;
        }
    }

    DWORD Stored(const Channels& sum) const
    {
        BYTE bytes[4];
        std::ranges::transform(sum.values, bytes,
                               [](double value)
                               {
                                   return static_cast<BYTE>(value + 0.5);
                               });
        if (m_isMasked)
            return StoredOfColor(m_source, {bytes[0], bytes[1], bytes[2]}, 0);
        return DWORD{bytes[0]} | DWORD{bytes[1]} << 8 | DWORD{bytes[2]} << 16 | DWORD{bytes[3]} << 24;
    }

    const ImageView& m_source;
    bool m_isMasked;
    DWORD m_background;
};

/// The source's header, table and masks with another size and no pixels.
PackedImage SameKind(const ImageView& source, int width, int height)
{
    const int signedHeight = source.isTopDown ? -height : height;
    if (source.isMasked)
        return PackedImage::MakeMasked(width, signedHeight, source.depth, source.masks);
    PackedImage made = PackedImage::Make(width, signedHeight, source.depth);
    for (std::size_t i = 0; i < source.table.size() && i < made.View().table.size(); ++i)
        made.SetTableColor(static_cast<int>(i), ColorOfStored(source, static_cast<DWORD>(i)));
    return made;
}

void Fill(const ImageCanvas& canvas, const ImageView& source, const Turn& turn, const Sampler& sampler)
{
    const bool isNearest = turn.isQuarter || source.depth <= 8;
    for (int y = 0; y < canvas.height; ++y)
    {
        unsigned char* row = canvas.Row(y);
        const double down = y + 0.5 - canvas.height / 2.0;
        for (int x = 0; x < canvas.width; ++x)
        {
            const double across = x + 0.5 - canvas.width / 2.0;
            const Place place{across * turn.cosine + down * turn.sine + source.width / 2.0,
                              down * turn.cosine - across * turn.sine + source.height / 2.0};
            StorePixel(row, x, canvas.depth, isNearest ? sampler.Nearest(place) : sampler.Mixed(place));
        }
    }
}
} // namespace

PackedImage Rotate(const ImageView& source, double degrees, bool grows, Rgb background)
{
    if (!source.hasRows || source.height < 1 || !std::isfinite(degrees))
        return {};
    const Turn turn = TurnBy(degrees);
    const int width = grows ? Extent(source.width * turn.cosine, source.height * turn.sine) : source.width;
    const int height = grows ? Extent(source.width * turn.sine, source.height * turn.cosine) : source.height;
    PackedImage made = SameKind(source, width, height);
    if (!made.IsEmpty())
        Fill(made.Canvas(), source, turn, Sampler(source, background));
    return made;
}
} // namespace vorn
