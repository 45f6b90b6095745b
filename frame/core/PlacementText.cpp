#include "frame/core/PlacementText.h"

#include "frame/core/Trim.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace vorn
{
namespace
{
constexpr std::int64_t kTopOnScreen = 50;
constexpr std::int64_t kBeyond = std::int64_t{1} << 33; // more than any 32-bit number

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Walks through the text number by number; once a number or comma is missing, everything after it is too.
class NumberReader
{
public:
    explicit NumberReader(std::string_view text) : m_rest(text)
    {
    }

    std::uint32_t NextUnsigned()
    {
        const Number number = Next();
        if (number.magnitude > std::numeric_limits<std::uint32_t>::max())
        {
            return std::numeric_limits<std::uint32_t>::max();
        }
        return static_cast<std::uint32_t>(number.negative ? -number.magnitude : number.magnitude);
    }

    std::int32_t NextSigned()
    {
        const Number number = Next();
        const std::int64_t lowest = std::numeric_limits<std::int32_t>::min();
        const std::int64_t highest = std::numeric_limits<std::int32_t>::max();
        return static_cast<std::int32_t>(
            std::clamp(number.negative ? -number.magnitude : number.magnitude, lowest, highest));
    }

    bool Failed() const
    {
        return m_failed;
    }

private:
    struct Number
    {
        std::int64_t magnitude = 0;
        bool negative = false;
    };

    Number Next()
    {
        SkipComma();
        m_rest.remove_prefix(
            static_cast<std::size_t>(std::find_if_not(m_rest.begin(), m_rest.end(), IsSpace) - m_rest.begin()));
        Number number;
        number.negative = m_rest.starts_with('-');
        if (number.negative || m_rest.starts_with('+'))
        {
            m_rest.remove_prefix(1);
        }
        m_failed = m_failed || m_rest.empty() || !IsDigit(m_rest.front());
        for (; !m_rest.empty() && IsDigit(m_rest.front()); m_rest.remove_prefix(1))
        {
            number.magnitude = std::min(number.magnitude * 10 + (m_rest.front() - '0'), kBeyond);
        }
        return number;
    }

    void SkipComma()
    {
        if (m_first)
        {
            m_first = false;
            return;
        }
        m_failed = m_failed || !m_rest.starts_with(',');
        m_rest.remove_prefix(m_rest.empty() ? 0 : 1);
    }

    std::string_view m_rest;
    bool m_first = true;
    bool m_failed = false;
};
} // namespace

std::string PlacementText(const Placement& p)
{
    char text[10 * 12]; // ten numbers of at most eleven characters, each with its comma or the final zero
    const int length =
        std::snprintf(text, sizeof text, "%u,%u,%d,%d,%d,%d,%d,%d,%d,%d", p.flags, p.showCommand, p.minX, p.minY,
                      p.maxX, p.maxY, p.normal.left, p.normal.top, p.normal.right, p.normal.bottom);
    return {text, static_cast<std::size_t>(length)};
}

std::optional<Placement> ParsePlacement(std::string_view text)
{
    NumberReader reader(text);
    Placement placement;
    placement.flags = reader.NextUnsigned();
    placement.showCommand = reader.NextUnsigned();
    PlacedRect& rect = placement.normal;
    for (std::int32_t* number : {&placement.minX, &placement.minY, &placement.maxX, &placement.maxY, &rect.left,
                                 &rect.top, &rect.right, &rect.bottom})
    {
        *number = reader.NextSigned();
    }
    return reader.Failed() ? std::nullopt : std::optional(placement);
}

PlacedRect KeptOnScreen(const PlacedRect& rect, std::int32_t screenHeight)
{
    if (rect.top >= 0 && rect.bottom <= screenHeight)
    {
        return rect;
    }
    PlacedRect moved = rect;
    // A damaged text may hold any two numbers: the height may need 33 bits, of which the low 32 are stored.
    moved.top = static_cast<std::int32_t>(kTopOnScreen);
    moved.bottom = static_cast<std::int32_t>(std::int64_t{rect.bottom} - rect.top + kTopOnScreen);
    return moved;
}
} // namespace vorn
