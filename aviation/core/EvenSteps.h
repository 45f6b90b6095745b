#pragma once

#include <cstddef>

namespace vorn
{

/// How points lie along a line of some length: `Points()` of them, `Step()` apart.
class EvenSteps
{
public:
    /// `spacing` is the least step. Points are counted when there are at least two of them, and no more than an `int`
    /// or an array of elements of `elementSize` bytes can count.
    EvenSteps(double length, double spacing, std::size_t elementSize);

    /// 0 when the spacing is longer than the line, not above 0, or too small.
    int Points() const
    {
        return m_points;
    }
    double Step() const
    {
        return m_step;
    }

private:
    int m_points = 0;
    double m_step = 0;
};

/// Walks the segments of a line in steps that run on over their ends.
class StepWalk
{
public:
    /// The array's first element is the line's first point; the others are to be filled.
    explicit StepWalk(const EvenSteps& steps) : m_step(steps.Step()), m_open(steps.Points() - 1)
    {
    }

    /// How many points lie on a segment of `length`, which is above 0: never more than are still to be filled. Point j
    /// of them, counted from 1, lies at j * step - Carry().
    int PointsOn(double length) const;
    /// What the step that runs on had behind it where the segment began.
    double Carry() const
    {
        return m_carry;
    }
    /// Goes on to the next segment.
    void Pass(double length, int points);

private:
    double m_step;
    double m_carry = 0;
    int m_open;
};

} // namespace vorn
