#pragma once

/// @file
/// What the framework keeps for the whole process; not public interface.
#include <windows.h>

class CWinApp;

namespace vorn
{

void SetApp(CWinApp* app);
/// Does nothing when another application object was made meanwhile.
void ForgetApp(const CWinApp* app);

/// Instance and resource module chosen at start-up or later; null: the program itself.
void SetInstance(HINSTANCE instance);

/// The framework's own module.
HINSTANCE FrameworkModule();
void SetFrameworkModule(HINSTANCE module);

/// Unregisters window classes that were registered through the framework.
void UnregisterClasses();

} // namespace vorn
