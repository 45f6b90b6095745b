#pragma once

/// @file
/// Context for painting in answer to WM_PAINT.
#include "framework/gdi/CDC.h"

/// Begins painting in the constructor, ends it in the destructor. Only inside a WM_PAINT handler.
class HOSTFRAMEWORK_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)
public:
    /// @throws CResourceException when the window is null, gone or gives no context.
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;

    /// What BeginPaint told.
    PAINTSTRUCT m_ps{};

protected:
    HWND m_hWnd = nullptr;
};
