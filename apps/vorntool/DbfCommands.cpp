#include "apps/vorntool/CommandRun.h"
#include "apps/vorntool/Commands.h"
#include "apps/vorntool/DbfProgress.h"
#include "apps/vorntool/DbfRun.h"
#include "apps/vorntool/DbfTable.h"

namespace vorn::tool
{

namespace
{

constexpr Option kForce = {"force", nullptr, "replace files that exist"};
constexpr Option kRecords = {"records", "N", "at most N records"};
constexpr Option kFrom = {"from", "RECORD", "begin with this record"};
constexpr Option kFields = {"fields", "A,B,...", "only these fields, in this order"};
constexpr Option kVertical = {"vertical", nullptr, "one field a line, texts whole"};

constexpr Option kInfoOptions[] = {kDbfKeyOption, kDbfKeyHexOption, kDbfOffsetOption};
constexpr Option kHeadOptions[] = {{"records", "N", "at most N records (if not given, 10)"},
                                   kFrom,
                                   kFields,
                                   kVertical,
                                   kDbfKeyOption,
                                   kDbfKeyHexOption,
                                   kDbfOffsetOption};
constexpr Option kDumpOptions[] = {kRecords,          kFrom, kFields, kDbfKeyOption, kDbfKeyHexOption, kDbfOffsetOption,
                                   kDbfProgressOption};
constexpr Option kQueryOptions[] = {{"ignore-case", nullptr, "small and capital letters are the same"},
                                    {"sorted", nullptr, "search by halves: the records are sorted by the field"},
                                    {"first", nullptr, "only the first record found"},
                                    kFields,
                                    kVertical,
                                    kDbfKeyOption,
                                    kDbfKeyHexOption,
                                    kDbfOffsetOption};
constexpr Option kExportOptions[] = {{"output", "CSV", "write this file instead of standard output"},
                                     kForce,
                                     kFields,
                                     {"lf", nullptr, "end lines with a line feed alone"},
                                     kDbfKeyOption,
                                     kDbfKeyHexOption,
                                     kDbfOffsetOption,
                                     kDbfProgressOption};
constexpr Option kImportOptions[] = {
    {"fields", "LIST", "the fields, as NAME:TYPE:LENGTH,..."}, kForce, kDbfProgressOption};
constexpr Option kWriteOptions[] = {kDbfKeyOption, kDbfKeyHexOption, kDbfOffsetOption};

constexpr Command kCommands[] = {
    {"dbf", "info", "FILE", "Show a table's header, its fields and how many records are live",
     "Offsets of fields are counted from a record's deletion mark.", 1, 1, kInfoOptions, RunCommand<ShowDbfInfo>},
    {"dbf", "head", "FILE", "Print the first records, lined up",
     "Records count from 0; deleted ones are left out. Texts are cut to 40 characters.", 1, 1, kHeadOptions,
     RunCommand<ShowDbfHead>},
    {"dbf", "dump", "FILE", "Print all records, one field a line", "Texts are whole, memo texts too.", 1, 1,
     kDumpOptions, RunCommand<DumpDbf>},
    {"dbf", "query", "FILE FIELD VALUE", "Print the records with a value",
     "The whole value is compared, without blanks and tabs at its end. With --sorted the\n"
     "search takes the field's order for granted: numbers for fields of type N, bytes\n"
     "for all others.",
     3, 3, kQueryOptions, RunCommand<QueryDbf>},
    {"dbf", "export", "FILE", "Write a table as comma-separated values",
     "The first line has the names of the fields. The text is UTF-8, lines end with CR LF;\n"
     "memo fields give their texts.",
     1, 1, kExportOptions, RunCommand<ExportDbf>},
    {"dbf", "import", "CSV TABLE", "Make a table from comma-separated values",
     "The first line has the names of the columns. Types and lengths are found from the\n"
     "values, or given for all columns in their order:\n"
     "  --fields IDENT:C:5,ELEV:N:5,NOTE:M\n"
     "C is text, N an unsigned whole number, M a memo (its texts go into a file beside\n"
     "the table), D a date of 8 digits, L a logical value, F a number kept as text.",
     2, 2, kImportOptions, RunCommand<ImportDbf>},
    {"dbf", "set", "FILE RECORD FIELD VALUE", "Change a field of a record",
     "A memo's text is added to the memo file; the old text stays there unused.", 4, 4, kWriteOptions,
     RunCommand<SetDbfField>},
    {"dbf", "delete", "FILE RECORD", "Mark a record as deleted", "'pack' takes marked records out of the file.", 2, 2,
     kWriteOptions, RunCommand<DeleteDbfRecord>},
    {"dbf", "pack", "FILE", "Take deleted records out of the file",
     "Records behind them get other numbers. The memo file stays as it is.", 1, 1, kWriteOptions, RunCommand<PackDbf>},
    {"dbf", "memo", "FILE RECORD [FIELD]", "Print a memo's text",
     "FIELD can be left out when the table has one memo field.", 2, 3, kInfoOptions, RunCommand<ShowDbfMemo>},
};

} // namespace

const CommandGroup& DbfCommands()
{
    static const CommandGroup group = {"dbf", "dBASE tables: looking, searching, changing, CSV in and out.", kCommands};
    return group;
}

} // namespace vorn::tool
