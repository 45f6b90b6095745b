#include "toolkit/textlayout/core/LayoutNumber.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>

namespace vorn
{

int ClampToInt(std::int64_t value)
{
    return static_cast<int>(std::clamp<std::int64_t>(value, INT_MIN, INT_MAX));
}

int ClampToInt(double value)
{
    return static_cast<int>(std::clamp<double>(value, INT_MIN, INT_MAX));
}

int ReadLayoutNumber(const char* text)
{
    const int error = errno;
    const long value = std::strtol(text, nullptr, 10);
    errno = error;
    return ClampToInt(static_cast<std::int64_t>(value));
}

int AddClamped(int first, int second)
{
    return ClampToInt(static_cast<std::int64_t>(first) + second);
}

int SubtractClamped(int first, int second)
{
    return ClampToInt(static_cast<std::int64_t>(first) - second);
}

} // namespace vorn
