#include "apps/datasets/DataSets.h"

#include <algorithm>
#include <array>

namespace
{

constexpr double kSecondsPerDay = 86400.0;
constexpr double kCycleDays = 28; // an AIRAC cycle
constexpr int kNavigation = 1;
constexpr int kTerminal = 2;

struct Set
{
    int kind;
    const char* coverage;
    float version; // 0: no dates
    double mixed;  // days to expiry where each set has a state of its own
};

constexpr std::array kSets = {
    Set{kNavigation, "Radio aids of the Pacific Northwest", 1.0F, 12.5},
    Set{kTerminal, "Runways, United States", 1.0F, 1.5},
    Set{kTerminal, "Runways, Canada", 1.0F, -3.0},
    Set{kNavigation, "Shore lines and borders", 0.0F, 0.0},
};

struct Case
{
    std::string_view word;
    Currency currency;
    double days; // to expiry, of all sets
};

constexpr std::array kCases = {
    Case{"mixed", Currency::Mixed, 0.0},
    Case{"valid", Currency::Valid, 12.5},
    Case{"expiring", Currency::Expiring, 1.5},
    Case{"late", Currency::Late, -3.0},
};

constexpr std::array kTables = {"navaids.dbf", "runways.dbf", "shores.dbf"};

Date InDays(double days)
{
    return Date(CTime(CTime::GetCurrentTime().GetTime() + static_cast<__time64_t>(days * kSecondsPerDay)));
}

double DaysToExpiry(const Set& set, Currency currency)
{
    const auto* const found = std::find_if(kCases.begin(), kCases.end(),
                                           [&](const Case& each)
                                           {
                                               return each.currency == currency;
                                           });
    return currency == Currency::Mixed ? set.mixed : found->days;
}

/// Of a table that did not open: the library does not say why, the system does.
DataTableState WhyClosed(const char* path)
{
    CFile file;
    CFileException failure;
    if (file.Open(path, CFile::modeRead | CFile::shareDenyWrite, &failure))
    {
        return DataTableState::Unusable;
    }
    switch (failure.m_cause)
    {
    case CFileException::sharingViolation:
    case CFileException::lockViolation:
        return DataTableState::InUse;
    case CFileException::fileNotFound:
    case CFileException::badPath:
        return DataTableState::Missing;
    default:
        return DataTableState::Unusable;
    }
}

DataTableFacts FactsOf(const char* name)
{
    const CString path = (ProgramFolder() + "data\\" + name).c_str();
    DataTableFacts facts;
    facts.fileName = name;
    CDBFFile table(0);
    if (table.Open(path, CFile::modeRead) != 0)
    {
        facts.state = DataTableState::Sound;
        facts.records = table.NumRecords();
    }
    else
    {
        facts.state = WhyClosed(path);
    }
    CFileStatus status;
    if (CFile::GetStatus(path, status))
    {
        facts.changed = status.m_mtime.FormatGmt("%Y-%m-%d").GetString();
    }
    return facts;
}

} // namespace

std::optional<Currency> CurrencyNamed(std::string_view word)
{
    const auto* const found = std::find_if(kCases.begin(), kCases.end(),
                                           [&](const Case& each)
                                           {
                                               return each.word == word;
                                           });
    return found == kCases.end() ? std::nullopt : std::optional(found->currency);
}

const char* CurrencyWords()
{
    return "mixed, valid, expiring or late";
}

std::vector<CStartupDlg::DataInfo> DataSets(Currency currency)
{
    std::vector<CStartupDlg::DataInfo> sets;
    for (const Set& set : kSets)
    {
        const double days = DaysToExpiry(set, currency);
        sets.push_back({set.kind, set.version, set.coverage, InDays(days - kCycleDays), InDays(days)});
        if (set.version == 0)
        {
            sets.back().expiry = Date(); // nothing that could expire
        }
    }
    return sets;
}

std::string ProgramFolder()
{
    std::array<char, MAX_PATH> path{};
    GetModuleFileName(nullptr, path.data(), MAX_PATH);
    const std::string program = path.data();
    return program.substr(0, program.find_last_of('\\') + 1);
}

std::vector<DataTableFacts> DataTables()
{
    std::vector<DataTableFacts> tables;
    tables.reserve(kTables.size());
    for (const char* name : kTables)
    {
        tables.push_back(FactsOf(name));
    }
    return tables;
}
