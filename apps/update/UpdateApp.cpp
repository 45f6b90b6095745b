#include "apps/datasets/DataSets.h"

#include <VornCommon.h>

#include <algorithm>

// The program behind "Get Update" in the sample's startup dialog. There is nowhere to fetch data from: it looks at the
// tables that the sample has, reports, and ends.
namespace
{

constexpr int kNoData = 1;
constexpr int kWrongUse = 2;
constexpr int kNotSeen = 3; // no table is missing, but not each could be looked at

void Print(DWORD stream, const std::string& text)
{
    DWORD written = 0;
    WriteFile(GetStdHandle(stream), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

std::string Describe(const DataTableFacts& table)
{
    switch (table.state)
    {
    case DataTableState::Sound:
        return std::to_string(table.records) + " records of " + table.changed;
    case DataTableState::InUse:
        return "in use by another program";
    case DataTableState::Unusable:
        return "cannot be read as a table";
    default:
        return "not there";
    }
}

std::string Report(const std::vector<DataTableFacts>& tables)
{
    std::string text;
    for (const DataTableFacts& table : tables)
        text.append(table.fileName).append(": ").append(Describe(table)).append("\n");
    return text;
}

struct Outcome
{
    int exitCode;
    const char* text;
};

/// What all the tables come to: what must be mended goes before what only has to be waited for.
Outcome OutcomeOf(const std::vector<DataTableFacts>& tables)
{
    const auto has = [&tables](DataTableState state)
    {
        return std::any_of(tables.begin(), tables.end(),
                           [state](const DataTableFacts& table)
                           {
                               return table.state == state;
                           });
    };
    if (has(DataTableState::Missing))
        return {kNoData, "Data of the sample is missing: build it anew."};
    if (has(DataTableState::Unusable))
        return {kNoData, "Data of the sample is damaged: build it anew."};
    if (has(DataTableState::InUse))
        return {kNotSeen, "Data of the sample is in use: close it in the other program and look again."};
    return {0, "The sample's data is complete. There is nothing newer."};
}

class UpdateApp : public CWinApp
{
public:
    UpdateApp() : CWinApp("VornUpdate")
    {
    }

    BOOL InitInstance() override
    {
        const std::string option = __argc > 1 ? __argv[1] : "";
        if (__argc > 2 || (!option.empty() && option != "--quiet"))
        {
            Print(STD_ERROR_HANDLE,
                  "VornUpdate [--quiet]\n\nReports which data the sample has; with --quiet to standard output.\n");
            m_exitCode = kWrongUse;
            return FALSE;
        }
        const std::vector<DataTableFacts> tables = DataTables();
        const Outcome outcome = OutcomeOf(tables);
        const std::string text = std::string(outcome.text) + "\n\n" + Report(tables);
        m_exitCode = outcome.exitCode;
        if (option.empty())
            AfxMessageBox(text.c_str(), MB_OK | (m_exitCode == 0 ? MB_ICONINFORMATION : MB_ICONEXCLAMATION));
        else
            Print(STD_OUTPUT_HANDLE, text);
        return FALSE; // done
    }

    int ExitInstance() override
    {
        CWinApp::ExitInstance();
        return m_exitCode;
    }

private:
    int m_exitCode = 0;
};

UpdateApp theApp;

} // namespace
