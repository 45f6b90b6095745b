#pragma once

namespace vorn
{

/// 10 to the power `exponent`; infinite above 308, 0 below -323.
double PowerOfTen(int exponent);

/// `value` times 10^decimals plus one half, cut toward zero, divided again. Adding one half also for negative values is
/// meant: -1.26 becomes -1.2 at one decimal. Negative decimals round to tens, hundreds, ... Values that the
/// power of ten would carry out of range stay as they are.
double RoundedTo(double value, int decimals);

} // namespace vorn
