#include "apps/vorntool/Applications.h"
#include "apps/vorntool/Commands.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/ProxyWords.h"
#include "apps/vorntool/core/ToolNumbers.h"
#include "apps/vorntool/core/Utf8.h"

#include <memory>

namespace vorn::tool
{

namespace
{

ExitStatus Fail(const Command& self, Output& output, ExitStatus status, const std::string& reason)
{
    ReportError(output, self, reason);
    return status;
}

std::string Utf8(const char* part)
{
    return Utf8FromLibrary(part ? part : "");
}

std::string AddressText(const ProxyInfo& proxy)
{
    std::string text = Utf8(proxy.mAddress.mpHost);
    if (proxy.mAddress.mPort != 0)
    {
        text.append(":").append(std::to_string(proxy.mAddress.mPort));
    }
    return proxy.mAddress.mpHost ? text : "<no host>";
}

std::string AccountText(const ProxyInfo& proxy)
{
    const bool hasAccount = proxy.mAddress.mpUser || proxy.mAddress.mpPassword;
    const std::string user = hasAccount ? "  " + OneLine(Utf8(proxy.mAddress.mpUser)) : "";
    return user + (proxy.mAddress.mpPassword ? " (with password)" : "");
}

std::string TypeText(int type)
{
    return NameOfProxyType(type).value_or("type " + std::to_string(type));
}

std::string PortsText(const ProxyInfo& proxy)
{
    return TextOf(ProxyPorts{proxy.mFirstPort, proxy.mLastPort});
}

std::string Padded(std::string text, std::size_t width)
{
    const std::size_t count = CharacterCount(text);
    return text.append(count < width ? width - count : 1, ' ');
}

std::string LineOf(int number, const ProxyInfo& proxy)
{
    constexpr std::size_t widths[] = {4, 5, 8, 36};
    return Padded(std::to_string(number), widths[0]) + Padded(proxy.mEnabled ? "on" : "off", widths[1]) +
           Padded(TypeText(proxy.mType), widths[2]) + Padded(OneLine(AddressText(proxy)), widths[3]) +
           PortsText(proxy) + AccountText(proxy) + "\n";
}

JsonWriter& WriteText(JsonWriter& json, const char* name, const char* part)
{
    json.Name(name);
    return part ? json.Text(Utf8(part)) : json.Null();
}

// Everything but the password.
void WriteProxy(JsonWriter& json, int number, const ProxyInfo& proxy)
{
    const std::optional<std::string> type = NameOfProxyType(proxy.mType);
    json.BeginObject().Name("number").Whole(number).Name("enabled").Flag(proxy.mEnabled).Name("type");
    type ? json.Text(*type) : json.Null();
    json.Name("code").Whole(proxy.mType);
    WriteText(json, "host", proxy.mAddress.mpHost).Name("port").Whole(proxy.mAddress.mPort);
    json.Name("firstPort").Whole(proxy.mFirstPort).Name("lastPort").Whole(proxy.mLastPort);
    WriteText(json, "user", proxy.mAddress.mpUser).Name("hasPassword").Flag(proxy.mAddress.mpPassword != nullptr);
    json.EndObject();
}

// The stored proxies, which every application of the family shares.
void LoadStored(const Command& self, const Invocation& call, Output& output, ProxySet& proxies)
{
    ActAsApplication(self, call, output);
    LoadProxies(proxies);
}

ExitStatus List(const Command& self, const Invocation& call, Output& output)
{
    ProxySet proxies;
    LoadStored(self, call, output, proxies);
    if (proxies.GetCount() == 0)
    {
        return Fail(self, output, ExitStatus::Refused, "there are no proxies");
    }
    JsonWriter json;
    json.BeginArray();
    std::string lines;
    for (int i = 0; i < proxies.GetCount(); ++i)
    {
        WriteProxy(json, i + 1, *proxies.GetAt(i));
        lines += LineOf(i + 1, *proxies.GetAt(i));
    }
    output.text = call.Has("json") ? json.EndArray().Line() : lines;
    return ExitStatus::Done;
}

// Nothing, and a reason, for words that describe no proxy.
bool TakeAddress(const Invocation& call, ProxyInfo& proxy, std::string& reason)
{
    const std::string& word = call.values[0];
    const std::optional<CString> address = LibraryFromUtf8(word);
    if (!address || !proxy.mAddress.Parse(*address))
    {
        reason = Quoted(word) + " is no address of a host; 'vorntool proxy add --help' says what is one";
        return false;
    }
    return true;
}

bool TakeType(const Invocation& call, ProxyInfo& proxy, std::string& reason)
{
    const std::optional<std::string_view> scheme = SchemeOf(call.values[0]);
    const std::string word = call.ValueOf("type", scheme.value_or("http"));
    const std::optional<int> type = ProxyTypeNamed(word);
    proxy.mType = type.value_or(proxy.mType);
    reason = type ? "" : Quoted(word) + " is no type of proxy: http, tunnel, socks4 or socks5";
    return type.has_value();
}

bool TakePorts(const Invocation& call, ProxyInfo& proxy, std::string& reason)
{
    if (!call.Has("ports"))
    {
        return true;
    }
    const std::string word = call.ValueOf("ports", "");
    const std::optional<ProxyPorts> ports = ParseProxyPorts(word);
    if (!ports)
    {
        reason = Quoted(word) + " is neither a port nor a range of ports from 0 to 65535";
        return false;
    }
    proxy.mFirstPort = ports->first;
    proxy.mLastPort = ports->last;
    return true;
}

bool TakeAccount(const Invocation& call, const char* option, char*& part, std::string& reason)
{
    const std::optional<CString> text = LibraryFromUtf8(call.ValueOf(option, ""));
    if (call.Has(option) && text)
    {
        URI::SetString(part, *text);
    }
    reason = text ? "" : std::string("--") + option + " has characters that settings cannot hold";
    return text.has_value();
}

bool TakeProxy(const Invocation& call, ProxyInfo& proxy, std::string& reason)
{
    const bool taken = TakeType(call, proxy, reason) && TakeAddress(call, proxy, reason) &&
                       TakePorts(call, proxy, reason) && TakeAccount(call, "user", proxy.mAddress.mpUser, reason) &&
                       TakeAccount(call, "password", proxy.mAddress.mpPassword, reason);
    if (proxy.mAddress.mPort == 0)
    {
        proxy.mAddress.mPort = ProxyInfo::UsualPort(proxy.mType);
    }
    proxy.mEnabled = !call.Has("off");
    return taken;
}

ExitStatus Add(const Command& self, const Invocation& call, Output& output)
{
    auto proxy = std::make_unique<ProxyInfo>();
    std::string reason;
    if (!TakeProxy(call, *proxy, reason))
    {
        return Fail(self, output, ExitStatus::WrongUse, reason);
    }
    ProxySet proxies;
    LoadStored(self, call, output, proxies);
    const int number = proxies.GetCount() + 1;
    JsonWriter json;
    WriteProxy(json, number, *proxy);
    if (!proxies.AddProxy(proxy.get()))
    {
        return Fail(self, output, ExitStatus::Refused, "there is no memory for one more");
    }
    static_cast<void>(proxy.release()); // the set's now
    if (!StoreProxies(proxies))
    {
        proxies.DeleteProxy(proxies.GetAt(number - 1));
        StoreProxies(proxies);
        return Fail(self, output, ExitStatus::Refused,
                    "the registry refused it, or a text is longer than 1,023 characters");
    }
    output.text = call.Has("json") ? json.Line() : std::string();
    return ExitStatus::Done;
}

// The index of the one proxy that a number or an address names, or -1 and a reason.
int IndexNamed(const ProxySet& proxies, const std::string& word, std::string& reason)
{
    const std::optional<std::int64_t> number = ParseWhole(word);
    int found = number && *number >= 1 && *number <= proxies.GetCount() ? static_cast<int>(*number) - 1 : -1;
    int count = found < 0 ? 0 : 1;
    for (int i = 0; !number && i < proxies.GetCount(); ++i)
    {
        if (AddressText(*proxies.GetAt(i)) == word)
        {
            found = i;
            ++count;
        }
    }
    reason = count == 0 ? "there is no proxy " + Quoted(word)
             : count > 1
                 ? "there are " + std::to_string(count) + " proxies " + Quoted(word) + "; say which by its number"
                 : "";
    return count == 1 ? found : -1;
}

ExitStatus Delete(const Command& self, const Invocation& call, Output& output)
{
    ProxySet proxies;
    LoadStored(self, call, output, proxies);
    std::string reason;
    const int index = IndexNamed(proxies, call.values[0], reason);
    if (index < 0)
    {
        return Fail(self, output, ExitStatus::Refused, reason);
    }
    JsonWriter json;
    WriteProxy(json, index + 1, *proxies.GetAt(index));
    proxies.DeleteProxy(proxies.GetAt(index));
    if (!StoreProxies(proxies))
    {
        return Fail(self, output, ExitStatus::Refused, "the registry refused it");
    }
    output.text = call.Has("json") ? json.Line() : std::string();
    return ExitStatus::Done;
}

constexpr Option kAddOptions[] = {
    {"type", "TYPE", "http (if not given), tunnel, socks4 or socks5"},
    {"ports", "PORTS", "the destination ports it serves: 443, 8000-8080; all if not given"},
    {"user", "NAME", "the account's name"},
    {"password", "TEXT", "the account's password"},
    {"off", nullptr, "not in use for now"}};

constexpr Command kCommands[] = {
    {"proxy",
     "list",
     "",
     "List the proxies that the applications share, in the order of trying",
     "Printed are number, whether it is in use, type, host and port, the destination\n"
     "ports it serves, and the account's name. Passwords are never printed.",
     0,
     0,
     {},
     List},
    {"proxy", "add", "ADDRESS", "Add a proxy behind the others",
     "ADDRESS is a host with a port, if need be with type and account before it:\n"
     "  proxy.example.com:3128\n"
     "  socks5://joe:secret@[2001:db8::1]:1080\n"
     "Without a port 8080 is taken, for the two SOCKS types 1080. The password is stored\n"
     "encrypted for this user. An ADDRESS that begins with two hyphens goes after \"--\".",
     1, 1, kAddOptions, Add},
    {"proxy",
     "delete",
     "NUMBER|ADDRESS",
     "Delete a proxy",
     "ADDRESS is host and port as 'proxy list' prints them.",
     1,
     1,
     {},
     Delete},
};

} // namespace

const CommandGroup& ProxyCommands()
{
    static const CommandGroup group = {"proxy", "Proxies through which the applications reach the network.", kCommands};
    return group;
}

} // namespace vorn::tool
