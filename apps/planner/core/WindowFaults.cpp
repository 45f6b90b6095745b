#include "apps/planner/core/WindowFaults.h"

namespace vorn::planner
{

namespace
{

std::string SizeText(int width, int height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

bool Holds(const CRect& outer, const CRect& inner)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

bool Overlap(const CRect& a, const CRect& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

/// A frame may hold its sibling whole; it may not be held by a plain control.
bool MayShare(const ControlFacts& a, const ControlFacts& b)
{
    return (a.kind == ControlKind::Frame && Holds(a.place, b.place)) ||
           (b.kind == ControlKind::Frame && Holds(b.place, a.place));
}

void CheckAlone(const ControlFacts& control, std::vector<std::string>& faults)
{
    if (!Holds(control.parentArea, control.place))
        faults.push_back(control.name + " is cut by its parent");
    const CSize size = control.place.Size();
    if (control.needed.cx > size.cx || control.needed.cy > size.cy)
    {
        faults.push_back(control.name + " is " + SizeText(size.cx, size.cy) + ", its text needs " +
                         SizeText(control.needed.cx, control.needed.cy));
    }
}

} // namespace

std::vector<std::string> FaultsOf(const std::vector<ControlFacts>& controls)
{
    std::vector<std::string> faults;
    for (std::size_t i = 0; i < controls.size(); ++i)
    {
        CheckAlone(controls[i], faults);
        for (std::size_t j = i + 1; j < controls.size(); ++j)
        {
            const ControlFacts& a = controls[i];
            const ControlFacts& b = controls[j];
            if (a.parent == b.parent && Overlap(a.place, b.place) && !MayShare(a, b))
                faults.push_back(a.name + " and " + b.name + " overlap");
        }
    }
    return faults;
}

} // namespace vorn::planner
