#pragma once

#include "aviation/core/Calendar.h"

#include <cstdint>
#include <optional>

namespace vorn
{

/// The runtime library's local time. Moments are seconds since 1970-01-01 00:00 UTC.
class LocalClock
{
public:
    virtual ~LocalClock() = default;

    /// Local calendar fields, or nothing for a moment that the runtime refuses.
    virtual std::optional<CivilTime> BreakDown(std::int64_t moment) const = 0;

    /// The moment of local calendar fields, daylight saving decided by the runtime, or nothing.
    virtual std::optional<std::int64_t> Make(const CivilTime& local) const = 0;
};

} // namespace vorn
