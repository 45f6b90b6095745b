// A projection plug-in, as an example of one: the azimuthal equidistant projection of the sphere, on which distances
// and directions from the map pole are true. J. P. Snyder, Map Projections: A Working Manual, USGS Professional Paper
// 1395 (1987), section 25.
#include <cmath>
#include <cstring>
#include <memory>
#include <new>
#include <vornplugin.h>

namespace
{
constexpr double kPi = 3.14159265358979324;
constexpr double kRadian = kPi / 180;
constexpr int kOutlinePoints = 72;

/// All that is kept of one projection, in degrees; also its stored form.
struct State
{
    double poleLat = 0;
    double poleLon = 0;
    double centreLat = 0;
    double centreLon = 0;
    double skew = 0;
    double range = 179; ///< how far from the map pole the map reaches
};

/// Where there was no memory for a projection, its handle is 0 and this is its state.
State g_spare;

State& StateOf(VornProjection projection)
{
    return projection != 0 ? *reinterpret_cast<State*>(projection) : g_spare;
}

double HeldLongitude(double lon)
{
    const double rest = std::remainder(lon, 360);
    return rest == -180 ? 180 : rest;
}

bool IsLatitude(double lat)
{
    return lat >= -90 && lat <= 90;
}

bool IsLegal(const State& state)
{
    return IsLatitude(state.poleLat) && IsLatitude(state.centreLat) && std::isfinite(state.poleLon) &&
           std::isfinite(state.centreLon) && std::isfinite(state.skew) && state.range >= 1 && state.range <= 179;
}

/// A position as seen from the map pole: its distance in radians, and where it lies to the right and above, as a vector
/// as long as the sine of the distance.
struct Sight
{
    double distance;
    double right;
    double above;
};

Sight SightOf(const State& state, double lat, double lon)
{
    const double delta = (lon - state.poleLon) * kRadian;
    const double sinPole = std::sin(state.poleLat * kRadian);
    const double cosPole = std::cos(state.poleLat * kRadian);
    const double sinLat = std::sin(lat * kRadian);
    const double cosLat = std::cos(lat * kRadian);
    const double right = cosLat * std::sin(delta);
    const double above = cosPole * sinLat - sinPole * cosLat * std::cos(delta);
    return {std::atan2(std::hypot(right, above), sinPole * sinLat + cosPole * cosLat * std::cos(delta)), right, above};
}

bool IsShown(const State& state, double lat, const Sight& sight)
{
    return IsLatitude(lat) && sight.distance <= state.range * kRadian;
}

/// Radians of map for one of the sphere, across the line of sight.
double AcrossScale(const Sight& sight)
{
    return sight.distance > 0 ? sight.distance / std::sin(sight.distance) : 1;
}

void Turn(double degrees, double& x, double& y)
{
    const double s = std::sin(degrees * kRadian);
    const double c = std::cos(degrees * kRadian);
    const double turned = x * c + y * s;
    y = y * c - x * s;
    x = turned;
}
} // namespace

VornProjection CreateProjection()
{
    return reinterpret_cast<VornProjection>(new (std::nothrow) State); // DestroyProjection deletes it
}

const char* QueryProjectionName()
{
    return "Azimuthal equidistant";
}

int InitProjection(VornProjection projection)
{
    return projection != 0;
}

void DestroyProjection(VornProjection projection)
{
    const std::unique_ptr<State> ended{reinterpret_cast<State*>(projection)};
}

int ReadWrite(VornProjection projection, char** cursor, unsigned long* remaining, int read)
{
    State state = StateOf(projection);
    if (*remaining < sizeof state)
    {
        return 0;
    }
    if (read != 0)
    {
        std::memcpy(&state, *cursor, sizeof state);
        if (!IsLegal(state))
        {
            return 0;
        }
        StateOf(projection) = state;
    }
    else
    {
        std::memcpy(*cursor, &state, sizeof state);
    }
    *cursor += sizeof state;
    *remaining -= sizeof state;
    return 1;
}

void GetCenterLatLon(VornProjection projection, double* lat, double* lon)
{
    *lat = StateOf(projection).centreLat;
    *lon = StateOf(projection).centreLon;
}

void Skew(VornProjection projection, double* x, double* y)
{
    Turn(StateOf(projection).skew, *x, *y);
}

void UnSkew(VornProjection projection, double* x, double* y)
{
    Turn(-StateOf(projection).skew, *x, *y);
}

double GetSkew(VornProjection projection)
{
    return StateOf(projection).skew;
}

void SetSkew(VornProjection projection, double degrees)
{
    StateOf(projection).skew = HeldLongitude(degrees);
}

void OffsetSkew(VornProjection projection, double degrees)
{
    SetSkew(projection, GetSkew(projection) + degrees);
}

int LLtoXY(VornProjection projection, double lat, double lon, double* x, double* y)
{
    const State& state = StateOf(projection);
    const Sight sight = SightOf(state, lat, lon);
    if (!IsShown(state, lat, sight))
    {
        return 0;
    }
    *x = AcrossScale(sight) * sight.right;
    *y = AcrossScale(sight) * sight.above;
    return 1;
}

int XYtoLL(VornProjection projection, double x, double y, double* lat, double* lon)
{
    const State& state = StateOf(projection);
    const double distance = std::hypot(x, y);
    if (!(distance <= state.range * kRadian))
    {
        return 0;
    }
    const double length = distance > 0 ? std::sin(distance) / distance : 1;
    const double sinPole = std::sin(state.poleLat * kRadian);
    const double cosPole = std::cos(state.poleLat * kRadian);
    const double right = x * length;
    const double ahead = cosPole * std::cos(distance) - sinPole * y * length;
    const double up = sinPole * std::cos(distance) + cosPole * y * length;
    *lat = std::atan2(up, std::hypot(right, ahead)) / kRadian;
    *lon = HeldLongitude(state.poleLon + std::atan2(right, ahead) / kRadian);
    return 1;
}

VornProjection Clone(VornProjection projection)
{
    // DestroyProjection deletes it.
    return reinterpret_cast<VornProjection>(new (std::nothrow) State(StateOf(projection)));
}

void MinMaxMapXY(VornProjection projection, double* minX, double* minY, double* maxX, double* maxY)
{
    *maxX = *maxY = StateOf(projection).range * kRadian;
    *minX = *minY = -*maxX;
}

int SetMapPole(VornProjection projection, double lat, double lon)
{
    if (!IsLatitude(lat))
    {
        return 0;
    }
    State& state = StateOf(projection);
    state.poleLat = state.centreLat = lat;
    state.poleLon = state.centreLon = HeldLongitude(lon);
    return 1;
}

int PanTo(VornProjection projection, double lat, double lon)
{
    State& state = StateOf(projection);
    if (!IsShown(state, lat, SightOf(state, lat, lon)))
    {
        return 0;
    }
    state.centreLat = lat;
    state.centreLon = HeldLongitude(lon);
    return 1;
}

int CenterMapXY(VornProjection projection, double* x, double* y)
{
    const State& state = StateOf(projection);
    return LLtoXY(projection, state.centreLat, state.centreLon, x, y);
}

int IsCylindrical(VornProjection)
{
    return 0;
}

int IsConic(VornProjection)
{
    return 0;
}

int IsConformal(VornProjection)
{
    return 0;
}

int IsZoomable(VornProjection)
{
    return 1;
}

int Is3D(VornProjection)
{
    return 0;
}

int NumParams(VornProjection)
{
    return 1;
}

const char* ParamName(VornProjection, int index)
{
    return index == 0 ? "Range" : "";
}

double GetParamValue(VornProjection projection, int index)
{
    return index == 0 ? StateOf(projection).range : 0;
}

int SetParamValue(VornProjection projection, int index, double value)
{
    if (index != 0 || !(value >= 1 && value <= 179))
    {
        return 0;
    }
    StateOf(projection).range = value;
    return 1;
}

unsigned long BackgroundColor(VornProjection)
{
    return 0x00FFFFFF;
}

int NMapLimitPts(VornProjection)
{
    return kOutlinePoints;
}

int MapLimitPt(VornProjection projection, int index, double* x, double* y)
{
    if (index < 0 || index >= kOutlinePoints)
    {
        return 0;
    }
    const double angle = index * (2 * kPi / kOutlinePoints);
    *x = StateOf(projection).range * kRadian * std::cos(angle);
    *y = StateOf(projection).range * kRadian * std::sin(angle);
    return 1;
}

/// Along the line of sight the scale is 1; the parallel lies obliquely to it.
double ScaleMult(VornProjection projection, double lat, double lon)
{
    const State& state = StateOf(projection);
    const Sight sight = SightOf(state, lat, lon);
    if (!IsShown(state, lat, sight))
    {
        return 0;
    }
    const double sine = std::sin(sight.distance);
    if (sine == 0)
    {
        return 1;
    }
    const double outward = std::cos(state.poleLat * kRadian) * std::sin((lon - state.poleLon) * kRadian) / sine;
    const double across = AcrossScale(sight);
    return std::sqrt(outward * outward + across * across * (1 - outward * outward));
}

double ScaleError(VornProjection projection, double lat, double lon)
{
    return ScaleMult(projection, lat, lon) - 1;
}
