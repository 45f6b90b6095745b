#include "apps/vorntool/SettingsList.h"

#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/Utf8.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

const char* JsonNameOf(SettingSource source)
{
    switch (source)
    {
    case SettingSource::UserRegistry:
        return "registry";
    case SettingSource::MachineRegistry:
        return "machine registry";
    case SettingSource::IniFile:
        break;
    }
    return "ini";
}

void Write(JsonWriter& json, const CString& application, const StoredSetting& setting)
{
    json.BeginObject().Name("app").Text(Utf8FromLibrary(application.GetString()));
    json.Name("section").Text(Utf8FromLibrary(setting.section)).Name("key").Text(Utf8FromLibrary(setting.key));
    json.Name("type").Text(setting.TypeName()).Name("source").Text(JsonNameOf(setting.source)).Name("value");
    const bool isNumber = std::string(setting.TypeName()) == "number";
    isNumber ? json.Whole(setting.Number()) : json.Text(setting.Text());
    json.Name("readable").Flag(setting.IsReadable()).EndObject();
}

std::string Padded(const std::string& text, std::size_t width)
{
    const std::size_t count = CharacterCount(text);
    return text + std::string(count < width ? width - count : 0, ' ');
}

std::size_t WidestKey(const std::vector<StoredSetting>& settings)
{
    std::size_t width = 0;
    for (const StoredSetting& setting : settings)
    {
        width = std::max(width, CharacterCount(OneLine(Utf8FromLibrary(setting.key))));
    }
    return width;
}

std::size_t WidestPlace(const std::vector<StoredSetting>& settings)
{
    std::size_t width = 0;
    for (const StoredSetting& setting : settings)
    {
        width = std::max(width, std::string(NameOf(setting.source)).size());
    }
    return width;
}

} // namespace

std::string JsonOf(const CString& application, const StoredSetting& setting)
{
    JsonWriter json;
    Write(json, application, setting);
    return json.Line();
}

std::string JsonOf(const CString& application, const std::vector<StoredSetting>& settings)
{
    JsonWriter json;
    json.BeginArray();
    for (const StoredSetting& setting : settings)
    {
        Write(json, application, setting);
    }
    return json.EndArray().Line();
}

std::string JsonOfDeleted(const CString& application, const CString& section, const CString& key)
{
    JsonWriter json;
    json.BeginObject().Name("app").Text(Utf8FromLibrary(application.GetString()));
    json.Name("section").Text(Utf8FromLibrary(section.GetString()));
    if (!key.IsEmpty())
    {
        json.Name("key").Text(Utf8FromLibrary(key.GetString()));
    }
    return json.Name("deleted").Flag(true).EndObject().Line();
}

std::string TextOf(const std::vector<StoredSetting>& settings)
{
    const std::size_t keyWidth = WidestKey(settings);
    const std::size_t placeWidth = WidestPlace(settings);
    std::string text;
    const std::string* section = nullptr;
    for (const StoredSetting& setting : settings)
    {
        if (section == nullptr || *section != setting.section)
        {
            text += (section == nullptr ? "[" : "\n[") + OneLine(Utf8FromLibrary(setting.section)) + "]\n";
            section = &setting.section;
        }
        const std::string key = OneLine(Utf8FromLibrary(setting.key));
        text += "  " + Padded(key, keyWidth) + "  " + Padded(setting.TypeName(), 6) + "  " +
                Padded(NameOf(setting.source), placeWidth) + "  " + OneLine(setting.Text()) +
                (setting.IsReadable() ? "\n" : "  (too long for the applications)\n");
    }
    return text;
}

} // namespace vorn::tool
