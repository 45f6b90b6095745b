#pragma once

/// @file
/// Helpers shared by the sources of this folder; not public interface.
#include "framework/gdi/CDC.h"
#include "framework/gdi/CGdiObject.h"
#include <cstring>

namespace vorn
{
/// Handle of an object that may be null.
inline HGDIOBJ HandleOf(const CGdiObject* object)
{
    return object ? object->GetSafeHandle() : nullptr;
}

inline HDC HandleOf(const CDC* dc)
{
    return dc ? dc->m_hDC : nullptr;
}

/// A text for a system call: null counts as empty.
inline LPCSTR TextOf(LPCSTR text)
{
    return text ? text : "";
}

/// Length of a text for a system call: a negative one means "up to the terminator".
inline int LengthOf(LPCSTR text, int length)
{
    if (!text)
        return 0;
    return length < 0 ? static_cast<int>(std::strlen(text)) : length;
}

/// Does `function(context, arguments...)` in the output and, when that is another one, in the attribute context.
/// The result is that of the attribute context if there is one.
template <typename Function, typename... Arguments>
auto OnBoth(const CDC& dc, Function function, Arguments... arguments)
{
    if (!dc.m_hAttribDC || dc.m_hDC == dc.m_hAttribDC)
        return function(dc.m_hDC, arguments...);
    if (dc.m_hDC)
        function(dc.m_hDC, arguments...);
    return function(dc.m_hAttribDC, arguments...);
}

/// Selects in both contexts; see OnBoth().
inline HGDIOBJ SelectInBoth(const CDC& dc, HGDIOBJ object)
{
    return object ? OnBoth(dc, ::SelectObject, object) : nullptr;
}
} // namespace vorn
