#include "apps/vorntool/Commands.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/LogLines.h"
#include "apps/vorntool/core/ToolNumbers.h"
#include "apps/vorntool/core/Utf8.h"

#include <VornCommon.h>

#include <algorithm>
#include <memory>

namespace vorn::tool
{

namespace
{

struct ExceptionDeleter
{
    void operator()(CException* exception) const
    {
        exception->Delete();
    }
};

// The whole file, while others may write to it; nothing when it cannot be read.
std::optional<std::string> ReadLog(const CString& name)
{
    try
    {
        CFile file;
        if (!file.Open(name, CFile::modeRead | CFile::shareDenyNone | CFile::typeBinary))
        {
            return std::nullopt;
        }
        std::string text(static_cast<std::size_t>(file.GetLength()), '\0');
        text.resize(file.Read(text.data(), static_cast<UINT>(text.size())));
        return text;
    }
    catch (CException* exception)
    {
        const std::unique_ptr<CException, ExceptionDeleter> caught(exception);
        return std::nullopt;
    }
}

std::string TextOf(const std::vector<std::string_view>& lines)
{
    std::string text;
    for (const std::string_view line : lines)
    {
        text.append(OneLine(Utf8FromLibrary(line))).append("\n");
    }
    return text;
}

std::string JsonOf(const std::string& file, const std::vector<std::string_view>& lines)
{
    JsonWriter json;
    json.BeginObject().Name("file").Text(file).Name("messages").BeginArray();
    for (const std::string_view line : lines)
    {
        json.Text(Utf8FromLibrary(line));
    }
    return json.EndArray().EndObject().Line();
}

ExitStatus Fail(const Command& self, Output& output, ExitStatus status, const std::string& reason)
{
    ReportError(output, self, reason);
    return status;
}

void KeepLast(std::vector<std::string_view>& lines, std::int64_t count)
{
    const auto kept = static_cast<std::ptrdiff_t>(std::min(count, static_cast<std::int64_t>(lines.size())));
    lines.erase(lines.begin(), lines.end() - kept);
}

ExitStatus Show(const Command& self, const Invocation& call, Output& output)
{
    const std::string last = call.ValueOf("last", "0");
    const std::optional<std::int64_t> count = ParseWhole(last);
    if (call.Has("last") && (!count || *count < 1))
    {
        return Fail(self, output, ExitStatus::WrongUse, Quoted(last) + " is no number of messages");
    }
    const std::string& word = call.values[0];
    if (GetFileAttributesW(WideFromUtf8(word).c_str()) == INVALID_FILE_ATTRIBUTES)
    {
        return Fail(self, output, ExitStatus::Refused, "there is no file " + Quoted(word));
    }
    const std::optional<CString> name = LibraryFromUtf8(word);
    const std::optional<std::string> text = name ? ReadLog(*name) : std::nullopt;
    if (!text)
    {
        return Fail(self, output, ExitStatus::Refused, Quoted(word) + " cannot be read");
    }
    std::vector<std::string_view> lines = LogLines(*text);
    if (call.Has("last"))
    {
        KeepLast(lines, *count);
    }
    output.text = call.Has("json") ? JsonOf(word, lines) : TextOf(lines);
    return ExitStatus::Done;
}

constexpr Option kShowOptions[] = {{"last", "COUNT", "only the last messages"}};

constexpr Command kCommands[] = {
    {"log", "show", "FILE", "Print the messages of an application's log file",
     "A message is a line of the file. Control characters are printed as \\t or \\xHH. The\n"
     "application may be writing to the file meanwhile. An empty file has no messages.",
     1, 1, kShowOptions, Show},
};

} // namespace

const CommandGroup& LogCommands()
{
    static const CommandGroup group = {"log", "Log files of the applications.", kCommands};
    return group;
}

} // namespace vorn::tool
