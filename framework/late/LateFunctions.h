#pragma once

/// @file
/// System functions that are looked up when they are first called. The DLLs that hold them are dear to load, and
/// programs that show no dialog never need them.
#include <windows.h>

namespace vorn
{
/// One function: what the compiler's code calls through (the import of the plain import library), and where it is
/// found.
struct LateFunction
{
    FARPROC target; ///< At first a piece of code that calls BindLateFunction(), then the function itself.
    const char* dll;
    const char* name;
};

/// Finds the function and enters it. The DLL stays loaded. A function that the system does not have ends in the
/// exception of a missing entry point, as it would at the program's start. Keeps the caller's last error.
extern "C" FARPROC BindLateFunction(LateFunction* function);
} // namespace vorn
