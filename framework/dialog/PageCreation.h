#pragma once

class CWnd;

namespace vorn
{
/// The window that the system creates next on this thread, a page of a property sheet, belongs to this object.
void BeginPageCreation(CWnd& page);
/// The page's window stands, or did not come into being; without a creation under way nothing happens.
void EndPageCreation();
} // namespace vorn
