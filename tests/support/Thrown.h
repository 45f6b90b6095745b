#pragma once

/// @file
/// Checks for the framework's exceptions, which are thrown by pointer and must be ended by whoever catches them.
#include "framework/core/Exception.h"

#include <gtest/gtest.h>

namespace vorn::test
{
/// Whether `action` throws an EXCEPTION*; ends the exception. Other exceptions pass through.
template <class EXCEPTION, class Action>
bool Throws(Action action)
{
    try
    {
        action();
    }
    catch (EXCEPTION* error)
    {
        error->Delete();
        return true;
    }
    return false;
}
} // namespace vorn::test

/// Expects that a statement throws a pointer to an exception of that class.
#define EXPECT_THROWN(statement, class_name)                                                                           \
    EXPECT_TRUE(vorn::test::Throws<class_name>(                                                                        \
        [&]                                                                                                            \
        {                                                                                                              \
            static_cast<void>(statement);                                                                              \
        }))                                                                                                            \
        << #statement " does not throw a " #class_name
