#pragma once

class CWnd;

namespace LayoutManagement
{

/// Gives a dialog or sheet a frame by which the user sizes it. The frame is thicker than a dialog's; the client area
/// keeps its size.
void TakeSizingFrame(CWnd& window);

} // namespace LayoutManagement
