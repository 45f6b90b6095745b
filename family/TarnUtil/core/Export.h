#pragma once

/// @file
/// Export mark of TarnUtil.dll. Empty where the portable core is linked statically.
#if defined(VORN_CORE_STATIC) || !defined(_WIN32)
#define TARNUTIL_API
#elif defined(TARNUTIL_BUILD)
#define TARNUTIL_API __declspec(dllexport)
#else
#define TARNUTIL_API __declspec(dllimport)
#endif
