#pragma once

#include "framework/core/Exception.h"

#include <windows.h>

#include <new>

namespace vorn
{
/// Makes a call that gives a system code; short memory becomes such a code too.
template <class Call>
LSTATUS CodeOf(Call call)
{
    try
    {
        return call();
    }
    catch (const std::bad_alloc&)
    {
        return ERROR_NOT_ENOUGH_MEMORY;
    }
    catch (CException* exception)
    {
        exception->Delete();
        return ERROR_NOT_ENOUGH_MEMORY;
    }
}

inline bool IsNullOrEmpty(const char* text)
{
    return text == nullptr || *text == '\0';
}
} // namespace vorn
