#include "apps/vorntool/SystemErrors.h"

#include "apps/vorntool/TextConversion.h"

#include <iterator>

namespace vorn::tool
{

std::string SystemError(DWORD code)
{
    wchar_t text[512];
    constexpr DWORD kFlags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    const DWORD length = FormatMessageW(kFlags, nullptr, code, 0, text, static_cast<DWORD>(std::size(text)), nullptr);
    std::wstring_view message(text, length);
    message = message.substr(0, message.find_last_not_of(L" .\r\n") + 1);
    return "error " + std::to_string(code) + (message.empty() ? "" : ": " + Utf8FromWide(message));
}

} // namespace vorn::tool
