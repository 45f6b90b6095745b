#pragma once

#include <string_view>

namespace vorn
{

enum class AlignedTo
{
    Start,
    Middle,
    End
};

struct AlignWords
{
    AlignedTo across = AlignedTo::Start;
    AlignedTo down = AlignedTo::Start;
};

/// Reads words parted by blanks and commas: "left", "center", "right"; "top", "vcenter", "bottom". Of two words for
/// the same direction the last holds; other words are passed over.
AlignWords ReadAlignWords(std::string_view text);

/// Where something of a size begins in a space. What is larger than the space sticks out on the other side, or on both
/// sides of the middle, which is cut toward zero.
int AlignedStart(AlignedTo alignment, int space, int size);

} // namespace vorn
