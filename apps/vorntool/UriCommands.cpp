#include "apps/vorntool/Commands.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/Columns.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/Utf8.h"

namespace vorn::tool
{

namespace
{

std::string Shown(const char* part)
{
    return part ? OneLine(Utf8FromLibrary(part)) : std::string();
}

std::string TextOf(const URI& uri)
{
    return LinedUp({{"User", Shown(uri.mpUser)},
                    {"Password", Shown(uri.mpPassword)},
                    {"Host", Shown(uri.mpHost)},
                    {"Port", uri.mPort == 0 ? std::string() : std::to_string(uri.mPort)}});
}

JsonWriter& WritePart(JsonWriter& json, const char* name, const char* part)
{
    json.Name(name);
    return part ? json.Text(Utf8FromLibrary(part)) : json.Null();
}

std::string JsonOf(const std::string& text, const URI& uri)
{
    JsonWriter json;
    json.BeginObject().Name("text").Text(text);
    WritePart(json, "user", uri.mpUser);
    WritePart(json, "password", uri.mpPassword);
    WritePart(json, "host", uri.mpHost).Name("port").Whole(uri.mPort);
    return json.EndObject().Line();
}

ExitStatus Parse(const Command& self, const Invocation& call, Output& output)
{
    const std::string& word = call.values[0];
    const std::optional<CString> text = LibraryFromUtf8(word);
    URI uri;
    if (!text || !uri.Parse(*text))
    {
        ReportError(output, self,
                    !text        ? Quoted(word) + " has characters that addresses cannot hold"
                    : uri.mpHost ? "the port of " + Quoted(word) + " is no number from 0 to 65535"
                                 : Quoted(word) + " names no host");
        return ExitStatus::Refused;
    }
    output.text = call.Has("json") ? JsonOf(word, uri) : TextOf(uri);
    return ExitStatus::Done;
}

constexpr Command kCommands[] = {
    {"uri",
     "parse",
     "TEXT",
     "Take an address apart as the applications do",
     "TEXT is [scheme://][user[:password]@]host[:port][/path]; scheme and path are passed\n"
     "over, nothing is decoded. Brackets keep an address with colons together: [::1]:80.",
     1,
     1,
     {},
     Parse},
};

} // namespace

const CommandGroup& UriCommands()
{
    static const CommandGroup group = {"uri", "Addresses of hosts in the network.", kCommands};
    return group;
}

} // namespace vorn::tool
