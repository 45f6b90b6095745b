#include "apps/sample/model/Usage.h"

#include "apps/sample/model/UserFile.h"

#include <VornCommon.h>

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

ProgramStats& Statistics()
{
    static ProgramStats statistics;
    static const bool read = statistics.Init(UserFile(kFileName));
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

std::string UsageText()
{
    const vorn::ReportTable table = UsageTable();
    std::string text = table.title;
    for (const auto& row : table.rows)
        text += "\r\n" + row.cells[0] + ": " + row.cells[1];
    return text;
}

void ClearUsage()
{
    Statistics().ClearStats();
    Statistics().SaveStats();
}
