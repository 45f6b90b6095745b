#include "family/VornChart/core/ExternalProj.h"

#include "family/VornChart/core/ModuleHold.h"

#include <cmath>
#include <new>
#include <vornplugin.h>

namespace
{
/// Where each entry point stands in the table.
enum Slot : std::size_t
{
    kInitProjection,
    kDestroyProjection,
    kQueryProjectionName,
    kReadWrite,
    kGetCenterLatLon,
    kSkew,
    kUnSkew,
    kGetSkew,
    kSetSkew,
    kOffsetSkew,
    kLLtoXY,
    kXYtoLL,
    kClone,
    kMinMaxMapXY,
    kSetMapPole,
    kPanTo,
    kCenterMapXY,
    kIsCylindrical,
    kIsConic,
    kIsConformal,
    kIsZoomable,
    kIs3D,
    kNumParams,
    kParamName,
    kGetParamValue,
    kSetParamValue,
    kBackgroundColor,
    kNMapLimitPts,
    kMapLimitPt,
    kScaleMult,
    kScaleError,
    kSlotCount
};

constexpr const char* kNames[] = {"InitProjection",
                                  "DestroyProjection",
                                  "QueryProjectionName",
                                  "ReadWrite",
                                  "GetCenterLatLon",
                                  "Skew",
                                  "UnSkew",
                                  "GetSkew",
                                  "SetSkew",
                                  "OffsetSkew",
                                  "LLtoXY",
                                  "XYtoLL",
                                  "Clone",
                                  "MinMaxMapXY",
                                  "SetMapPole",
                                  "PanTo",
                                  "CenterMapXY",
                                  "IsCylindrical",
                                  "IsConic",
                                  "IsConformal",
                                  "IsZoomable",
                                  "Is3D",
                                  "NumParams",
                                  "ParamName",
                                  "GetParamValue",
                                  "SetParamValue",
                                  "BackgroundColor",
                                  "NMapLimitPts",
                                  "MapLimitPt",
                                  "ScaleMult",
                                  "ScaleError"};
static_assert(std::size(kNames) == kSlotCount && kSlotCount == ExternalProj::kEntryPoints);

constexpr unsigned long kWhite = 0x00FFFFFF;

/// Calls an entry point, or answers for it where the module has none.
template <typename Function, typename Answer, typename... Arguments>
Answer Ask(FARPROC entry, Answer missing, Arguments... arguments)
{
    if (!entry)
    {
        return missing;
    }
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(entry))(arguments...);
}

template <typename Function, typename... Arguments>
void Tell(FARPROC entry, Arguments... arguments)
{
    if (entry)
    {
        reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(entry))(arguments...);
    }
}

/// Asks for a pair of numbers, which must be some.
template <typename Function, typename... Arguments>
bool AskPair(FARPROC entry, double& first, double& second, Arguments... arguments)
{
    double one = 0;
    double two = 0;
    if (Ask<Function>(entry, 0, arguments..., &one, &two) == 0 || !std::isfinite(one) || !std::isfinite(two))
    {
        return false;
    }
    first = one;
    second = two;
    return true;
}

bool AreFinite(double one, double two)
{
    return std::isfinite(one) && std::isfinite(two);
}

const char* TextOrEmpty(const char* text)
{
    return text ? text : "";
}
} // namespace

ExternalProj::ExternalProj(unsigned long handle, int, int) : m_handle(handle)
{
}

ExternalProj::~ExternalProj()
{
    Tell<decltype(::DestroyProjection)>(m_entries[kDestroyProjection], m_handle);
}

const char* ExternalProj::EntryPointName(int index)
{
    return index >= 0 && index < kEntryPoints ? kNames[index] : nullptr;
}

void ExternalProj::Bind(int index, FARPROC entry)
{
    if (index < 0 || index >= kEntryPoints)
    {
        return;
    }
    m_entries[static_cast<std::size_t>(index)] = entry;
    if (entry && !m_module)
    {
        m_module = vorn::HoldModuleOf(reinterpret_cast<const void*>(entry));
    }
}

bool ExternalProj::Init()
{
    return Ask<decltype(::InitProjection)>(m_entries[kInitProjection], 1, m_handle) != 0;
}

const char* ExternalProj::QueryProjectionName() const
{
    return TextOrEmpty(Ask<decltype(::QueryProjectionName)>(m_entries[kQueryProjectionName], ""));
}

bool ExternalProj::ReadWrite(char*& cursor, unsigned long& remaining, bool read)
{
    return Ask<decltype(::ReadWrite)>(m_entries[kReadWrite], 0, m_handle, &cursor, &remaining, read ? 1 : 0) != 0;
}

void ExternalProj::GetCenterLatLon(double& lat, double& lon) const
{
    lat = 0;
    lon = 0;
    Tell<decltype(::GetCenterLatLon)>(m_entries[kGetCenterLatLon], m_handle, &lat, &lon);
}

void ExternalProj::Skew(double& x, double& y) const
{
    Tell<decltype(::Skew)>(m_entries[kSkew], m_handle, &x, &y);
}

void ExternalProj::UnSkew(double& x, double& y) const
{
    Tell<decltype(::UnSkew)>(m_entries[kUnSkew], m_handle, &x, &y);
}

double ExternalProj::GetSkew() const
{
    return Ask<decltype(::GetSkew)>(m_entries[kGetSkew], 0.0, m_handle);
}

void ExternalProj::SetSkew(double degrees)
{
    if (std::isfinite(degrees))
    {
        Tell<decltype(::SetSkew)>(m_entries[kSetSkew], m_handle, degrees);
    }
}

void ExternalProj::OffsetSkew(double degrees)
{
    if (std::isfinite(degrees))
    {
        Tell<decltype(::OffsetSkew)>(m_entries[kOffsetSkew], m_handle, degrees);
    }
}

bool ExternalProj::LLtoXY(double lat, double lon, double& x, double& y) const
{
    return AreFinite(lat, lon) && AskPair<decltype(::LLtoXY)>(m_entries[kLLtoXY], x, y, m_handle, lat, lon);
}

bool ExternalProj::XYtoLL(double x, double y, double& lat, double& lon) const
{
    return AreFinite(x, y) && AskPair<decltype(::XYtoLL)>(m_entries[kXYtoLL], lat, lon, m_handle, x, y);
}

Projection* ExternalProj::Clone() const
{
    // Memory first: without it the module is not asked for a copy that nobody could end.
    std::unique_ptr<ExternalProj> clone(new (std::nothrow) ExternalProj(0));
    const unsigned long handle = clone ? Ask<decltype(::Clone)>(m_entries[kClone], 0UL, m_handle) : 0UL;
    if (handle == 0)
    {
        return nullptr;
    }
    clone->m_handle = handle;
    clone->m_entries = m_entries;
    clone->m_module = m_module;
    return clone.release();
}

void ExternalProj::MinMaxMapXY(double& minX, double& minY, double& maxX, double& maxY) const
{
    minX = minY = maxX = maxY = 0;
    Tell<decltype(::MinMaxMapXY)>(m_entries[kMinMaxMapXY], m_handle, &minX, &minY, &maxX, &maxY);
}

bool ExternalProj::SetMapPole(double lat, double lon)
{
    return AreFinite(lat, lon) && Ask<decltype(::SetMapPole)>(m_entries[kSetMapPole], 0, m_handle, lat, lon) != 0;
}

bool ExternalProj::PanTo(double lat, double lon)
{
    return AreFinite(lat, lon) && Ask<decltype(::PanTo)>(m_entries[kPanTo], 0, m_handle, lat, lon) != 0;
}

bool ExternalProj::CenterMapXY(double& x, double& y) const
{
    return AskPair<decltype(::CenterMapXY)>(m_entries[kCenterMapXY], x, y, m_handle);
}

bool ExternalProj::IsCylindrical() const
{
    return Ask<decltype(::IsCylindrical)>(m_entries[kIsCylindrical], 0, m_handle) != 0;
}

bool ExternalProj::IsConic() const
{
    return Ask<decltype(::IsConic)>(m_entries[kIsConic], 0, m_handle) != 0;
}

bool ExternalProj::IsConformal() const
{
    return Ask<decltype(::IsConformal)>(m_entries[kIsConformal], 0, m_handle) != 0;
}

bool ExternalProj::IsZoomable() const
{
    return Ask<decltype(::IsZoomable)>(m_entries[kIsZoomable], 1, m_handle) != 0;
}

bool ExternalProj::Is3D() const
{
    return Ask<decltype(::Is3D)>(m_entries[kIs3D], 0, m_handle) != 0;
}

int ExternalProj::NumParams() const
{
    return Ask<decltype(::NumParams)>(m_entries[kNumParams], 0, m_handle);
}

const char* ExternalProj::ParamName(int index) const
{
    return TextOrEmpty(Ask<decltype(::ParamName)>(m_entries[kParamName], "", m_handle, index));
}

double ExternalProj::GetParamValue(int index) const
{
    return Ask<decltype(::GetParamValue)>(m_entries[kGetParamValue], 0.0, m_handle, index);
}

bool ExternalProj::SetParamValue(int index, double value)
{
    return std::isfinite(value) &&
           Ask<decltype(::SetParamValue)>(m_entries[kSetParamValue], 0, m_handle, index, value) != 0;
}

unsigned long ExternalProj::BackgroundColor() const
{
    return Ask<decltype(::BackgroundColor)>(m_entries[kBackgroundColor], kWhite, m_handle);
}

int ExternalProj::NMapLimitPts() const
{
    return Ask<decltype(::NMapLimitPts)>(m_entries[kNMapLimitPts], 0, m_handle);
}

bool ExternalProj::MapLimitPt(int index, double& x, double& y) const
{
    return AskPair<decltype(::MapLimitPt)>(m_entries[kMapLimitPt], x, y, m_handle, index);
}

double ExternalProj::ScaleMult(double lat, double lon) const
{
    return Ask<decltype(::ScaleMult)>(m_entries[kScaleMult], 1.0, m_handle, lat, lon);
}

double ExternalProj::ScaleError(double lat, double lon) const
{
    return Ask<decltype(::ScaleError)>(m_entries[kScaleError], 0.0, m_handle, lat, lon);
}
