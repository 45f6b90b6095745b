#pragma once

#include "aviation/core/LocalClock.h"

#include <ctime>

namespace vorn
{

/// The present, in seconds since 1970-01-01 00:00 UTC.
std::int64_t Now();

/// Calendar fields of a moment; nothing where the runtime refuses it (before 1970, after the year 3000).
std::optional<std::tm> UniversalFields(std::int64_t moment);
std::optional<std::tm> LocalFields(std::int64_t moment);

/// The year on the user's calendar.
int CurrentLocalYear();

/// Local time as the C runtime keeps it. It follows the environment variable TZ where that is set, which the system
/// does not.
class RuntimeClock : public LocalClock
{
public:
    std::optional<CivilTime> BreakDown(std::int64_t moment) const override;
    std::optional<std::int64_t> Make(const CivilTime& local) const override;
};

} // namespace vorn
