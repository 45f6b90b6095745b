#include "config/DefinedPathSetting.h"

#include "config/core/DefinedPaths.h"

namespace
{

const char* SectionOf(vorn::PathReading reading)
{
    switch (reading)
    {
    case vorn::PathReading::Setting:
    case vorn::PathReading::AirportDiagram:
        return "Paths";
    case vorn::PathReading::WeatherSetting:
        return "Weather";
    case vorn::PathReading::Built:
    case vorn::PathReading::Repeat:
        break;
    }
    return nullptr;
}

} // namespace

DefinedPathSetting GetDefinedPathSetting(DefinedPath path, PathCfgVer layout)
{
    if (path < 0 || path >= DP_COUNT || (layout != PCV_LEGACY && layout != PCV_VISTA))
        return {nullptr, nullptr};
    const vorn::DefinedPathRow& row = vorn::kDefinedPaths[static_cast<std::size_t>(path)];
    const vorn::PathRule& rule = layout == PCV_LEGACY ? row.legacy : row.user;
    const char* const section = SectionOf(rule.reading);
    return {section, section == nullptr ? nullptr : rule.key};
}
