#pragma once

#include "framework/core/BaseTypes.h"

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>

namespace vorn
{

/// Red text of expired data (a COLORREF, 0x00BBGGRR).
inline constexpr COLORREF kExpiredColor = 0x0000FF;

/// Firebrick text of terminal data that expired less than six days ago.
inline constexpr COLORREF kLateColor = 0x2222B2;

/// How long data counts as late instead of plainly expired: six days, in seconds.
inline constexpr std::int64_t kLateSeconds = 518400;

/// Pictures of the date texts, for `MomentText`.
inline constexpr const char* kDayPicture = "%A %B %d %Y";
inline constexpr const char* kZuluMomentPicture = "%H:%MZ %A %B %d %Y";

/// Strictly after the moment: at the expiry second itself the data is valid.
bool IsExpiredAt(std::int64_t expiry, std::int64_t now);

/// Expired, but by less than six days (both ends excluded).
bool IsLateAt(std::int64_t expiry, std::int64_t now);

/// Days to go, negative once past.
double DaysUntil(std::int64_t moment, std::int64_t now);

/// Black or, for expired data, red.
COLORREF NavTextColor(bool expired);

/// As above, but firebrick while late; late is asked first.
COLORREF TerminalTextColor(bool late, bool expired);

/// `moment` printed after a picture of `strftime`; empty when the result has more than 127 characters or none.
std::string MomentText(const std::tm& moment, const char* picture);

/// "MOMENT  (2.5 days)" or "MOMENT  (2.5 days ago)". Only the size of `days` is shown.
std::string NavExpiryText(std::string_view moment, double days, bool expired);

/// "MOMENT (2.5 days)", "MOMENT Late: 2.5 days" while late, "MOMENT LATE: 10.0 days" afterwards.
std::string TerminalExpiryText(std::string_view moment, double days, bool late, bool expired);

} // namespace vorn
