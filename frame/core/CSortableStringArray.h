#pragma once

#include "frame/core/Export.h"
#include "framework/core/Array.h"

/// A string array that can be sorted.
class VORNCOMMON_API CSortableStringArray : public CStringArray
{
public:
    /// Ascending order in place: bytes as unsigned numbers, or without regard to the case of ASCII letters, which then
    /// count as lower case ("_" comes before them). Never quadratic. Unchanged when memory is short.
    void Sort(bool caseSensitive);
};
