#pragma once

/// @file
/// Export mark of VornChart.dll. Empty where the portable core is linked statically.
#if defined(VORN_CORE_STATIC) || !defined(_WIN32)
#define VORNCHART_API
#elif defined(VORNCHART_BUILD)
#define VORNCHART_API __declspec(dllexport)
#else
#define VORNCHART_API __declspec(dllimport)
#endif
