#include "apps/vorntool/core/Decimals.h"

#include "apps/vorntool/core/ToolNumbers.h"

namespace vorn::tool
{

namespace
{

constexpr int kMostDecimals = 100;

} // namespace

bool TakeDecimals(const Invocation& call, int& decimals, std::string& reason)
{
    decimals = -1;
    if (!call.Has(kDecimalsOption.name))
    {
        return true;
    }
    const auto given = ParseWhole(call.ValueOf(kDecimalsOption.name, ""));
    const bool fits = given && *given >= 0 && *given <= kMostDecimals;
    decimals = fits ? static_cast<int>(*given) : -1;
    reason = fits ? "" : "--decimals takes a number from 0 to 100";
    return fits;
}

} // namespace vorn::tool
