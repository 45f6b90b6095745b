#pragma once

#include "apps/planner/core/Plan.h"

#include <span>

/// @file
/// What follows from a plan: legs, fuel, loading.

namespace vorn::planner
{

/// The idents of a text, parted by blanks.
std::vector<std::string> WordsOf(const std::string& text);

/// Departure, the known places between, destination; what is not known is passed over.
std::vector<Place> RouteOf(const Plan& plan, const std::vector<Place>& places);

struct Leg
{
    std::string from;
    std::string to;
    double course = 0; ///< true, at its start
    double miles = 0;
    double hours = 0;
    double gallons = 0;
};

/// A leg for each two places that follow one another. No time and no fuel at a speed of 0 or below.
std::vector<Leg> LegsOf(std::span<const Place> route, double knots, double gallonsAnHour);

/// All legs in one, from the first place to the last.
Leg SumOf(std::span<const Leg> legs);

/// "3 legs, 224 NM, 1:50". @param distance of all legs, with its unit
std::string SummaryOf(std::span<const Leg> legs, const std::string& distance);

/// US gallons.
struct FuelSums
{
    double taxi = 0;
    double trip = 0;
    double contingency = 0; ///< percent of the trip
    double alternate = 0;   ///< to the farther of the alternates
    double reserve = 0;
    double required = 0;
    double onBoard = 0;
    double extra = 0;          ///< negative: so much is missing
    double enduranceHours = 0; ///< with what is left after taxiing
};

FuelSums FuelFor(const Plan& plan, const std::vector<Place>& places);

inline constexpr double kTankCapacity = 53;   ///< usable
inline constexpr double kAvgasWeight = 6;     ///< pounds a gallon
inline constexpr double kTakeoffLimit = 2550; ///< pounds

/// A weight and where it acts.
struct Load
{
    double weight = 0;
    double moment = 0; ///< pounds times inches

    double Arm() const
    {
        return weight > 0 ? moment / weight : 0;
    }
};

struct LoadingSums
{
    Load zeroFuel;
    Load takeoff; ///< with the fuel that is left after taxiing
    Load landing; ///< with the trip's fuel burned
};

LoadingSums LoadingOf(const Plan& plan, double tripGallons);

/// A corner of the envelope: inches and pounds.
struct EnvelopePoint
{
    double arm;
    double weight;
};

/// The loads that the aircraft flies with, going round.
std::span<const EnvelopePoint> Envelope();

/// Whether a load lies in the envelope, its edge included.
bool IsInEnvelope(const Load& load);

/// What is wrong with the loading, in one sentence; empty when nothing is.
std::string LoadingFault(const LoadingSums& sums);

/// Hours as "1:50", rounded to minutes.
std::string HoursText(double hours);

/// A number with so many decimals, with a point in every locale.
std::string NumberText(double value, int decimals);

/// A typed coordinate in degrees: "47.449", "47 26.9", "N47 26 56", "122 18.6 W", "-122.31". Letters are N and S of a
/// latitude, E and W of a longitude. False, with nothing changed, for any other text and beyond 90 or 180 degrees.
bool ParseCoordinate(const std::string& text, bool isLatitude, double& degrees);

} // namespace vorn::planner
