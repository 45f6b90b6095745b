#pragma once

#include "config/core/PathKinds.h"

#include <array>
#include <cstdint>

namespace vorn
{

/// Fields of an application's record that folders are built from.
enum class PathField : std::uint8_t
{
    None, ///< an empty text
    Executable,
    Root,
    UserProfile,
    LocalData,
    RoamingData,
    PublicFolder,
    CommonData,
    ProgramFiles,
    Home,
};

/// What a folder text begins with.
enum class PathStart : std::uint8_t
{
    Field, ///< a field of the record
    Row,   ///< the value that an earlier row of the same pass produced
    Known, ///< a composed folder
};

/// A folder text: where it starts and what is appended.
struct PathText
{
    PathStart start = PathStart::Field;
    PathField field = PathField::None;
    int number = 0;             ///< row, or base folder of a composed one
    VornPath beneath = VP_NONE; ///< of a composed folder
    const char* tail = nullptr; ///< appended; of a composed folder its subfolder, null for none
};

/// How a row comes to its value.
enum class PathReading : std::uint8_t
{
    Built,          ///< the text as it is built
    Setting,        ///< a setting of section "Paths", the text being its default
    WeatherSetting, ///< a setting of section "Weather"
    AirportDiagram, ///< the setting, or the first or the second default, by the files that stand there
    Repeat,         ///< the value of the row before
};

/// One row in one layout.
struct PathRule
{
    PathReading reading = PathReading::Built;
    const char* key = nullptr;
    PathText text;
    PathText second; ///< for airport diagrams only
};

/// One defined path in both layouts.
struct DefinedPathRow
{
    DefinedPath path;
    PathRule legacy;
    PathRule user;
};

/// All defined paths, in the order in which a layout is filled: rows 1 to 7 come first because composed folders build
/// on them.
extern const std::array<DefinedPathRow, DP_COUNT> kDefinedPaths;

} // namespace vorn
