#pragma once

#include <VornCommon.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// @file
/// The data that the sample applications bring, and how current it is made out to be: their tables are facts of one day
/// and have no cycles, so cycles are counted from today.

/// The case to show.
enum class Currency
{
    Mixed,    ///< a set in force, one that expires soon, one that is late
    Valid,    ///< all in force
    Expiring, ///< all to expire within two days
    Late,     ///< all ran out three days ago
};

/// "mixed", "valid", "expiring" or "late"; nothing for other words.
std::optional<Currency> CurrencyNamed(std::string_view word);

/// The words, for help texts: "mixed, valid, expiring or late".
const char* CurrencyWords();

/// The data sets with their dates, as the startup dialog takes them. The last has no version and therefore no dates.
std::vector<CStartupDlg::DataInfo> DataSets(Currency currency);

/// The folder that this program stands in, with a backslash at its end.
std::string ProgramFolder();

/// What is known of a table before it is read.
enum class DataTableState
{
    Sound,
    Missing,
    InUse,    ///< another program has it open for writing
    Unusable, ///< there, and no table or not to be read
};

/// A table of the sample's.
struct DataTableFacts
{
    std::string fileName;
    DataTableState state = DataTableState::Missing;
    int records = 0;     ///< of a sound table
    std::string changed; ///< the file's day, "2026-11-22"; empty when it is not known
};

/// The tables in the folder "data" beside the program.
std::vector<DataTableFacts> DataTables();
