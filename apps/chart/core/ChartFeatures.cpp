#include "apps/chart/core/ChartFeatures.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace vorn::chart
{

namespace
{

constexpr std::array<std::pair<std::string_view, AidKind>, 7> kKinds = {{{"VOR", AidKind::Vor},
                                                                         {"VOR-DME", AidKind::VorDme},
                                                                         {"VORTAC", AidKind::Vortac},
                                                                         {"DME", AidKind::Dme},
                                                                         {"TACAN", AidKind::Tacan},
                                                                         {"NDB", AidKind::Ndb},
                                                                         {"NDB-DME", AidKind::NdbDme}}};

std::optional<int> WholeIn(const std::string& text)
{
    const std::optional<double> number = NumberIn(text);
    if (!number || std::abs(*number) > 1e9)
        return std::nullopt;
    return static_cast<int>(std::lround(*number));
}

std::optional<LatLon> PositionIn(const std::string& latitude, const std::string& longitude)
{
    const std::optional<double> lat = NumberIn(latitude);
    const std::optional<double> lon = NumberIn(longitude);
    if (!lat || !lon || std::abs(*lat) > 90 || std::abs(*lon) > 180)
        return std::nullopt;
    return LatLon(*lat, *lon);
}

LatLon Between(const LatLon& from, const LatLon& to)
{
    return LatLon((from.Lat() + to.Lat()) / 2, from.Lon() + std::remainder(to.Lon() - from.Lon(), 360.0) / 2);
}

/// Amid all ends, so that parallel runways lie on both sides of it.
LatLon Amid(const std::vector<Runway>& runways)
{
    const LatLon& first = runways.front().low;
    double lat = 0;
    double lon = 0;
    for (const Runway& runway : runways)
    {
        const LatLon middle = Between(runway.low, runway.high);
        lat += middle.Lat();
        lon += std::remainder(middle.Lon() - first.Lon(), 360.0);
    }
    const double count = static_cast<double>(runways.size());
    return LatLon(lat / count, first.Lon() + lon / count);
}

bool IsHard(std::string_view surface)
{
    return surface == "asphalt" || surface == "concrete" || surface == "paved";
}

} // namespace

std::optional<AidKind> AidKindOf(std::string_view word)
{
    for (const auto& [name, kind] : kKinds)
    {
        if (name == word)
            return kind;
    }
    return std::nullopt;
}

bool HasRadials(AidKind kind)
{
    return kind == AidKind::Vor || kind == AidKind::VorDme || kind == AidKind::Vortac;
}

std::optional<double> NumberIn(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return std::nullopt;
    text = text.substr(first, text.find_last_not_of(' ') + 1 - first);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::optional<Aid> AidFrom(const FieldOf& field)
{
    Aid aid;
    aid.ident = field("IDENT");
    aid.name = field("NAME");
    const std::optional<AidKind> kind = AidKindOf(field("TYPE"));
    const std::optional<LatLon> position = PositionIn(field("LATITUDE"), field("LONGITUDE"));
    if (aid.ident.empty() || !kind || !position)
        return std::nullopt;
    aid.kind = *kind;
    aid.position = *position;
    aid.kilohertz = WholeIn(field("FREQ_KHZ")).value_or(0);
    aid.elevation = WholeIn(field("ELEV_FT"));
    aid.variation = NumberIn(field("VAR_DEG")).value_or(0);
    return aid;
}

std::optional<Aerodrome> AerodromeFrom(const FieldOf& field)
{
    Aerodrome one;
    one.ident = field("AIRPORT");
    one.name = field("NAME");
    const std::optional<LatLon> low = PositionIn(field("LE_LAT"), field("LE_LON"));
    const std::optional<LatLon> high = PositionIn(field("HE_LAT"), field("HE_LON"));
    if (one.ident.empty() || !low || !high)
        return std::nullopt;
    Runway runway;
    runway.name = field("RUNWAY");
    runway.length = WholeIn(field("LENGTH_FT")).value_or(0);
    runway.hard = IsHard(field("SURFACE"));
    runway.lighted = field("LIGHTED") == "yes";
    runway.low = *low;
    runway.high = *high;
    one.position = Between(*low, *high);
    const std::optional<int> first = WholeIn(field("LE_ELEV"));
    const std::optional<int> second = WholeIn(field("HE_ELEV"));
    one.elevation = first && second ? std::max(first, second) : first ? first : second;
    one.runways.push_back(std::move(runway));
    return one;
}

void AddRunway(std::vector<Aerodrome>& aerodromes, Aerodrome one)
{
    if (aerodromes.empty() || aerodromes.back().ident != one.ident)
    {
        aerodromes.push_back(std::move(one));
        return;
    }
    Aerodrome& known = aerodromes.back();
    if (one.elevation)
        known.elevation = std::max(known.elevation.value_or(*one.elevation), *one.elevation);
    for (Runway& runway : one.runways)
    {
        const auto place = std::find_if(known.runways.begin(), known.runways.end(),
                                        [&](const Runway& other)
                                        {
                                            return other.length < runway.length;
                                        });
        known.runways.insert(place, std::move(runway));
    }
    known.position = Amid(known.runways);
}

std::string FrequencyText(const Aid& aid)
{
    const std::string whole = std::to_string(aid.kilohertz);
    if (aid.kind == AidKind::Ndb || aid.kind == AidKind::NdbDme || aid.kilohertz < 1000)
        return whole;
    std::string text = whole.substr(0, whole.size() - 3);
    text += '.';
    text += whole.substr(whole.size() - 3);
    while (text.back() == '0' && text[text.size() - 2] != '.')
        text.pop_back();
    return text;
}

} // namespace vorn::chart
