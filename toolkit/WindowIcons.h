#pragma once

#include "frame/core/Export.h"
#include "framework/include/afxwin.h"

namespace vorn
{

/// Resource id of a host's own icon.
inline constexpr UINT kHostIcon = 128;

/// The icons of a window in both sizes, which live as long as this object.
class VORNCOMMON_API WindowIcons
{
public:
    WindowIcons();
    ~WindowIcons();
    WindowIcons(const WindowIcons&) = delete;
    WindowIcons& operator=(const WindowIcons&) = delete;

    /// Loads an icon through the resource chain and gives it to a window. Without such an icon the window keeps its
    /// own.
    void Put(CWnd& window, UINT id);

private:
    void Take(HICON& icon, HICON loaded);

    HICON m_large = nullptr;
    HICON m_small = nullptr;
};

} // namespace vorn
