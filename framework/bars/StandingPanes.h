#pragma once

/// @file
/// What of a status bar need not be painted anew when its panes get other right edges; not public interface.
#include <windows.h>

#include <vector>

namespace vorn
{

/// Made before the edges are set. The control then paints the whole of itself anew, message line and all, with each
/// pixel by which its frame is dragged; PaintRest() holds it to what has changed.
class StandingPanes
{
public:
    explicit StandingPanes(HWND bar);
    ~StandingPanes();
    StandingPanes(const StandingPanes&) = delete;
    StandingPanes& operator=(const StandingPanes&) = delete;

    /// To be called after the edges are set: what stands as before need not be painted unless it was to be painted
    /// already; the rest is.
    void PaintRest() const;

private:
    int StandsUpTo() const;

    HWND m_bar;
    std::vector<int> m_edges;
    HRGN m_invalid;
};

} // namespace vorn
