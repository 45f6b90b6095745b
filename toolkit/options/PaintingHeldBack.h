#pragma once

#include "framework/window/CWnd.h"

namespace vorn
{

/// Keeps a window and what stands in it from being painted for a scope, and has all of it painted afterwards. Many
/// changes of a visible window cost many times what one painting does: a thousand insertions into a tree a minute.
class PaintingHeldBack
{
public:
    explicit PaintingHeldBack(CWnd& window) : m_window(window), m_visible((window.GetStyle() & WS_VISIBLE) != 0)
    {
        if (m_visible) // a hidden window would be made visible by the message that ends this
        {
            m_window.SetRedraw(FALSE);
        }
    }
    ~PaintingHeldBack()
    {
        if (m_visible && IsWindow(m_window.GetSafeHwnd()))
        {
            m_window.SetRedraw(TRUE);
            m_window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
        }
    }
    PaintingHeldBack(const PaintingHeldBack&) = delete;
    PaintingHeldBack& operator=(const PaintingHeldBack&) = delete;

private:
    CWnd& m_window;
    bool m_visible;
};

} // namespace vorn
