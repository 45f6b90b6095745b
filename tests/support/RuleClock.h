#pragma once

#include "aviation/core/LocalClock.h"

#include <chrono>

/// A runtime clock with the rules of one zone, made of the library's calendar alone: a stand-in for `localtime` and
/// `mktime` that is the same on every machine. The n-th Sunday (5: the last) of a month, at an hour of local time,
/// starts and ends daylight time.
class RuleClock : public vorn::LocalClock
{
public:
    struct Sunday
    {
        unsigned month = 0;
        unsigned nth = 0;
        int hour = 0;
    };

    static constexpr std::int64_t kLastMoment = 32535244799; ///< beyond it the runtime refuses

    /// `westMinutes` are added to standard time for UTC. Without `start` there is no daylight time.
    explicit RuleClock(int westMinutes) : RuleClock(westMinutes, Sunday(), Sunday())
    {
    }

    RuleClock(int westMinutes, Sunday start, Sunday end) : m_west(westMinutes * 60), m_start(start), m_end(end)
    {
    }

    std::optional<vorn::CivilTime> BreakDown(std::int64_t moment) const override
    {
        if (moment < 0 || moment > kLastMoment)
            return std::nullopt;
        return Fields(moment - m_west + (IsDaylight(moment) ? kHour : 0));
    }

    std::optional<std::int64_t> Make(const vorn::CivilTime& local) const override
    {
        using namespace std::chrono;
        const int months = local.month - 1;
        const int carry = months >= 0 ? months / 12 : (months - 11) / 12;
        const year_month_day first{year{local.year + carry}, month{static_cast<unsigned>(months - 12 * carry + 1)},
                                   day{1}};
        const std::int64_t days = sys_days{first}.time_since_epoch().count() + local.day - 1;
        std::int64_t moment = days * 24 * kHour + local.hour * kHour + local.minute * 60 + local.second + m_west;
        if (IsDaylight(moment))
            moment -= kHour;
        if (moment < 0 || moment > kLastMoment)
            return std::nullopt;
        return moment;
    }

    bool IsDaylight(std::int64_t moment) const
    {
        if (m_start.month == 0)
            return false;
        const int thisYear = Fields(moment - m_west).year;
        const std::int64_t start = At(m_start, thisYear);
        const std::int64_t end = At(m_end, thisYear) - kHour;
        return start < end ? start <= moment && moment < end : moment < end || moment >= start;
    }

private:
    static constexpr std::int64_t kHour = 3600;

    std::int64_t At(const Sunday& rule, int thisYear) const
    {
        using namespace std::chrono;
        const auto sunday = rule.nth == 5
                                ? sys_days{year{thisYear} / month{rule.month} / std::chrono::Sunday[last]}
                                : sys_days{year{thisYear} / month{rule.month} / std::chrono::Sunday[rule.nth]};
        return std::int64_t{sunday.time_since_epoch().count()} * 24 * kHour + rule.hour * kHour + m_west;
    }

    static vorn::CivilTime Fields(std::int64_t seconds)
    {
        using namespace std::chrono;
        const auto midnight = floor<days>(sys_seconds{std::chrono::seconds{seconds}});
        const year_month_day date{midnight};
        const auto rest = static_cast<int>(seconds - std::int64_t{midnight.time_since_epoch().count()} * 24 * kHour);
        return {static_cast<int>(date.year()),
                static_cast<int>(unsigned{date.month()}),
                static_cast<int>(unsigned{date.day()}),
                rest / 3600,
                rest / 60 % 60,
                rest % 60};
    }

    std::int64_t m_west;
    Sunday m_start;
    Sunday m_end;
};

/// Eastern North America: daylight time from the second Sunday of March to the first of November.
inline RuleClock EasternClock()
{
    return RuleClock(300, {3, 2, 2}, {11, 1, 2});
}

/// South-eastern Australia: from the first Sunday of October to the first of April, ending at three o'clock daylight
/// time.
inline RuleClock SouthernClock()
{
    return RuleClock(-600, {10, 1, 2}, {4, 1, 3});
}
