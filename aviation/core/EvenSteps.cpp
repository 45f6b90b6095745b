#include "aviation/core/EvenSteps.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>

namespace vorn
{

EvenSteps::EvenSteps(double length, double spacing, std::size_t elementSize)
{
    const double limit = std::min<double>(INT_MAX, static_cast<double>(PTRDIFF_MAX) / static_cast<double>(elementSize));
    const double steps = std::trunc(length / spacing);
    if (steps >= 1 && steps < limit - 1)
    {
        m_points = static_cast<int>(steps) + 1;
        m_step = length / steps;
    }
}

int StepWalk::PointsOn(double length) const
{
    const double points = std::trunc((length + m_carry) / m_step);
    return points < m_open ? std::max(static_cast<int>(points), 0) : m_open;
}

void StepWalk::Pass(double length, int points)
{
    m_carry = length - (points * m_step - m_carry);
    m_open -= points;
}

} // namespace vorn
