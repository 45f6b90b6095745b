#include "apps/vorntool/Commands.h"
#include "apps/vorntool/FileVersion.h"
#include "apps/vorntool/Programs.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/JsonWriter.h"

namespace vorn::tool
{

namespace
{

// What was found out about one argument.
struct Answer
{
    std::string name;
    std::string version;     ///< product version, empty when there is none
    std::string fileVersion; ///< of a file only
    std::string reason;      ///< why there is none
};

bool LooksLikeFile(const std::string& word)
{
    return word.find_first_of("\\/.:") != std::string::npos;
}

Answer AnswerFor(const Program& program)
{
    int major = 0;
    int minor = 0;
    if (GetProgramVersion(program.name, program.pathKey, major, minor) != 1)
    {
        return {program.name, "", "", std::string(program.name) + " is not installed"};
    }
    return {program.name, std::to_string(major) + "." + std::to_string(minor), "", ""};
}

Answer AnswerForFile(const std::string& file)
{
    const std::optional<FileVersion> version = VersionOfFile(WideFromUtf8(file));
    if (version)
    {
        return {file, version->product, version->file, ""};
    }
    const bool there = GetFileAttributesW(WideFromUtf8(file).c_str()) != INVALID_FILE_ATTRIBUTES;
    return {file, "", "", there ? Quoted(file) + " has no version" : "there is no file " + Quoted(file)};
}

Answer AnswerFor(const std::string& word)
{
    if (const Program* const program = ProgramNamed(word))
    {
        return AnswerFor(*program);
    }
    if (LooksLikeFile(word))
    {
        return AnswerForFile(word);
    }
    return {word, "", "", Quoted(word) + " is no program of the family and no file"};
}

void Write(JsonWriter& json, const Answer& answer)
{
    json.BeginObject().Name("program").Text(answer.name).Name("version");
    answer.version.empty() ? json.Null() : json.Text(answer.version);
    if (!answer.fileVersion.empty())
    {
        json.Name("fileVersion").Text(answer.fileVersion);
    }
    json.EndObject();
}

ExitStatus Version(const Command& self, const Invocation& call, Output& output)
{
    ExitStatus status = ExitStatus::Done;
    JsonWriter json;
    json.BeginArray();
    for (const std::string& word : call.values)
    {
        const Answer answer = AnswerFor(word);
        Write(json, answer);
        if (answer.version.empty())
        {
            ReportError(output, self, answer.reason);
            status = ExitStatus::Refused;
        }
        else if (!call.Has("json"))
        {
            output.text += answer.name + " " + answer.version + "\n";
        }
    }
    output.text += call.Has("json") ? json.EndArray().Line() : "";
    return status;
}

constexpr Command kCommands[] = {
    {"version",
     "",
     "PROGRAM...",
     "Print product versions of programs or libraries",
     "PROGRAM is one of the family (Aerolune, VornView, Glasspad), found where the\n"
     "family's INI file says it is installed, or the path of an .exe or .dll file.\n"
     "What has no version is reported, and the exit status is then 1.",
     1,
     kAnyNumber,
     {},
     Version},
};

} // namespace

const CommandGroup& VersionCommands()
{
    static const CommandGroup group = {"version", "Versions of programs.", kCommands};
    return group;
}

} // namespace vorn::tool
