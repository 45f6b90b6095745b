#pragma once

/// @file
/// Context for a whole window, frame and caption included.
#include "framework/gdi/CDC.h"

/// Gets the context of a window in the constructor, releases it in the destructor.
class HOSTFRAMEWORK_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)
public:
    /// @param window null: the whole screen. @throws CResourceException when there is no context.
    explicit CWindowDC(CWnd* window);
    ~CWindowDC() override;

protected:
    HWND m_hWnd = nullptr;
};
