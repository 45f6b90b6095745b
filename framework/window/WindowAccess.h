#pragma once

/// @file
/// What other parts of the window core need of CWnd's inside; not public interface.
#include "framework/window/CWnd.h"

struct AfxWindowAccess
{
    /// Binds an object to the window being created and puts the framework's procedure before the window's own.
    static void Bind(CWnd& object, HWND window)
    {
        object.AttachAndSubclass(window);
    }
    static WNDPROC& Super(CWnd& object)
    {
        return object.m_pfnSuper;
    }
    static UINT& Flags(CWnd& object)
    {
        return object.m_nFlags;
    }
};
