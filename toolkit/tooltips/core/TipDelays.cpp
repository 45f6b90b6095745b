#include "toolkit/tooltips/core/TipDelays.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace vorn
{
namespace
{

constexpr std::uint64_t kAutoPopTimes = 10;
constexpr int kReshowPart = 5;

int Fitted(std::uint64_t milliseconds)
{
    return static_cast<int>(std::min<std::uint64_t>(milliseconds, std::numeric_limits<int>::max()));
}

} // namespace

int TipDelays::Get(unsigned long which) const
{
    switch (which)
    {
    case kTipAutomatic:
        return m_automatic;
    case kTipReshow:
        return m_reshow;
    case kTipAutoPop:
        return m_autoPop;
    case kTipInitial:
        return m_initial;
    default:
        return 0;
    }
}

void TipDelays::Set(unsigned long which, int milliseconds)
{
    if (milliseconds < 0)
    {
        return;
    }
    switch (which)
    {
    case kTipAutomatic:
        SetAutomatic(static_cast<unsigned>(milliseconds));
        break;
    case kTipReshow:
        m_reshow = milliseconds;
        break;
    case kTipAutoPop:
        m_autoPop = milliseconds;
        break;
    case kTipInitial:
        m_initial = milliseconds;
        break;
    default:
        break;
    }
}

void TipDelays::SetAutomatic(unsigned milliseconds)
{
    m_automatic = Fitted(milliseconds);
    m_initial = m_automatic;
    m_autoPop = Fitted(milliseconds * kAutoPopTimes);
    m_reshow = m_automatic / kReshowPart;
}

} // namespace vorn
