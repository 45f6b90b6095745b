#include "aviation/LocaleText.h"

#include <vector>

namespace vorn
{

CString LocaleDate(const SYSTEMTIME& when, DWORD flags, const char* picture, int capacity)
{
    std::vector<char> text(static_cast<std::size_t>(capacity));
    const int size = GetDateFormatA(LOCALE_USER_DEFAULT, flags, &when, picture, text.data(), capacity);
    return size > 0 ? CString(text.data()) : CString();
}

} // namespace vorn
