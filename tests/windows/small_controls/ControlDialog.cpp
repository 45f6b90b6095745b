#include "tests/windows/small_controls/ControlDialog.h"

#include <cstring>

namespace vorn::test
{

ControlDialog::ControlDialog()
{
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    CreateEx(0, windowClass, "small controls", WS_POPUP | WS_VISIBLE, 50, 50, 400, 300, nullptr, nullptr);
}

ControlDialog::~ControlDialog()
{
    DestroyWindow();
}

BOOL ControlDialog::OnCommand(WPARAM wParam, LPARAM lParam)
{
    ++notifications;
    lastCode = HIWORD(wParam);
    return CWnd::OnCommand(wParam, lParam);
}

std::string TextOf(HWND window)
{
    char text[5000] = "";
    ::SendMessage(window, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
    return text;
}

std::string HostCaption()
{
    char path[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    const std::string file = std::string(path).substr(std::string(path).find_last_of('\\') + 1);
    return file.substr(0, file.find('.'));
}

void SetClipboard(const std::string& text)
{
    ASSERT_TRUE(::OpenClipboard(nullptr));
    ::EmptyClipboard();
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::memcpy(::GlobalLock(memory), text.c_str(), text.size() + 1);
    ::GlobalUnlock(memory);
    ::SetClipboardData(CF_TEXT, memory);
    ::CloseClipboard();
}

} // namespace vorn::test
