#pragma once

/// @file
/// The edge at which exceptions end.
#include "framework/core/Exception.h"

#include <exception>

namespace vorn
{
/// The result of `action`, or `failure` when it throws one of the framework's or the C++ library's exceptions.
template <class Result, class Action>
Result NoThrow(Result failure, Action action)
{
    try
    {
        return action();
    }
    catch (CException* exception)
    {
        exception->Delete();
    }
    catch (const std::exception&)
    {
        return failure;
    }
    return failure;
}
} // namespace vorn
