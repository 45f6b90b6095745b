#pragma once

#include "framework/window/CWnd.h"

/// @file
/// Sending messages to a control. A control without a window answers 0 to everything, as the
/// system does for a null handle.
namespace vorn
{
/// Sends a message with number parameters.
inline LRESULT Ask(const CWnd& control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return ::SendMessageA(control.m_hWnd, message, wParam, lParam);
}

/// Sends a message whose second parameter is the address of a value.
template <class T>
LRESULT Ask(const CWnd& control, UINT message, WPARAM wParam, T* lParam)
{
    return ::SendMessageA(control.m_hWnd, message, wParam, reinterpret_cast<LPARAM>(lParam));
}

/// The address of a value as a first parameter.
template <class T>
WPARAM AsWParam(T* value)
{
    return reinterpret_cast<WPARAM>(value);
}

/// A handle of the system out of a message's result.
template <class H>
H AsHandle(LRESULT result)
{
    return reinterpret_cast<H>(result);
}

/// Registers the common control classes of the system, once. Called before a common control or a
/// dialog is created.
void EnsureCommonControls();
} // namespace vorn
