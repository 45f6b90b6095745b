#include <VornCommon.h>

#include <cstdio>

int main()
{
    CDBFFile table(64); // reads 64 records ahead
    table.AddNewField("IDENT", 'C', 4);
    table.AddNewField("NAME", 'C', 20);
    table.AddNewField("ELEV", 'N', 6);
    if (table.Create("fields.dbf") == 0)
        return 1;
    const struct
    {
        const char* ident;
        const char* name;
        const char* elevation;
    } fields[] = {{"KBFI", "Boeing Field", "    21"}, {"KGEG", "Spokane", "  2385"}, {"KSEA", "Seattle", "   433"}};
    for (const auto& field : fields)
    {
        table.SetFieldValue("IDENT", field.ident);
        table.SetFieldValue("NAME", field.name);
        table.SetFieldValue("ELEV", field.elevation); // numbers stand at the right of their field
        table.WriteRecord(table.FP());
    }
    table.WriteNumRecords(nullptr, 3);
    table.Close();

    if (table.Open("fields.dbf", CFile::modeReadWrite) == 0)
        return 1;
    for (int found = table.ReadRecord(0); found != 0; found = table.ReadRecord(-1))
        std::printf("%-4s %-12s %5s ft\n", table.GetFieldValue("IDENT").GetString(),
                    table.GetFieldValue("NAME").GetString(), table.GetFieldValue("ELEV").GetString());

    // The table is sorted by ident, so that a search needs few reads.
    if (table.QuerySortedStrData("IDENT", "KGEG") != 0)
        std::printf("record %d is %s\n", table.CurRecIndex(), table.GetFieldValue("NAME").GetString());
    table.DeleteRecord();
    std::printf("compacted: %s\n", table.Pack() == 0 ? "yes" : "no");
    table.Open("fields.dbf", CFile::modeRead);
    std::printf("%d records\n", table.NumRecords());
    return 0;
}
