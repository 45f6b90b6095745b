#include "apps/vorntool/TextConversion.h"

namespace vorn::tool
{

namespace
{

std::wstring Widened(std::string_view text, unsigned codePage)
{
    const int size = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Narrowed(std::wstring_view text, unsigned codePage, DWORD flags, BOOL* lost)
{
    const int size = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(codePage, flags, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(codePage, flags, text.data(), size, narrow.data(), needed, nullptr, lost);
    return narrow;
}

} // namespace

std::string Utf8FromWide(std::wstring_view text)
{
    return Narrowed(text, CP_UTF8, 0, nullptr);
}

std::wstring WideFromUtf8(std::string_view text)
{
    return Widened(text, CP_UTF8);
}

std::string Utf8FromLibrary(std::string_view text, unsigned codePage)
{
    return Utf8FromWide(Widened(text, codePage));
}

std::optional<CString> LibraryFromUtf8(std::string_view text)
{
    BOOL lost = FALSE;
    const std::string narrow = Narrowed(WideFromUtf8(text), CP_ACP, WC_NO_BEST_FIT_CHARS, &lost);
    if (lost != FALSE)
    {
        return std::nullopt;
    }
    return CString(narrow.data(), static_cast<int>(narrow.size()));
}

} // namespace vorn::tool
