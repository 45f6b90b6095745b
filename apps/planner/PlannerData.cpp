#include "apps/planner/PlannerData.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace vorn::planner
{

namespace
{

constexpr const char* kSection = "Planner";
constexpr int kLastRouting = 2;

struct TextKey
{
    const char* key;
    std::string Plan::*value;
};
struct NumberKey
{
    const char* key;
    double Plan::*value;
};
struct SwitchKey
{
    const char* key;
    bool Plan::*value;
};

constexpr std::array kTexts = {
    TextKey{"Departure", &Plan::departure},
    TextKey{"Destination", &Plan::destination},
    TextKey{"Via", &Plan::via},
    TextKey{"Remarks", &Plan::remarks},
    TextKey{"Aircraft", &Plan::aircraft},
    TextKey{"Alternate", &Plan::alternate},
    TextKey{"SecondAlternate", &Plan::secondAlternate},
    TextKey{"Header", &Plan::header},
    TextKey{"Footer", &Plan::footer},
    TextKey{"DepartureTime", &Plan::departureTime},
    TextKey{"Notes", &Plan::notes},
};

constexpr std::array kNumbers = {
    NumberKey{"LongestLeg", &Plan::longestLeg},
    NumberKey{"Speed", &Plan::speed},
    NumberKey{"Flow", &Plan::flow},
    NumberKey{"OnBoard", &Plan::onBoard},
    NumberKey{"Taxi", &Plan::taxi},
    NumberKey{"Contingency", &Plan::contingency},
    NumberKey{"Reserve", &Plan::reserve},
    NumberKey{"Copies", &Plan::copies},
};

constexpr std::array kSwitches = {
    SwitchKey{"AvoidProhibited", &Plan::avoidsProhibited},
    SwitchKey{"AvoidRestricted", &Plan::avoidsRestricted},
    SwitchKey{"AvoidClassB", &Plan::avoidsClassB},
    SwitchKey{"AvoidClassC", &Plan::avoidsClassC},
    SwitchKey{"PrintLog", &Plan::printsLog},
    SwitchKey{"PrintLoading", &Plan::printsLoading},
    SwitchKey{"PrintChart", &Plan::printsChart},
    SwitchKey{"PrintChecklist", &Plan::printsChecklist},
    SwitchKey{"Landscape", &Plan::isLandscape},
    SwitchKey{"BlackAndWhite", &Plan::isBlackAndWhite},
};

VornCommonApp& App()
{
    return *VornCommonApp::Inst();
}

std::string KeyOf(const char* name, std::size_t index)
{
    return name + std::to_string(index);
}

/// The shortest text that gives the same number again, in every locale.
std::string Written(double value)
{
    std::array<char, 40> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), end.ptr};
}

double ReadNumber(const std::string& key, double defaultValue)
{
    const CString text = App().GetSettingString(kSection, key.c_str(), "");
    double value = defaultValue;
    const char* const end = text.GetString() + text.GetLength();
    const auto read = std::from_chars(text.GetString(), end, value);
    return read.ec == std::errc() && read.ptr == end && std::isfinite(value) ? value : defaultValue;
}

void WriteNumber(const std::string& key, double value)
{
    App().WriteSettingString(kSection, key.c_str(), Written(value).c_str());
}

template <std::size_t Size>
void ReadNumbers(const char* name, std::array<double, Size>& values)
{
    for (std::size_t i = 0; i < Size; ++i)
        values[i] = ReadNumber(KeyOf(name, i), values[i]);
}

template <std::size_t Size>
void WriteNumbers(const char* name, const std::array<double, Size>& values)
{
    for (std::size_t i = 0; i < Size; ++i)
        WriteNumber(KeyOf(name, i), values[i]);
}

} // namespace

void PlannerData::Load()
{
    // A text that was emptied is stored as a blank: an empty value and none look alike.
    for (const TextKey& text : kTexts)
    {
        const CString stored = App().GetSettingString(kSection, text.key, "");
        if (!stored.IsEmpty())
            plan.*text.value = stored == " " ? std::string() : std::string(stored.GetString());
    }
    for (const NumberKey& number : kNumbers)
        plan.*number.value = ReadNumber(number.key, plan.*number.value);
    for (const SwitchKey& value : kSwitches)
        plan.*value.value = ReadSwitch(value.key, plan.*value.value);
    plan.routing = std::clamp(App().GetSettingInt(kSection, "Routing", plan.routing), 0, kLastRouting);
    ReadNumbers("Weight", plan.weights);
    ReadNumbers("Arm", plan.arms);
    ReadNumbers("Margin", plan.margins);
}

void PlannerData::Store() const
{
    for (const TextKey& text : kTexts)
        App().WriteSettingString(kSection, text.key, (plan.*text.value).empty() ? " " : (plan.*text.value).c_str());
    for (const NumberKey& number : kNumbers)
        WriteNumber(number.key, plan.*number.value);
    for (const SwitchKey& value : kSwitches)
        WriteSwitch(value.key, plan.*value.value);
    App().WriteSettingInt(kSection, "Routing", plan.routing);
    WriteNumbers("Weight", plan.weights);
    WriteNumbers("Arm", plan.arms);
    WriteNumbers("Margin", plan.margins);
    if (changed)
        changed();
}

std::vector<Leg> PlannerData::Legs() const
{
    return LegsOf(RouteOf(plan, places), plan.speed, plan.flow);
}

bool ReadSwitch(const char* key, bool defaultValue)
{
    return App().GetSettingInt(kSection, key, defaultValue ? 1 : 0) != 0;
}

void WriteSwitch(const char* key, bool value)
{
    App().WriteSettingInt(kSection, key, value ? 1 : 0);
}

} // namespace vorn::planner
