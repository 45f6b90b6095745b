#include "toolkit/textlayout/core/AlignWords.h"

#include "toolkit/textlayout/core/LayoutNumber.h"

#include <algorithm>
#include <cstdint>

namespace vorn
{

namespace
{
struct AlignWord
{
    std::string_view word;
    AlignedTo AlignWords::*direction;
    AlignedTo alignment;
};

constexpr AlignWord kWords[] = {
    {"left", &AlignWords::across, AlignedTo::Start},   {"center", &AlignWords::across, AlignedTo::Middle},
    {"right", &AlignWords::across, AlignedTo::End},    {"top", &AlignWords::down, AlignedTo::Start},
    {"vcenter", &AlignWords::down, AlignedTo::Middle}, {"bottom", &AlignWords::down, AlignedTo::End},
};
} // namespace

AlignWords ReadAlignWords(std::string_view text)
{
    constexpr std::string_view kSeparators = " ,";
    AlignWords result;
    while (!text.empty())
    {
        const std::string_view word = text.substr(0, text.find_first_of(kSeparators));
        for (const AlignWord& known : kWords)
        {
            if (known.word == word)
            {
                result.*known.direction = known.alignment;
            }
        }
        text.remove_prefix(std::min(word.size() + 1, text.size()));
    }
    return result;
}

int AlignedStart(AlignedTo alignment, int space, int size)
{
    const std::int64_t rest = static_cast<std::int64_t>(space) - size;
    switch (alignment)
    {
    case AlignedTo::Middle:
        return ClampToInt(rest / 2);
    case AlignedTo::End:
        return ClampToInt(rest);
    default:
        return 0;
    }
}

} // namespace vorn
