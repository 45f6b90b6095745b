#include "frame/core/BaseN.h"

#include "frame/core/BaseNDigits.h"
#include "frame/core/StringViews.h"

unsigned long long FromBaseN(const char* digits, int base)
{
    return digits != nullptr ? vorn::DecodeNumber(digits, base) : 0;
}

CString ToBaseN(unsigned long long value, int base)
{
    return vorn::ToCString(vorn::EncodeNumber(value, base));
}

CString ToBaseN(unsigned char* bytes, int count, int base)
{
    if (bytes == nullptr || count < 1)
        return {};
    return vorn::ToCString(vorn::EncodeBytes({bytes, static_cast<std::size_t>(count)}, base));
}

int FromBaseN(const char* digits, unsigned char* bytes, int size)
{
    if (digits == nullptr || bytes == nullptr || size < 1)
        return 0;
    return static_cast<int>(vorn::DecodeBytes(digits, {bytes, static_cast<std::size_t>(size)}));
}
