#include "framework/dialog/PageCreation.h"

#include "framework/window/CWnd.h"
#include "framework/window/ThreadState.h"

#include <cstddef>

namespace vorn
{
namespace
{
/// How many creations were under way with the page's own; 0 when none waits.
thread_local std::size_t t_depth = 0;

std::size_t Depth()
{
    return CurrentThreadState().creations.size();
}
} // namespace

void BeginPageCreation(CWnd& page)
{
    EndPageCreation(); // of a page that did not come into being
    AfxHookWindowCreate(&page);
    t_depth = Depth();
}

void EndPageCreation()
{
    if (t_depth == 0 || Depth() > t_depth)
        return; // a page's handlers create windows of their own
    if (Depth() == t_depth)
        AfxUnhookWindowCreate();
    t_depth = 0;
}
} // namespace vorn
