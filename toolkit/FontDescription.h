#pragma once

#include <windows.h>

#include <cstddef>

namespace vorn
{

/// The description with its face cut to 31 characters and filled up with zeros, so that equal descriptions are equal
/// byte by byte.
inline LOGFONTA Normalised(const LOGFONTA& description)
{
    LOGFONTA result = description;
    std::size_t length = 0;
    while (length < LF_FACESIZE - 1 && result.lfFaceName[length] != '\0')
    {
        ++length;
    }
    while (length < LF_FACESIZE)
    {
        result.lfFaceName[length++] = '\0';
    }
    return result;
}

} // namespace vorn
