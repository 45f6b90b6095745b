#include "apps/datasets/DataSets.h"

#include <VornCommon.h>

#include <algorithm>

// The program behind "Get Update" in the sample's startup dialog. There is nowhere to fetch data from: it looks at the
// tables that the sample has, reports, and ends.
namespace
{

constexpr int kNoData = 1;
constexpr int kWrongUse = 2;

void Print(DWORD stream, const std::string& text)
{
    DWORD written = 0;
    WriteFile(GetStdHandle(stream), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

std::string Report(const std::vector<DataTableFacts>& tables)
{
    std::string text;
    for (const DataTableFacts& table : tables)
    {
        text += table.fileName + ": ";
        text +=
            table.records < 0 ? "not there\n" : std::to_string(table.records) + " records of " + table.changed + "\n";
    }
    return text;
}

bool AreAllThere(const std::vector<DataTableFacts>& tables)
{
    return std::none_of(tables.begin(), tables.end(),
                        [](const DataTableFacts& table)
                        {
                            return table.records < 0;
                        });
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
        const bool complete = AreAllThere(tables);
        const std::string text = std::string(complete ? "The sample's data is complete. There is nothing newer.\n\n"
                                                      : "Data of the sample is missing: build it anew.\n\n") +
                                 Report(tables);
        if (option.empty())
            AfxMessageBox(text.c_str(), MB_OK | (complete ? MB_ICONINFORMATION : MB_ICONEXCLAMATION));
        else
            Print(STD_OUTPUT_HANDLE, text);
        m_exitCode = complete ? 0 : kNoData;
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
