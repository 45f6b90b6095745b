#include "apps/vorntool/Commands.h"
#include "apps/vorntool/FileSearch.h"
#include "apps/vorntool/TextConversion.h"

namespace vorn::tool
{

namespace
{

// Why a word cannot be searched in; empty when it is a folder.
std::string ReasonAgainst(const std::string& folder)
{
    const DWORD attributes = GetFileAttributesW(WideFromUtf8(folder).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
    {
        return "there is no folder " + Quoted(folder);
    }
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? "" : Quoted(folder) + " is no folder";
}

bool NamesExtensions(const std::string& set)
{
    return set.find_first_not_of("| \t.") != std::string::npos && set.find_first_of("\\/:") == std::string::npos;
}

std::string JsonOf(const Invocation& call, const std::vector<ListedFile>& files)
{
    JsonWriter json;
    json.BeginObject().Name("folder").Text(call.values[0]).Name("extensions").Text(call.values[1]);
    json.Name("count").Whole(static_cast<std::int64_t>(files.size())).Name("files");
    WriteFiles(json, files);
    return json.EndObject().Line();
}

std::string TextOf(const Invocation& call, const std::vector<ListedFile>& files)
{
    if (call.Has("json"))
    {
        return JsonOf(call, files);
    }
    if (call.Has("count"))
    {
        return std::to_string(files.size()) + "\n";
    }
    const bool isLong = call.Has("long") && !files.empty();
    return isLong ? LongLines(files) : PathLines(files);
}

ExitStatus Find(const Command& self, const Invocation& call, Output& output)
{
    const std::string& word = call.values[0];
    if (!NamesExtensions(call.values[1]))
    {
        ReportError(output, self, Quoted(call.values[1]) + " is no set of extensions such as 'dbf|dbt'");
        return ExitStatus::WrongUse;
    }
    const std::string reason = ReasonAgainst(word);
    const std::optional<CString> folder = LibraryFromUtf8(word);
    const std::optional<CString> extensions = LibraryFromUtf8(call.values[1]);
    if (!reason.empty() || !folder || !extensions)
    {
        ReportError(output, self, !reason.empty() ? reason : "the system's code page has not every character given");
        return ExitStatus::Refused;
    }
    const std::vector<ListedFile> files = SearchFiles(*folder, *extensions, call.Has("recursive"));
    output.text = TextOf(call, files);
    if (files.empty())
    {
        ReportError(output, self, "no file of " + Quoted(word) + " has an extension of " + Quoted(call.values[1]));
    }
    return files.empty() ? ExitStatus::Refused : ExitStatus::Done;
}

constexpr Option kOptions[] = {{"long", nullptr, "print sizes in bytes and times of writing (UTC) as well"},
                               {"recursive", nullptr, "search the folders below FOLDER as well"},
                               {"count", nullptr, "print the number of files only"}};

constexpr Command kCommands[] = {
    {"find", "", "FOLDER EXT|EXT", "Find the files of a folder that have one of several extensions",
     "Extensions stand between vertical bars, with or without a dot and blanks around\n"
     "them: \"dbf|.dbt| txt\". They may hold the wildcards * and ?. A blank one ends the\n"
     "set. The files come extension by extension; a file that fits two is printed once.\n"
     "When none is found, the exit status is 1.",
     2, 2, kOptions, Find},
};

} // namespace

const CommandGroup& FindCommands()
{
    static const CommandGroup group = {"find", "Files by their extensions.", kCommands};
    return group;
}

} // namespace vorn::tool
