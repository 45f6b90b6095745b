#include "apps/vorntool/Commands.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/StatisticsView.h"

#include <VornCommon.h>

#include <cstring>
#include <memory>

namespace vorn::tool
{

namespace
{

// The file's facts before its counters, as far as they are there; else 0.
struct Header
{
    std::int64_t startDate = 0;
    std::int32_t count = 0;
    ULONGLONG length = 0;
};

struct ExceptionDeleter
{
    void operator()(CException* exception) const
    {
        exception->Delete();
    }
};

// Nothing when the file cannot be read. It is not made, unlike by the library.
std::optional<Header> ReadHeader(const CString& name)
{
    try
    {
        CFile file;
        char bytes[16] = {};
        if (!file.Open(name, CFile::modeRead | CFile::shareDenyWrite))
        {
            return std::nullopt;
        }
        file.Read(bytes, sizeof bytes);
        Header header;
        header.length = file.GetLength();
        std::memcpy(&header.startDate, bytes + 4, sizeof header.startDate);
        std::memcpy(&header.count, bytes + 12, sizeof header.count);
        return header;
    }
    catch (CException* exception)
    {
        const std::unique_ptr<CException, ExceptionDeleter> caught(exception);
        return std::nullopt;
    }
}

bool IsWhole(const Header& header)
{
    return header.count >= 0 && header.length == 16 + 4 * static_cast<ULONGLONG>(header.count);
}

StatisticsView ViewOf(const ProgramStats& stats, const Header& header)
{
    StatisticsView view{header.startDate, {}, IsWhole(header)};
    for (int stat = 0; stat < stats.GetStatCount(); ++stat)
    {
        view.counters.push_back(stats.GetStat(static_cast<APPSTAT>(stat)));
    }
    return view;
}

ExitStatus Refuse(Output& output, const Command& self, const std::string& reason)
{
    ReportError(output, self, reason);
    return ExitStatus::Refused;
}

ExitStatus Show(const Command& self, const Invocation& call, Output& output)
{
    const std::string& word = call.values[0];
    if (GetFileAttributesW(WideFromUtf8(word).c_str()) == INVALID_FILE_ATTRIBUTES)
    {
        return Refuse(output, self, "there is no file " + Quoted(word));
    }
    const std::optional<CString> name = LibraryFromUtf8(word);
    const std::optional<Header> header = name ? ReadHeader(*name) : std::nullopt;
    if (!header)
    {
        return Refuse(output, self, Quoted(word) + " cannot be read");
    }
    ProgramStats stats;
    if (!stats.Init(*name))
    {
        return Refuse(output, self, Quoted(word) + " holds no statistics");
    }
    const StatisticsView view = ViewOf(stats, *header);
    output.text = call.Has("json") ? JsonOf(view, word) : TextOf(view);
    return ExitStatus::Done;
}

constexpr Command kCommands[] = {
    {"stats",
     "",
     "FILE",
     "Show what a program counted in its statistics file",
     "Printed are when counting began, how many counters there are, their sum, whether\n"
     "the file is whole, and every counter with its number. What a damaged file lacks\n"
     "reads as 0; of its counters at most 1,048,576 are read. The file is not changed.",
     1,
     1,
     {},
     Show},
};

} // namespace

const CommandGroup& StatsCommands()
{
    static const CommandGroup group = {"stats", "Statistics of a program's use.", kCommands};
    return group;
}

} // namespace vorn::tool
