#include "apps/vorntool/Commands.h"
#include "apps/vorntool/RegistryReport.h"
#include "apps/vorntool/RegistryStore.h"
#include "apps/vorntool/SystemErrors.h"
#include "apps/vorntool/TextConversion.h"

namespace vorn::tool
{

namespace
{

std::string Named(const KeyAddress& address)
{
    return Quoted(Utf8FromLibrary(address.Text()));
}

std::string NamedValue(const std::string& name)
{
    return name.empty() ? "default value" : std::string("value ").append(Quoted(Utf8FromLibrary(name)));
}

ExitStatus Refuse(const Command& self, Output& output, const std::string& reason)
{
    ReportError(output, self, reason);
    return ExitStatus::Refused;
}

ExitStatus WrongUse(const Command& self, Output& output, const std::string& reason)
{
    ReportError(output, self, reason);
    return ExitStatus::WrongUse;
}

// A key that is not there is the common mistake; other codes speak for themselves.
std::string WhyNoKey(const KeyAddress& address, DWORD code)
{
    const std::string what = code == ERROR_FILE_NOT_FOUND ? "there is no key " : "no access to key ";
    return what + Named(address) + " (" + SystemError(code) + ")";
}

std::optional<KeyAddress> TakeKey(const Command& self, const Invocation& call, Output& output)
{
    const std::string& given = call.values[0];
    const std::optional<CString> text = LibraryFromUtf8(given);
    const std::optional<KeyAddress> address = text ? ParseKeyAddress(text->GetString()) : std::nullopt;
    if (!address)
    {
        ReportError(output, self,
                    Quoted(given) + (text ? " is no key: it begins with a root (HKCU, HKLM, HKCR, HKU or HKCC) and has "
                                            "one backslash between names"
                                          : " cannot be the name of a key"));
    }
    return address;
}

std::optional<std::string> TakeName(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<CString> name = LibraryFromUtf8(call.values[1]);
    if (!name)
    {
        ReportError(output, self, Quoted(call.values[1]) + " cannot be the name of a value");
        return std::nullopt;
    }
    return std::string(name->GetString());
}

// --- list ----------------------------------------------------------------------------------------------------------

// A key that cannot be read is reported, the others are listed.
void ReadKeys(const KeyAddress& address, bool recursive, const Command& self, Output& output,
              std::vector<RegistryKeyContent>& keys)
{
    RegistryKeyContent content;
    const DWORD code = ReadRegistryKey(address, content);
    if (code != ERROR_SUCCESS)
    {
        ReportError(output, self, WhyNoKey(address, code));
        return;
    }
    const std::vector<std::string> below = recursive ? content.subkeys : std::vector<std::string>();
    keys.push_back(std::move(content));
    for (const std::string& name : below)
    {
        ReadKeys(address.Below(name), recursive, self, output, keys);
    }
}

std::string TextOfAll(const std::vector<RegistryKeyContent>& keys)
{
    std::string text;
    for (const RegistryKeyContent& key : keys)
    {
        text.append(text.empty() ? "" : "\n").append(TextOf(key));
    }
    return text;
}

std::string JsonOfAll(const std::vector<RegistryKeyContent>& keys)
{
    JsonWriter json;
    json.BeginArray();
    for (const RegistryKeyContent& key : keys)
    {
        Write(json, key);
    }
    return json.EndArray().Line();
}

ExitStatus List(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<KeyAddress> address = TakeKey(self, call, output);
    if (!address)
    {
        return ExitStatus::WrongUse;
    }
    std::vector<RegistryKeyContent> keys;
    ReadKeys(*address, call.Has("recursive"), self, output, keys);
    if (!keys.empty())
    {
        output.text = call.Has("json") ? JsonOfAll(keys) : TextOfAll(keys);
    }
    return output.errors.empty() ? ExitStatus::Done : ExitStatus::Refused;
}

// --- get -----------------------------------------------------------------------------------------------------------

ExitStatus Print(const Command& self, const Invocation& call, const KeyAddress& address, const std::string& name,
                 Output& output)
{
    Registry key;
    if (!OpenRegistryKey(key, address, Registry::PermissionRead))
    {
        return Refuse(self, output, WhyNoKey(address, key.GetLastError()));
    }
    RegistryValue value;
    if (!ReadStoredValue(key, name, value))
    {
        const std::string what = key.GetLastError() == ERROR_FILE_NOT_FOUND ? "there is no " : "cannot read ";
        return Refuse(self, output,
                      what + NamedValue(name) + " in " + Named(address) + " (" + SystemError(key.GetLastError()) + ")");
    }
    output.text = call.Has("json") ? JsonOf(address, value) : ValueText(value);
    return ExitStatus::Done;
}

ExitStatus Get(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<KeyAddress> address = TakeKey(self, call, output);
    const std::optional<std::string> name = address ? TakeName(self, call, output) : std::nullopt;
    return name ? Print(self, call, *address, *name, output) : ExitStatus::WrongUse;
}

// --- set -----------------------------------------------------------------------------------------------------------

ExitStatus Set(const Command& self, const Invocation& call, Output& output)
{
    const std::optional<KeyAddress> address = TakeKey(self, call, output);
    const std::optional<std::string> name = address ? TakeName(self, call, output) : std::nullopt;
    if (!name)
    {
        return ExitStatus::WrongUse;
    }
    std::string reason;
    const std::span<const std::string> words = std::span(call.values).subspan(2);
    const std::optional<RegistryValue> value = MakeValue(*name, call.ValueOf("type", "sz"), words, reason);
    if (!value)
    {
        return WrongUse(self, output, reason);
    }
    const DWORD code = StoreValue(*address, *value);
    if (code != ERROR_SUCCESS)
    {
        return Refuse(self, output,
                      NamedValue(*name) + " in " + Named(*address) + " was not set (" + SystemError(code) + ")");
    }
    output.text = call.Has("json") ? JsonOf(*address, *value) : "";
    return ExitStatus::Done;
}

// --- delete --------------------------------------------------------------------------------------------------------

ExitStatus DeleteValue(const Command& self, const KeyAddress& address, const std::string& name, Output& output)
{
    Registry key;
    if (!OpenRegistryKey(key, address, Registry::PermissionQueryValue | Registry::PermissionSetValue))
    {
        return Refuse(self, output, WhyNoKey(address, key.GetLastError()));
    }
    if (!key.DeleteValue(name.c_str()))
    {
        const bool isAbsent = key.GetLastError() == ERROR_FILE_NOT_FOUND;
        return Refuse(self, output,
                      std::string(isAbsent ? "there is no " : "") + NamedValue(name) + " in " + Named(address) +
                          (isAbsent ? " (" : " was not deleted (") + SystemError(key.GetLastError()) + ")");
    }
    return ExitStatus::Done;
}

ExitStatus DeleteKey(const Command& self, const KeyAddress& address, bool recursive, Output& output)
{
    if (address.path.empty())
    {
        return Refuse(self, output, Named(address) + " is a root, which is never deleted");
    }
    Registry key;
    if (!OpenRegistryKey(key, address, Registry::PermissionRead))
    {
        return Refuse(self, output, WhyNoKey(address, key.GetLastError()));
    }
    if (key.SubkeyCount() > 0 && !recursive)
    {
        return Refuse(self, output,
                      Named(address) + " has keys below it (" + std::to_string(key.SubkeyCount()) +
                          "); to delete them too, say --recursive");
    }
    const DWORD code = DeleteStoredKey(address, recursive);
    return code == ERROR_SUCCESS
               ? ExitStatus::Done
               : Refuse(self, output, "key " + Named(address) + " was not deleted (" + SystemError(code) + ")");
}

std::string JsonOfDeleted(const KeyAddress& address, const std::optional<std::string>& name)
{
    JsonWriter json;
    json.BeginObject().Name("key").Text(Utf8FromLibrary(address.Text()));
    if (name)
    {
        json.Name("name").Text(Utf8FromLibrary(*name));
    }
    return json.Name("deleted").Flag(true).EndObject().Line();
}

ExitStatus Delete(const Command& self, const Invocation& call, Output& output)
{
    const bool hasName = call.values.size() == 2;
    const std::optional<KeyAddress> address = TakeKey(self, call, output);
    const std::optional<std::string> name = address && hasName ? TakeName(self, call, output) : std::nullopt;
    if (!address || (hasName && !name))
    {
        return ExitStatus::WrongUse;
    }
    if (hasName && call.Has("recursive"))
    {
        return WrongUse(self, output, "--recursive goes without a NAME");
    }
    const ExitStatus status =
        hasName ? DeleteValue(self, *address, *name, output) : DeleteKey(self, *address, call.Has("recursive"), output);
    output.text = status == ExitStatus::Done && call.Has("json") ? JsonOfDeleted(*address, name) : "";
    return status;
}

constexpr Option kListOptions[] = {{"recursive", nullptr, "list the keys below as well"}};
constexpr Option kSetOptions[] = {{"type", "TYPE", "sz (if not given), dword, binary, list or expand"}};
constexpr Option kDeleteOptions[] = {{"recursive", nullptr, "delete the keys below as well"}};

constexpr Command kCommands[] = {
    {"registry", "list", "KEY", "List the values of a key and the keys below it",
     "A KEY is a root (HKCU, HKLM, HKCR, HKU, HKCC, or a full name such as\n"
     "HKEY_CURRENT_USER) and the path below it: HKCU\\Software\\Vornwald. It is looked up\n"
     "in the 32-bit view, as the applications do. Each value stands with its type; a key\n"
     "that cannot be read is reported, the others are listed.",
     1, 1, kListOptions, List},
    {"registry",
     "get",
     "KEY NAME",
     "Print a value",
     "A number is printed in decimal digits, a text as it is, a list with a line for\n"
     "each text, any other value as hexadecimal digits. The NAME \"\" is the key's\n"
     "default value.",
     2,
     2,
     {},
     Get},
    {"registry", "set", "KEY NAME VALUE...", "Store a value, and make the key where it is missing",
     "Types: sz, a text; expand, a text with variables such as %windir%; dword, a number\n"
     "from -2147483648 to 4294967295 or 0x and hexadecimal digits; binary, pairs of\n"
     "hexadecimal digits; list, any number of texts, each a VALUE of its own. A value\n"
     "that begins with two hyphens goes after \"--\".",
     2, kAnyNumber, kSetOptions, Set},
    {"registry", "delete", "KEY [NAME]", "Delete a value, or a key",
     "Without NAME the key itself goes, with all its values. A key with keys below it\n"
     "stays unless --recursive is given; a root always stays.",
     1, 2, kDeleteOptions, Delete},
};

} // namespace

const CommandGroup& RegistryCommands()
{
    static const CommandGroup group = {"registry", "Keys and values of the system's registry.", kCommands};
    return group;
}

} // namespace vorn::tool
