#include "framework/frames/SyncedCaptions.h"
#include "framework/frames/CMiniFrameWnd.h"
#include <algorithm>

namespace vorn
{
namespace
{
struct Search
{
    HWND owner;
    std::vector<HWND> found;
};

BOOL CALLBACK NoteMiniFrame(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (::GetWindow(window, GW_OWNER) == search.owner &&
        DYNAMIC_DOWNCAST(CMiniFrameWnd, CWnd::FromHandlePermanent(window)))
        search.found.push_back(window);
    return TRUE;
}

bool FollowsItsOwner(HWND frame)
{
    return (::GetWindowLong(frame, GWL_STYLE) & MFS_SYNCACTIVE) != 0;
}
} // namespace

std::vector<HWND> MiniFramesOf(HWND owner)
{
    Search search{owner, {}};
    if (owner)
        ::EnumThreadWindows(::GetCurrentThreadId(), NoteMiniFrame, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void SyncCaptions(HWND owner, bool active, HWND other)
{
    std::vector<HWND> family = MiniFramesOf(owner);
    std::erase_if(family,
                  [](HWND frame)
                  {
                      return !FollowsItsOwner(frame);
                  });
    if (family.empty())
        return;
    family.push_back(owner);
    const bool look = active || std::find(family.begin(), family.end(), other) != family.end();
    for (HWND window : family)
        ::SendMessage(window, WM_NCACTIVATE, look, 0);
}
} // namespace vorn
