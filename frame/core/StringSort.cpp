#include "frame/core/StringSort.h"

#include "frame/core/LetterCase.h"

#include <algorithm>
#include <cstddef>

namespace vorn
{

namespace
{

constexpr std::size_t kPrefixSize = sizeof(std::uint64_t);

/// What is compared first: the first eight bytes as one number, most significant first. Most pairs of names differ
/// there, and no text has to be fetched for them.
struct SortKey
{
    std::uint64_t prefix;
    std::uint32_t index;
};

template <bool kFold>
unsigned char ByteOf(char c)
{
    return static_cast<unsigned char>(kFold ? kLowerCase[static_cast<unsigned char>(c)] : c);
}

template <bool kFold>
std::uint64_t PrefixOf(std::string_view text)
{
    std::uint64_t prefix = 0;
    for (std::size_t i = 0; i < kPrefixSize; ++i)
        prefix = prefix << 8 | (i < text.size() ? ByteOf<kFold>(text[i]) : 0U);
    return prefix;
}

template <bool kFold>
int CompareTails(std::string_view a, std::string_view b)
{
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = std::min(kPrefixSize, common); i < common; ++i)
    {
        const int difference = ByteOf<kFold>(a[i]) - ByteOf<kFold>(b[i]);
        if (difference != 0)
            return difference;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

template <bool kFold>
std::vector<std::uint32_t> OrderOf(std::span<const std::string_view> texts)
{
    std::vector<SortKey> keys(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
        keys[i] = {PrefixOf<kFold>(texts[i]), static_cast<std::uint32_t>(i)};
    std::sort(keys.begin(), keys.end(),
              [texts](const SortKey& a, const SortKey& b)
              {
                  if (a.prefix != b.prefix)
                      return a.prefix < b.prefix;
                  const int order = CompareTails<kFold>(texts[a.index], texts[b.index]);
                  return order != 0 ? order < 0 : a.index < b.index;
              });
    std::vector<std::uint32_t> order(keys.size());
    std::transform(keys.begin(), keys.end(), order.begin(),
                   [](const SortKey& key)
                   {
                       return key.index;
                   });
    return order;
}

} // namespace

std::vector<std::uint32_t> SortedOrder(std::span<const std::string_view> texts, bool caseSensitive)
{
    return caseSensitive ? OrderOf<false>(texts) : OrderOf<true>(texts);
}

} // namespace vorn
