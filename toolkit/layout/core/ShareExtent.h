#pragma once

/// @file
/// The sharing-out of a length among the children of a pane.
#include <span>

namespace vorn
{

/// One child along the orientation of its pane. Only shown children take part.
struct ExtentShare
{
    enum class Role : unsigned char
    {
        Fixed,   ///< has its size whatever is left
        Percent, ///< wants a percentage of what the fixed children leave
        Greedy   ///< takes an equal part of what the others leave
    };

    Role role = Role::Greedy;
    bool stretches = false; ///< fixed, and takes part in sharing what nobody else took
    bool isClamped = false; ///< stands at its minimum or maximum and is out of further sharing
    bool isAtLeast = false; ///< greedy and raised to its minimum
    int size = 0;           ///< fixed: the size at entry; after sharing: the size
    int percent = 0;        ///< percentage wanted
    int least = 0;          ///< minimum; fixed children are not held to it
    int most = -1;          ///< maximum, kUnbounded for none
};

/// Shares `extent`, the pane's length without its borders and the spacing between its children.
/// The rules, in this order:
/// - fixed children take their sizes; what is left then is the base, 0 at least;
/// - percent children take their percentage of the base, held between minimum and maximum; what minima take too much
///   the others give back in proportion to their sizes, a remainder of 5 or less by the first that can;
/// - greedy children share the rest equally, the last one with what the divisions left, held to their limits and
///   corrected in the same way; what maxima leave over goes to those that were raised to their minimum;
/// - what is still left goes to the fixed children that stretch.
/// Sizes come out too large together when the minima ask for more than there is.
void ShareExtent(std::span<ExtentShare> children, long long extent);

} // namespace vorn
