#pragma once

#include "framework/core/OleException.h"
#include "framework/core/Time.h"

namespace vorn
{
/// The moment of a key's last change, from what the system keeps (UTC); its fields are in local time.
/// @throws COleException* with E_INVALIDARG for a time that CTime has not: before 1970 or after the year 3000
inline CTime WriteTime(const FILETIME& written)
{
    if (!CTime::IsValidFILETIME(written))
    {
        AtlThrow(E_INVALIDARG);
    }
    return CTime(written);
}
} // namespace vorn
