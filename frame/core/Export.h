#pragma once

/// @file
/// Export mark of VornCommon.dll. Empty where the portable core is linked statically.
#if defined(VORN_CORE_STATIC) || !defined(_WIN32)
#define VORNCOMMON_API
#elif defined(VORNCOMMON_BUILD)
#define VORNCOMMON_API __declspec(dllexport)
#else
#define VORNCOMMON_API __declspec(dllimport)
#endif
