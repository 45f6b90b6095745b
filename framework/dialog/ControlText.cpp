#include "framework/dialog/ControlText.h"

#include <cstring>

namespace vorn
{
CString ControlText(HWND control)
{
    CString text;
    const int length = ::GetWindowTextLengthA(control);
    if (length > 0)
        text.ReleaseBuffer(::GetWindowTextA(control, text.GetBuffer(length), length + 1));
    return text;
}

void SetControlText(HWND control, const char* text)
{
    if (ControlText(control) != text)
        ::SetWindowTextA(control, text);
}

void SelectControlText(HWND control)
{
    if (IsComboBox(control))
        ::SendMessageA(control, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
    else
        ::SendMessageA(control, EM_SETSEL, 0, -1);
}

bool IsComboBox(HWND control)
{
    constexpr int kNameSize = 32;
    char name[kNameSize] = {};
    ::GetClassNameA(control, name, kNameSize);
    return ::lstrcmpiA(name, "ComboBox") == 0;
}
} // namespace vorn
