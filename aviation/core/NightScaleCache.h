#pragma once

#include "aviation/core/NightColors.h"

namespace vorn
{

/// The number that a stored scale begins with, blanks before it skipped, with a point for the decimals whatever the
/// locale. 0 for a text without one and for numbers too large or too small to hold.
double NightScaleOf(const char* stored);

/// The night-vision scales as they stand in the settings, read once. A negative red scale is taken for not yet read, so
/// that a stored one is read again by each call.
class NightScaleCache
{
public:
    static constexpr const char* kSection = "Colors";
    static constexpr const char* kRedKey = "NVRedScale";
    static constexpr const char* kGreenKey = "NVGreenScale";
    static constexpr const char* kBlueKey = "NVBlueScale";
    static constexpr const char* kDefault = "0.4";

    /// Whether the settings were read and gave a red scale that is not negative.
    bool IsRead() const
    {
        return m_isRead;
    }

    /// The scales. If they are not read yet, read(section, key, otherwise) gives each one's text, and then
    /// write(section, key, text) stores each unchanged, so that the defaults become settings.
    template <typename Read, typename Write>
    const NightScales& Get(Read&& read, Write&& write)
    {
        if (!IsRead())
        {
            Load(read, write);
        }
        return m_scales;
    }

    /// What the scales that Get() gave last make of colours.
    const NightTables& Tables() const
    {
        return m_tables;
    }

private:
    /// Apart from the question whether it is needed, which is asked for every colour.
    template <typename Read, typename Write>
    [[gnu::noinline]] void Load(Read& read, Write& write)
    {
        const auto red = read(kSection, kRedKey, kDefault);
        const auto green = read(kSection, kGreenKey, kDefault);
        const auto blue = read(kSection, kBlueKey, kDefault);
        write(kSection, kRedKey, red);
        write(kSection, kGreenKey, green);
        write(kSection, kBlueKey, blue);
        m_scales = {NightScaleOf(red), NightScaleOf(green), NightScaleOf(blue)};
        m_tables = NightTables(m_scales);
        m_isRead = !(m_scales.red < 0);
    }

    bool m_isRead = false;
    NightScales m_scales = {-1, -1, -1};
    NightTables m_tables;
};

} // namespace vorn
