#pragma once

/// @file
/// Export mark of TarnComm.dll. Empty where the portable core is linked statically.
#if defined(VORN_CORE_STATIC) || !defined(_WIN32)
#define TARNCOMM_API
#elif defined(TARNCOMM_BUILD)
#define TARNCOMM_API __declspec(dllexport)
#else
#define TARNCOMM_API __declspec(dllimport)
#endif
