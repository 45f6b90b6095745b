#pragma once

/// @file
/// Export mark of HostFramework.dll. Empty where the portable core is linked statically.
#if defined(VORN_CORE_STATIC) || !defined(_WIN32)
#define HOSTFRAMEWORK_API
#elif defined(HOSTFRAMEWORK_BUILD)
#define HOSTFRAMEWORK_API __declspec(dllexport)
#else
#define HOSTFRAMEWORK_API __declspec(dllimport)
#endif
