#pragma once

#include "frame/core/CompactText.h"

namespace vorn
{

/// How a duration is written.
struct DurationFormat
{
    bool words = false;   ///< "1 Hour 30 Minutes" instead of "01:30"; seconds never show
    bool seconds = false; ///< "01:30:00"; without, more than 30 seconds make one more minute
};

/// A duration or time of day in hours. Hours are not taken modulo 24; each field of a negative duration has its own
/// sign ("-1:-30"). Empty for what is not finite or has more hours than 32 bits hold.
CompactText DurationText(double hours, DurationFormat format);

} // namespace vorn
