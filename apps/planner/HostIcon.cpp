#include "apps/planner/HostIcon.h"

namespace vorn::planner
{

namespace
{

constexpr UINT kHostIcon = 128;

HICON LoadShared(int size)
{
    const LPCSTR name = MAKEINTRESOURCE(kHostIcon);
    const int pixels = ::GetSystemMetrics(size);
    return static_cast<HICON>(
        ::LoadImage(AfxFindResourceHandle(name, RT_GROUP_ICON), name, IMAGE_ICON, pixels, pixels, LR_SHARED));
}

} // namespace

void ShowHostIcon(CWnd& window)
{
    if (const HICON large = LoadShared(SM_CXICON))
        window.SetIcon(large, TRUE);
    if (const HICON little = LoadShared(SM_CXSMICON))
        window.SetIcon(little, FALSE);
}

} // namespace vorn::planner
