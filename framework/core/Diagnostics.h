#pragma once

/// @file
/// Assertions and trace output. In builds without NDEBUG a failed assertion reports file and line
/// and ends the program; with NDEBUG, ASSERT and TRACE vanish and VERIFY keeps its expression.
#include "framework/core/Export.h"

#ifdef __GNUC__
/// Lets the compiler check printf-like calls against the standard's rules.
#define VORN_PRINTF_LIKE(formatIndex, firstArgument) __attribute__((format(gnu_printf, formatIndex, firstArgument)))
#else
#define VORN_PRINTF_LIKE(formatIndex, firstArgument)
#endif
#if defined(__clang__)
#undef VORN_PRINTF_LIKE
#define VORN_PRINTF_LIKE(formatIndex, firstArgument) __attribute__((format(printf, formatIndex, firstArgument)))
#endif

class CObject;

/// Reports a failed assertion to the debugger or standard error and aborts.
[[noreturn]] HOSTFRAMEWORK_API void AfxAssertFailed(const char* expression, const char* file, int line);

/// Writes a formatted line to the debugger (standard error where there is none).
HOSTFRAMEWORK_API void AfxTrace(const char* format, ...) VORN_PRINTF_LIKE(1, 2);

/// Checks that an object pointer is usable and calls its AssertValid().
HOSTFRAMEWORK_API void AfxAssertValidObject(const CObject* object, const char* file, int line);

#ifndef NDEBUG
#define ASSERT(expression) ((expression) ? static_cast<void>(0) : AfxAssertFailed(#expression, __FILE__, __LINE__))
#define VERIFY(expression) ASSERT(expression)
#define TRACE(...) AfxTrace(__VA_ARGS__)
#define ASSERT_VALID(object) AfxAssertValidObject(object, __FILE__, __LINE__)
#else
#define ASSERT(expression) static_cast<void>(0)
#define VERIFY(expression) static_cast<void>(expression)
#define TRACE(...) static_cast<void>(0)
#define ASSERT_VALID(object) static_cast<void>(0)
#endif
#define ASSERT_POINTER(pointer, type) ASSERT((pointer) != nullptr)
#define ASSERT_KINDOF(className, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(className)))
#define TRACE0(text) TRACE("%s", text)
#define TRACE1(format, first) TRACE(format, first)
#define TRACE2(format, first, second) TRACE(format, first, second)
#define TRACE3(format, first, second, third) TRACE(format, first, second, third)
