#pragma once

namespace vorn::chart
{

/// How many numbers from 0 on a test holds for, when it holds for none behind the first for which it does not; at most
/// `most`. Asks some twenty times even where there are many: for tests that take their time.
template <typename Holds>
int RunLength(int most, Holds holds)
{
    int known = 0; // it holds below
    int beyond = 1;
    while (known < most && holds(beyond - 1))
    {
        known = beyond;
        beyond = known <= most / 2 ? known * 2 : most;
    }
    // It does not hold for the number beyond - 1.
    while (known < most && known + 1 < beyond)
    {
        const int middle = known + (beyond - known) / 2;
        (holds(middle - 1) ? known : beyond) = middle;
    }
    return known;
}

} // namespace vorn::chart
