#pragma once

#include <windows.h>

namespace vorn
{
/// How the window of a property sheet shall be made from the system's template.
struct SheetStyles
{
    bool areGiven = false; ///< these instead of the system's
    DWORD style = 0;
    DWORD exStyle = 0;
};

/// Puts styles into a dialog template, in either layout, that the system is about to use. The window is not made
/// visible: who creates it shows it.
void ChangeSheetTemplate(void* dialogTemplate, const SheetStyles& styles);
} // namespace vorn
