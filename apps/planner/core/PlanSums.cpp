#include "apps/planner/core/PlanSums.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace vorn::planner
{

namespace
{

constexpr double kMinutesAnHour = 60;
constexpr double kPercent = 100;

double MilesBetween(const std::vector<Place>& places, const std::string& from, const std::string& to)
{
    const Place* const first = FindPlace(places, from);
    const Place* const second = FindPlace(places, to);
    return first != nullptr && second != nullptr ? first->position.Distance(second->position) : 0;
}

double HoursFor(double miles, double knots)
{
    return knots > 0 ? miles / knots : 0;
}

} // namespace

std::vector<std::string> WordsOf(const std::string& text)
{
    std::vector<std::string> words;
    std::istringstream stream(text);
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

std::vector<Place> RouteOf(const Plan& plan, const std::vector<Place>& places)
{
    std::vector<Place> route;
    for (const std::string& ident : WordsOf(plan.departure + ' ' + plan.via + ' ' + plan.destination))
    {
        if (const Place* const place = FindPlace(places, ident))
            route.push_back(*place);
    }
    return route;
}

std::vector<Leg> LegsOf(std::span<const Place> route, double knots, double gallonsAnHour)
{
    std::vector<Leg> legs;
    for (std::size_t i = 1; i < route.size(); ++i)
    {
        const GeodesicLeg way = LegBetween(route[i - 1].position, route[i].position);
        const double hours = HoursFor(way.distance, knots);
        legs.push_back({route[i - 1].ident, route[i].ident, way.direction, way.distance, hours, hours * gallonsAnHour});
    }
    return legs;
}

Leg SumOf(std::span<const Leg> legs)
{
    Leg sum;
    if (legs.empty())
        return sum;
    sum = legs.front();
    sum.to = legs.back().to;
    for (const Leg& leg : legs.subspan(1))
    {
        sum.miles += leg.miles;
        sum.hours += leg.hours;
        sum.gallons += leg.gallons;
    }
    return sum;
}

std::string SummaryOf(std::span<const Leg> legs, const std::string& distance)
{
    return std::to_string(legs.size()) + (legs.size() == 1 ? " leg, " : " legs, ") + distance + ", " +
           HoursText(SumOf(legs).hours);
}

FuelSums FuelFor(const Plan& plan, const std::vector<Place>& places)
{
    const std::vector<Place> route = RouteOf(plan, places);
    const double toAlternate = std::max(MilesBetween(places, plan.destination, plan.alternate),
                                        MilesBetween(places, plan.destination, plan.secondAlternate));
    FuelSums sums;
    sums.taxi = plan.taxi;
    sums.trip = SumOf(LegsOf(route, plan.speed, plan.flow)).gallons;
    sums.contingency = sums.trip * plan.contingency / kPercent;
    sums.alternate = HoursFor(toAlternate, plan.speed) * plan.flow;
    sums.reserve = plan.reserve / kMinutesAnHour * plan.flow;
    sums.required = sums.taxi + sums.trip + sums.contingency + sums.alternate + sums.reserve;
    sums.onBoard = plan.onBoard;
    sums.extra = sums.onBoard - sums.required;
    sums.enduranceHours = plan.flow > 0 ? std::max(0.0, plan.onBoard - plan.taxi) / plan.flow : 0;
    return sums;
}

LoadingSums LoadingOf(const Plan& plan, double tripGallons)
{
    LoadingSums sums;
    for (int station = kEmpty; station < kFuel; ++station)
    {
        const auto index = static_cast<std::size_t>(station);
        sums.zeroFuel.weight += plan.weights[index];
        sums.zeroFuel.moment += plan.weights[index] * plan.arms[index];
    }
    const auto with = [&](double gallons)
    {
        const double weight = std::max(0.0, gallons) * kAvgasWeight;
        return Load{sums.zeroFuel.weight + weight, sums.zeroFuel.moment + weight * plan.arms[kFuel]};
    };
    sums.takeoff = with(plan.onBoard - plan.taxi);
    sums.landing = with(plan.onBoard - plan.taxi - tripGallons);
    return sums;
}

std::span<const EnvelopePoint> Envelope()
{
    static constexpr std::array<EnvelopePoint, 5> kEnvelope = {
        EnvelopePoint{35, 1500}, {35, 1950}, {40, kTakeoffLimit}, {47.3, kTakeoffLimit}, {47.3, 1500}};
    return kEnvelope;
}

bool IsInEnvelope(const Load& load)
{
    const std::span<const EnvelopePoint> corners = Envelope();
    for (std::size_t i = 0; i < corners.size(); ++i)
    {
        const EnvelopePoint& from = corners[i];
        const EnvelopePoint& to = corners[(i + 1) % corners.size()];
        // The corners go round with the inside at their right.
        const double side =
            (to.arm - from.arm) * (load.weight - from.weight) - (to.weight - from.weight) * (load.Arm() - from.arm);
        if (side > 0)
            return false;
    }
    return true;
}

std::string LoadingFault(const LoadingSums& sums)
{
    if (sums.takeoff.weight > kTakeoffLimit)
        return NumberText(sums.takeoff.weight - kTakeoffLimit, 0) + " lb over the takeoff limit.";
    if (!IsInEnvelope(sums.takeoff))
        return "The takeoff center of gravity is outside its limits.";
    if (!IsInEnvelope(sums.landing))
        return "The landing center of gravity is outside its limits.";
    return {};
}

std::string HoursText(double hours)
{
    const long minutes = std::isfinite(hours) ? std::lround(std::clamp(hours, 0.0, 1e6) * kMinutesAnHour) : 0;
    const long rest = minutes % 60;
    return std::to_string(minutes / 60) + (rest < 10 ? ":0" : ":") + std::to_string(rest);
}

std::string NumberText(double value, int decimals)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream.setf(std::ios::fixed);
    stream.precision(decimals);
    stream << value;
    return stream.str();
}

} // namespace vorn::planner
