#pragma once

/// @file
/// Context for a window's client area.
#include "framework/gdi/CDC.h"

/// Gets the context of a client area in the constructor, releases it in the destructor.
class HOSTFRAMEWORK_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)
public:
    /// @param window null: the whole screen. @throws CResourceException when there is no context.
    explicit CClientDC(CWnd* window);
    ~CClientDC() override;

protected:
    HWND m_hWnd = nullptr;
};
