#include "toolkit/ClipboardText.h"

#include <string>

namespace vorn
{

namespace
{
constexpr int kTries = 5;
constexpr DWORD kWaitMs = 10;

class OpenClipboard
{
public:
    explicit OpenClipboard(HWND owner)
    {
        for (int i = 0; i < kTries && !m_open; ++i)
        {
            ::Sleep(i == 0 ? 0 : kWaitMs);
            m_open = ::OpenClipboard(owner) != FALSE;
        }
    }
    ~OpenClipboard()
    {
        if (m_open)
        {
            ::CloseClipboard();
        }
    }
    OpenClipboard(const OpenClipboard&) = delete;
    OpenClipboard& operator=(const OpenClipboard&) = delete;

    bool IsOpen() const
    {
        return m_open;
    }

private:
    bool m_open = false;
};
} // namespace

bool GetClipboardText(const CWnd& owner, CString& text)
{
    const OpenClipboard clipboard(owner.m_hWnd);
    const HANDLE data = clipboard.IsOpen() ? ::GetClipboardData(CF_TEXT) : nullptr;
    const char* bytes = data != nullptr ? static_cast<const char*>(::GlobalLock(data)) : nullptr;
    if (bytes == nullptr)
    {
        return false;
    }
    const std::string all(bytes, ::GlobalSize(data)); // another program may have left the terminator out
    ::GlobalUnlock(data);
    text = all.c_str();
    return true;
}

} // namespace vorn
