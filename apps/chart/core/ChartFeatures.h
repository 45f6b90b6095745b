#pragma once

#include "family/TarnUtil/core/LatLon.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// @file
/// What a chart shows, as the tables of the region have it.

namespace vorn::chart
{

enum class AidKind
{
    Vor,
    VorDme,
    Vortac,
    Dme,
    Tacan,
    Ndb,
    NdbDme,
};

/// The kind that a table names, "VOR-DME" for example; nothing for any other word.
std::optional<AidKind> AidKindOf(std::string_view word);

/// True for the kinds that give a bearing by a VOR's signal.
bool HasRadials(AidKind kind);

/// A radio navigation aid.
struct Aid
{
    std::string ident;
    std::string name;
    AidKind kind = AidKind::Vor;
    int kilohertz = 0;
    LatLon position;
    std::optional<int> elevation; ///< feet above mean sea level
    double variation = 0;         ///< magnetic, degrees, east positive
};

struct Runway
{
    std::string name; ///< of both ends: "16L/34R"
    int length = 0;   ///< feet
    bool hard = true; ///< paved
    bool lighted = false;
    LatLon low;  ///< the end with the lower number
    LatLon high; ///< the other end
};

struct Aerodrome
{
    std::string ident;
    std::string name;
    LatLon position; ///< amid its runways
    std::optional<int> elevation;
    std::vector<Runway> runways; ///< the longest first

    const Runway& Longest() const
    {
        return runways.front();
    }
};

/// The text of a record's field; empty for a field that there is not.
using FieldOf = std::function<std::string(const char* name)>;

/// Nothing for a record without ident, position or a kind that is known.
std::optional<Aid> AidFrom(const FieldOf& field);

/// A runway with its aerodrome around it; nothing for a record without ident, or without the place of both ends.
std::optional<Aerodrome> AerodromeFrom(const FieldOf& field);

/// Adds a runway's aerodrome to the others: to the last one when it has the same ident.
void AddRunway(std::vector<Aerodrome>& aerodromes, Aerodrome one);

/// "116.8" and "109.45" for megahertz, "362" for kilohertz of an NDB.
std::string FrequencyText(const Aid& aid);

/// A number as the tables write it, with a point; nothing for any other text.
std::optional<double> NumberIn(std::string_view text);

} // namespace vorn::chart
