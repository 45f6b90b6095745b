#include "apps/vorntool/Applications.h"
#include "apps/vorntool/Commands.h"
#include "apps/vorntool/SettingsList.h"
#include "apps/vorntool/SettingsView.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/ToolNumbers.h"

namespace vorn::tool
{

namespace
{

constexpr std::size_t kLongestText = 1023;

// What every command on settings starts from.
struct Place
{
    CString application;
    CString section;
    CString key; ///< empty where the call names a section only
};

std::string Named(const Place& place)
{
    const std::string section = "section " + Quoted(Utf8FromLibrary(place.section.GetString())) + " of " +
                                Utf8FromLibrary(place.application.GetString());
    return place.key.IsEmpty() ? section : Quoted(Utf8FromLibrary(place.key.GetString())) + " in " + section;
}

// A section or key: never empty, or it would mean the whole application or a value without a name.
std::optional<CString> TakeName(const Command& self, const Invocation& call, std::size_t index, const char* what,
                                Output& output)
{
    const std::string& given = call.values[index];
    const std::optional<CString> name = LibraryFromUtf8(given);
    const bool emptySection = index == 0 && given.find_first_not_of('\\') == std::string::npos;
    if (!name || given.empty() || emptySection)
    {
        ReportError(output, self, Quoted(given) + " cannot be the name of a " + what);
        return std::nullopt;
    }
    return name;
}

std::optional<Place> TakePlace(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<CString> application = ActAsApplication(self, call, output);
    if (!application)
    {
        return std::nullopt;
    }
    const std::optional<CString> section = TakeName(self, call, 0, "section", output);
    if (!section || call.values.size() == 1)
    {
        return section ? std::optional(Place{*application, *section, CString()}) : std::nullopt;
    }
    const std::optional<CString> key = TakeName(self, call, 1, "key", output);
    return key ? std::optional(Place{*application, *section, *key}) : std::nullopt;
}

ExitStatus Refuse(const Command& self, Output& output, const std::string& reason)
{
    ReportError(output, self, reason);
    return ExitStatus::Refused;
}

ExitStatus Get(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<Place> place = TakePlace(self, call, output);
    if (!place)
    {
        return ExitStatus::WrongUse;
    }
    const std::optional<StoredSetting> found = SettingsView(place->application).Find(place->section, place->key);
    if (!found)
    {
        return Refuse(self, output, "there is no value " + Named(*place));
    }
    output.text = call.Has("json") ? JsonOf(place->application, *found) : found->Text() + "\n";
    return ExitStatus::Done;
}

// Stored in the type asked for, or the reason why not.
std::optional<std::string> Store(const Place& place, const Invocation& call)
{
    const std::string& given = call.values[2];
    const int index = SettingsIndexOf(place.application);
    if (call.Has("int"))
    {
        const BOOL stored =
            AppRegMgr::Instance()->WriteVornInt(place.section, place.key, *ParseSettingNumber(given), index);
        return stored != FALSE ? std::nullopt : std::optional<std::string>("the registry refused it");
    }
    const std::optional<CString> text = LibraryFromUtf8(given);
    if (!text)
    {
        return "the text has characters that settings cannot hold";
    }
    if (static_cast<std::size_t>(text->GetLength()) > kLongestText)
    {
        return "the text is longer than 1,023 characters, which no application could read";
    }
    const BOOL stored = AppRegMgr::Instance()->WriteVornString(place.section, place.key, *text, index);
    return stored != FALSE ? std::nullopt : std::optional<std::string>("the registry refused it");
}

ExitStatus Set(const Command& self, const Invocation& call, Output& output)
{
    if (call.Has("int") && !ParseSettingNumber(call.values[2]))
    {
        ReportError(output, self, Quoted(call.values[2]) + " is no whole number of 32 bits");
        return ExitStatus::WrongUse;
    }
    const std::optional<Place> place = TakePlace(self, call, output);
    if (!place)
    {
        return ExitStatus::WrongUse;
    }
    if (const std::optional<std::string> reason = Store(*place, call))
    {
        return Refuse(self, output, Named(*place) + " was not set: " + *reason);
    }
    if (call.Has("json"))
    {
        const auto stored = SettingsView(place->application).Find(place->section, place->key);
        output.text = stored ? JsonOf(place->application, *stored) : std::string();
    }
    return ExitStatus::Done;
}

ExitStatus DeleteValue(const Command& self, const Place& place, Output& output)
{
    if (AppRegMgr::Instance()->WriteVornString(place.section, place.key, nullptr, SettingsIndexOf(place.application)) !=
        FALSE)
    {
        return ExitStatus::Done;
    }
    const auto left = SettingsView(place.application).Find(place.section, place.key);
    const bool inIniFile = left && left->source == SettingSource::IniFile;
    return Refuse(self, output,
                  !left       ? "there is no value " + Named(place)
                  : inIniFile ? Named(place) + " stands in the INI file, which is never changed"
                              : Named(place) + " was not deleted: the registry refused it");
}

ExitStatus DeleteSection(const Command& self, const Place& place, Output& output)
{
    if (AppRegMgr::Instance()->WriteVornString(place.section, nullptr, nullptr, SettingsIndexOf(place.application)) !=
        FALSE)
    {
        return ExitStatus::Done;
    }
    return Refuse(self, output, "the registry has no " + Named(place) + ", or it has sections below it");
}

ExitStatus Delete(const Command& self, const Invocation& call, Output& output)
{
    const bool wholeSection = call.values.size() == 1;
    if (wholeSection != call.Has("section"))
    {
        ReportError(output, self,
                    wholeSection ? "KEY is missing; to delete a whole section, say --section"
                                 : "--section goes without a KEY");
        return ExitStatus::WrongUse;
    }
    const std::optional<Place> place = TakePlace(self, call, output);
    if (!place)
    {
        return ExitStatus::WrongUse;
    }
    const ExitStatus status = wholeSection ? DeleteSection(self, *place, output) : DeleteValue(self, *place, output);
    if (status == ExitStatus::Done && call.Has("json"))
    {
        output.text = JsonOfDeleted(place->application, place->section, place->key);
    }
    return status;
}

ExitStatus List(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<CString> application = ActAsApplication(self, call, output);
    const std::optional<CString> section =
        application && !call.values.empty() ? TakeName(self, call, 0, "section", output) : std::nullopt;
    if (!application || (!call.values.empty() && !section))
    {
        return ExitStatus::WrongUse;
    }
    std::vector<StoredSetting> settings = SettingsView(*application).All();
    if (section)
    {
        std::erase_if(settings,
                      [&](const StoredSetting& each)
                      {
                          return section->CompareNoCase(each.section.c_str()) != 0;
                      });
    }
    if (settings.empty())
    {
        const std::string whose = Utf8FromLibrary(application->GetString());
        return Refuse(self, output,
                      section ? "there is no value in " + Named({*application, *section, CString()})
                              : "there are no settings of " + whose);
    }
    output.text = call.Has("json") ? JsonOf(*application, settings) : TextOf(settings);
    return ExitStatus::Done;
}

ExitStatus Apps(const Command& self, const Invocation& call, Output& output)
{
    const std::vector<std::string> names = SettingsView::Applications();
    if (names.empty())
    {
        return Refuse(self, output, "there are no settings of any application");
    }
    JsonWriter json;
    json.BeginArray();
    for (const std::string& name : names)
    {
        json.Text(Utf8FromLibrary(name));
        output.text += call.Has("json") ? "" : Utf8FromLibrary(name) + "\n";
    }
    output.text += call.Has("json") ? json.EndArray().Line() : "";
    return ExitStatus::Done;
}

constexpr Option kPlaceOptions[] = {kAppOption};
constexpr Option kSetOptions[] = {kAppOption, {"int", nullptr, "store a number instead of a text"}};
constexpr Option kDeleteOptions[] = {kAppOption, {"section", nullptr, "delete the whole section, without a KEY"}};

constexpr Command kCommands[] = {
    {"settings", "get", "SECTION KEY", "Print a setting",
     "A number is printed in decimal digits, a text as it is, any other value as\n"
     "hexadecimal digits. Where the registry has no value, the application's INI file\n"
     "answers, as it does for the application itself.",
     2, 2, kPlaceOptions, Get},
    {"settings", "set", "SECTION KEY VALUE", "Store a setting in the registry",
     "The value is stored as text of at most 1,023 characters, with --int as a number\n"
     "from -2147483648 to 4294967295. A value that begins with two hyphens goes after\n"
     "\"--\".",
     3, 3, kSetOptions, Set},
    {"settings", "delete", "SECTION [KEY]", "Delete a setting, or a section, from the registry",
     "A value that only the INI file has cannot be deleted.", 1, 2, kDeleteOptions, Delete},
    {"settings", "list", "[SECTION]", "List the settings of an application, and where each is stored",
     "Each value stands with its type and its place: the user's registry, the\n"
     "machine's registry (settings shared by all applications) or the INI file.\n"
     "Values too long for the applications to read are marked.",
     0, 1, kPlaceOptions, List},
    {"settings", "apps", "", "List the names that settings are kept under", "", 0, 0, {}, Apps},
};

} // namespace

const CommandGroup& SettingsCommands()
{
    static const CommandGroup group = {"settings", "Settings of the applications, in the registry and in INI files.",
                                       kCommands};
    return group;
}

} // namespace vorn::tool
