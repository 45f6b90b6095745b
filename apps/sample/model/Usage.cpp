#include "apps/sample/model/Usage.h"

#include <VornCommon.h>

#include <shlobj.h>

#include <array>

namespace
{

constexpr const char* kFileName = "usage.dat";

struct Use
{
    UsageEvent event;
    const char* words;
};

constexpr std::array kUses = {
    Use{UsageEvent::Start, "Program starts"},      Use{UsageEvent::TableOpened, "Tables opened"},
    Use{UsageEvent::Search, "Searches in tables"}, Use{UsageEvent::Edit, "Fields changed"},
    Use{UsageEvent::Deletion, "Records deleted"},  Use{UsageEvent::Pack, "Tables packed"},
};

CString StatisticsFile()
{
    const CString folder = PathMgr::Instance(AfxGetAppName())->GetPathInst(DP_USERHIDDEN, AfxGetAppName());
    SHCreateDirectoryEx(nullptr, folder, nullptr);
    return folder + kFileName;
}

ProgramStats& Statistics()
{
    static ProgramStats statistics;
    static const bool read = statistics.Init(StatisticsFile());
    (void)read; // false for a fresh file, which is as good
    return statistics;
}

APPSTAT Counter(UsageEvent event)
{
    return static_cast<APPSTAT>(event);
}

} // namespace

void CountUse(UsageEvent event)
{
    Statistics().Event(Counter(event));
    Statistics().SaveStats();
}

vorn::ReportTable UsageTable()
{
    const CTime since(static_cast<__time64_t>(Statistics().GetStartDate()));
    vorn::ReportTable table{"Use of this program", "", {{"What"}, {"Times", vorn::Align::Right}}, {}};
    if (Statistics().GetStartDate() > 0)
        table.title += (" since " + since.FormatGmt("%Y-%m-%d")).GetString();
    for (const Use& use : kUses)
        table.AddRow({use.words, std::to_string(Statistics().GetStat(Counter(use.event)))});
    return table;
}
