#pragma once

#include "aviation/core/DaylightSaving.h"

namespace vorn
{

/// What the system says about its time zone now.
ZoneFacts HostZone();

} // namespace vorn
