#include "config/core/PathCompose.h"

namespace vorn
{

namespace
{

constexpr const char* kPathsSection = "Paths";
constexpr const char* kWeatherSection = "Weather";

/// One pass over the table, with the values found so far.
class LayoutPass
{
public:
    explicit LayoutPass(PathSource& source) : m_source(source)
    {
    }

    /// The value of a row; a rule to repeat gives the row before.
    const std::string& ValueOf(DefinedPath path, const PathRule& rule)
    {
        std::string& value = m_values[static_cast<std::size_t>(path)];
        value = rule.reading == PathReading::Repeat ? m_values[static_cast<std::size_t>(path) - 1] : Read(rule);
        return value;
    }

private:
    std::string Read(const PathRule& rule)
    {
        switch (rule.reading)
        {
        case PathReading::Setting:
            return m_source.Setting(rule.key, Text(rule.text), kPathsSection);
        case PathReading::WeatherSetting:
            return m_source.Setting(rule.key, Text(rule.text), kWeatherSection);
        case PathReading::AirportDiagram:
            return m_source.AirportDiagrams(rule.key, Text(rule.text), Text(rule.second));
        default:
            return Text(rule.text);
        }
    }

    std::string Text(const PathText& text)
    {
        if (text.start == PathStart::Known)
            return m_source.Known(static_cast<KnownPath>(text.number), text.beneath, text.tail);
        std::string folder =
            text.start == PathStart::Row ? m_values[static_cast<std::size_t>(text.number)] : m_source.Field(text.field);
        if (text.tail != nullptr)
            folder += text.tail;
        return folder;
    }

    PathSource& m_source;
    std::array<std::string, DP_COUNT> m_values;
};

} // namespace

void FillLayout(PathCfgVer layout, PathSource& source)
{
    LayoutPass pass(source);
    for (const DefinedPathRow& row : kDefinedPaths)
        source.Add(row.path, pass.ValueOf(row.path, layout == PCV_LEGACY ? row.legacy : row.user));
}

} // namespace vorn
