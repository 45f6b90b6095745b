#include "aviation/core/Altitude.h"

#include "aviation/core/NumberText.h"

#include <array>

namespace vorn
{

namespace
{

constexpr int kFirstSpecialAltitude = -5000;
constexpr std::array<std::string_view, 6> kSpecialAltitudes = {"Unknown", "Unlimited", "MSL",
                                                               "Ground",  "By NOTAM",  "Not Established"};

} // namespace

std::string_view SpecialAltitudeText(int feet)
{
    const auto code = static_cast<unsigned>(feet) - static_cast<unsigned>(kFirstSpecialAltitude);
    return code < kSpecialAltitudes.size() ? kSpecialAltitudes[code] : std::string_view();
}

std::string FlightLevelText(int feet)
{
    CompactText text;
    text.Append("FL");
    AppendPadded(text, feet / 100, 3);
    return text.Text();
}

} // namespace vorn
