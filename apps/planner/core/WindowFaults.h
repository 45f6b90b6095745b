#pragma once

#include "framework/core/Geometry.h"

#include <string>
#include <vector>

/// @file
/// What is wrong with the look of a window, found from rectangles alone.

namespace vorn::planner
{

/// What a control is, as far as its neighbours matter.
enum class ControlKind
{
    Plain,
    Frame, ///< a group box or tab control: others stand in it, wholly or not at all
};

/// A visible control. Rectangles are of the window's client area.
struct ControlFacts
{
    std::string name; ///< for the reader of a report
    int parent = -1;  ///< index of the control that it is a child of; -1 for the window itself
    ControlKind kind = ControlKind::Plain;
    CRect place{0, 0, 0, 0};
    CRect parentArea{0, 0, 0, 0}; ///< the client area of its parent
    CSize needed{0, 0};           ///< what its text needs; 0 for a control without text
};

/// One sentence for each control that its parent cuts, each pair of siblings that overlap, and each text that is larger
/// than its control.
std::vector<std::string> FaultsOf(const std::vector<ControlFacts>& controls);

} // namespace vorn::planner
