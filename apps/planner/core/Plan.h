#pragma once

#include "family/TarnUtil/core/LatLon.h"

#include <array>
#include <string>
#include <vector>

/// @file
/// What the planner plans: a flight of a light aircraft.

namespace vorn::planner
{

/// A place that a route can lead over.
struct Place
{
    std::string ident;
    std::string name;
    LatLon position;
};

/// The first place with this ident, in either case; null when there is none.
const Place* FindPlace(const std::vector<Place>& places, const std::string& ident);

/// Where weight sits in the aircraft.
enum Station
{
    kEmpty, ///< the aircraft itself
    kFrontSeats,
    kRearSeats,
    kBaggage,
    kFuel, ///< its weight follows from the fuel on board
    kStations
};

/// A flight as the user has entered it. Weights are pounds, arms inches, fuel US gallons, speeds knots.
struct Plan
{
    std::string departure = "KSEA";
    std::string destination = "KGEG";
    std::string via = "ELN EPH"; ///< idents, parted by blanks
    std::string remarks;
    int routing = 0; ///< 0 direct, 1 low airways, 2 high airways
    double longestLeg = 150;
    bool avoidsProhibited = true;
    bool avoidsRestricted = true;
    bool avoidsClassB = false;
    bool avoidsClassC = false;

    std::string aircraft = "N401RV";
    std::array<double, kStations> weights = {1663, 340, 0, 30, 0};
    std::array<double, kStations> arms = {40.6, 37, 73, 95, 48};

    double speed = 122;
    double flow = 9.2;      ///< an hour
    double onBoard = 38;    ///< before the engine starts
    double taxi = 1.1;      ///< start, run-up and taxi
    double contingency = 5; ///< percent of the trip's fuel
    double reserve = 45;    ///< minutes at cruise flow
    std::string alternate = "KPSC";
    std::string secondAlternate;

    bool printsLog = true;
    bool printsLoading = true;
    bool printsChart = true;
    bool printsChecklist = false;
    bool isLandscape = false;
    bool isBlackAndWhite = false;
    double copies = 1;
    std::array<double, 4> margins = {20, 10, 10, 12}; ///< left, right, top, bottom: millimeters
    std::string header = "Flight plan";
    std::string footer;

    std::string departureTime = "0900";
    std::string notes;
};

} // namespace vorn::planner
