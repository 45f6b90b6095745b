#include "framework/controls/ControlMessage.h"

#include <commctrl.h>

namespace vorn
{
void EnsureCommonControls()
{
    static const bool done = []
    {
        constexpr DWORD kClasses = ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_USEREX_CLASSES | ICC_COOL_CLASSES |
                                   ICC_INTERNET_CLASSES | ICC_LINK_CLASS;
        const INITCOMMONCONTROLSEX request{sizeof(INITCOMMONCONTROLSEX), kClasses};
        return ::InitCommonControlsEx(&request) != FALSE;
    }();
    static_cast<void>(done);
}
} // namespace vorn
