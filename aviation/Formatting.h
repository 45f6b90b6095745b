#pragma once

#include "frame/core/Export.h"
#include "framework/core/BaseTypes.h"
#include "framework/core/CString.h"
#include "framework/core/Time.h"

/// @file
/// Texts of positions, courses, altitudes and times in the user's form, and what users type for times.
///
/// Display choices are read afresh by every call: the host's settings "Show seconds" (0), "LatLonPrecSeconds" (1) and
/// "LatLonPrecMinutes" (1) of section "General", and "Flight Level" (18000 ft) of section "Altitude". Lengths come in
/// the user's short-distance unit. Nothing here fails aloud: what cannot be converted gives an empty text, or the
/// result that the function names.

/// A coordinate in degrees: "N 47° 30.0'", or with seconds "N 47° 30' 00.0". The last field has the precision that was
/// chosen, and a rounded 60 carries. Coordinates do not wrap. The degree sign is byte 176.
VORNCOMMON_API CString LatLonToString(double degrees, bool isLatitude);
/// The same in a form of the caller's, such as one that a user has not accepted yet. @param decimals of the last field
VORNCOMMON_API CString LatLonToString(double degrees, bool isLatitude, bool seconds, int decimals);
VORNCOMMON_API CString LatToString(double lat);
VORNCOMMON_API CString LonToString(double lon);

/// Whole degrees in three places, or a variation: "E 005", "W 012".
VORNCOMMON_API CString CourseToString(double value, bool eastWest);

/// An altitude in feet: the word of a special code (-5000 "Unknown" to -4995 "Not Established"), else the user's unit.
VORNCOMMON_API CString AltToString(int feet);

/// The same, but whole hundreds at or above the transition altitude are flight levels: "FL180".
VORNCOMMON_API CString FLAltToString(int feet);

/// Name of an airspace type (0 to 30); "UnSpecified" for any other.
VORNCOMMON_API CString TASTypeToString(int type);

/// A duration or time of day in hours: "01:30", with seconds "01:30:00", in words "1 Hour 30 Minutes" (never with
/// seconds).
VORNCOMMON_API CString TimeToString(double hours, bool words, bool seconds);

/// Date and 24-hour time in the user's locale; the date alone when the time is none; empty for null or when the date is
/// none.
VORNCOMMON_API CString TimeToString(SYSTEMTIME* when, bool longDate);

/// The same for an automation date (days since 30 December 1899).
VORNCOMMON_API CString VariantTimeToString(double variantTime, bool longDate);

/// A typed HHMM or HMM on the local day of `base` (seconds since 1970), at its second; other characters than digits are
/// skipped, and four digits are enough. `base` itself for unusable text.
VORNCOMMON_API int ParseHHMM(int base, const char* text);

/// Clamps a typed HHMM to "0000".."2359": filled up with zeros in front, cut to four characters, 2400 taken for "0000".
VORNCOMMON_API void ValidateTime(CString& hhmm);

/// Moves `t` by whole days into the next 24 hours.
VORNCOMMON_API void SetTimeWithin24Hours(CTime& t);

/// Shifts local time to Universal Time, or back, by the zone's bias with its daylight bias in daylight time.
VORNCOMMON_API void ConvertToZulu(CTime& t);
VORNCOMMON_API void ConvertToLocal(CTime& t);

/// Whether daylight saving is in force at a local time, by Date::isDST(); false for null. Years before 1900 are taken
/// for 1970.
VORNCOMMON_API bool IsDST(SYSTEMTIME* when);

/// The C runtime's daylight flag of a moment; FALSE for one that it cannot break down.
VORNCOMMON_API BOOL IsDaylightTime(CTime& t);

/// The UTC date of a moment (seconds since 1970) in the user's locale, or without `useLocale` as "Thursday, 01 January
/// 1970" and "01 Jan 1970".
/// @return false, and an empty text, for a moment without a date.
VORNCOMMON_API bool FormatStdLongDate(long long t, CString& out, bool useLocale);
VORNCOMMON_API bool FormatStdShortDate(long long t, CString& out, bool useLocale);

/// An amount in the system's currency; empty when it has more than 31 characters or is no number.
VORNCOMMON_API void FormatCurrency(double amount, CString& out);

/// Rounds to decimals: one half is added, also to negative values, and the rest cut off. -1.26 becomes -1.2.
VORNCOMMON_API void RoundTo(double& value, int decimals);
