#include "aviation/Formatting.h"
#include "aviation/core/NumberText.h"

#include <windows.h>

#include <cmath>

void FormatCurrency(double amount, CString& out)
{
    constexpr int capacity = 32; // characters, the end counted
    constexpr int decimals = 6;
    out.Empty();
    if (!std::isfinite(amount))
        return;
    char text[capacity] = {};
    const std::string number = vorn::FixedText(amount, decimals);
    // Success leaves an old error where it is: it must not be taken for this call's.
    SetLastError(ERROR_SUCCESS);
    if (GetCurrencyFormatA(LOCALE_SYSTEM_DEFAULT, 0, number.c_str(), nullptr, text, capacity) > 0 &&
        GetLastError() == ERROR_SUCCESS)
        out = text;
}
