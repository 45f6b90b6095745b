#include "apps/sample/model/SampleValues.h"

#include "apps/sample/model/LibraryText.h"

#include <VornCommon.h>

#include <array>
#include <span>

namespace
{

constexpr double kAvgas = 6.0; // pounds a US gallon
constexpr double kJetA = 6.7;

struct Sample
{
    const char* label;
    double value; // in the kind's internal unit
    double density = -1.0;
};

struct Kind
{
    UINT heading; // a text of the library
    UNITTYPE type;
    UNIT internal;
    const char* internalFormat;
    std::span<const Sample> samples;
};

constexpr std::array kDistances = {
    Sample{"Stand to holding point", 0.05},   Sample{"Wake behind a light single", 0.3},
    Sample{"Outer marker to threshold", 4.5}, Sample{"DME arc", 12.0},
    Sample{"A leg before lunch", 112.0},      Sample{"Coast to coast", 2145.0},
    Sample{"Over the pole", 5000.0},
};
constexpr std::array kSpeeds = {
    Sample{"Best glide", 65.0},
    Sample{"Trainer in cruise", 110.0},
    Sample{"Limit below 10,000 ft", 250.0},
    Sample{"Jet in cruise", 480.0},
};
constexpr std::array kShortDistances = {
    Sample{"Decision height", 200.0},
    Sample{"Traffic pattern", 1000.0},
    Sample{"Long runway", 11901.0},
};
constexpr std::array kFuel = {
    Sample{"Avgas, 6.0 lb/gal", 318.0, kAvgas},
    Sample{"Jet fuel, 6.7 lb/gal", 318.0, kJetA},
};
constexpr std::array kMasses = {
    Sample{"Take-off, light single", 2550.0},
};
constexpr std::array kTemperatures = {
    Sample{"Standard at the tropopause", -56.5},
    Sample{"Both scales meet", -40.0},
    Sample{"Standard at sea level", 15.0},
};
constexpr std::array kPressures = {
    Sample{"Standard setting", 29.92},
    Sample{"Deep low", 28.35},
};

// Kind numbers in the order in which a pilot would look for them.
const std::array kKinds = {
    Kind{IDS_VORN_DISTANCE, UNITTYPE_DISTANCE, UNIT_NM, "%.2f %s", kDistances},
    Kind{IDS_VORN_SPEED, UNITTYPE_SPEED, UNIT_KTS, "%.0f %s", kSpeeds},
    Kind{IDS_VORN_SHORT_DISTANCE, UNITTYPE_SHORTDISTANCE, UNIT_FT, "%.0f %s", kShortDistances},
    Kind{IDS_VORN_FUEL, UNITTYPE_FUEL, UNIT_LBS, "%.0f %s", kFuel},
    Kind{IDS_VORN_MASS, UNITTYPE_MASS, UNIT_LBS, "%.0f %s", kMasses},
    Kind{IDS_VORN_TEMPERATURE, UNITTYPE_TEMPERATURE, UNIT_C, "%.1f %s", kTemperatures},
    Kind{IDS_VORN_PRESSURE, UNITTYPE_PRESSURE, UNIT_INHG, "%.2f %s", kPressures},
};

std::string Held(const Kind& kind, const Sample& sample)
{
    CString text;
    text.Format(kind.internalFormat, sample.value, gUnitInfo[kind.internal][1]);
    return text.GetString();
}

std::string InUsersUnit(const Kind& kind, const Sample& sample)
{
    return GetConversionBoy()->Str(sample.value, kind.type, -1, UNIT_AUTO, UNIT_AUTO, sample.density).GetString();
}

} // namespace

vorn::ReportTable SampleValuesTable()
{
    vorn::ReportTable table{"Values in your units",
                            "Choose others in the Units menu; short distances step down by themselves",
                            {{"Quantity"}, {"Held as", vorn::Align::Right}, {"You read", vorn::Align::Right}},
                            {}};
    for (const Kind& kind : kKinds)
    {
        table.AddHeading(LibraryText(kind.heading));
        for (const Sample& sample : kind.samples)
            table.AddRow({sample.label, Held(kind, sample), InUsersUnit(kind, sample)}, vorn::Tone::Plain);
    }
    return table;
}
