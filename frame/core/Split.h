#pragma once

#include "frame/core/Trim.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace vorn
{

/// A set of bytes with one look-up for each question.
class CharacterSet
{
public:
    constexpr explicit CharacterSet(std::string_view members)
    {
        for (const char c : members)
            m_has[static_cast<unsigned char>(c)] = true;
    }

    constexpr bool Contains(char c) const
    {
        return m_has[static_cast<unsigned char>(c)];
    }

private:
    std::array<bool, 256> m_has{};
};

/// How pieces are treated on their way to the sink. Trimming comes before the test for emptiness.
struct SplitOptions
{
    bool trim = false;
    bool skipEmpty = false;
};

/// Cuts `text` at every character that is in `separators` and hands the pieces (views into `text`) to
/// `sink(std::string_view)` from left to right. The separators are a plain set: "-", "]" and "^" mean themselves.
///
/// n separators in the text make n + 1 pieces, a trailing empty one included. An empty text makes no piece; without
/// separators the whole text is one piece, as it is, whatever the options say.
/// @return the number of pieces handed over.
template <class Sink>
std::size_t SplitText(std::string_view text, std::string_view separators, SplitOptions options, Sink&& sink)
{
    if (text.empty())
        return 0;
    if (separators.empty())
    {
        sink(text);
        return 1;
    }
    const CharacterSet set(separators);
    std::size_t count = 0;
    std::size_t start = 0;
    for (std::size_t at = 0; at <= text.size(); ++at)
    {
        if (at < text.size() && !set.Contains(text[at]))
            continue;
        std::string_view piece = text.substr(start, at - start);
        start = at + 1;
        if (options.trim)
            piece = TrimBoth(piece);
        if (options.skipEmpty && piece.empty())
            continue;
        sink(piece);
        ++count;
    }
    return count;
}

} // namespace vorn
