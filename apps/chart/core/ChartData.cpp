#include "apps/chart/core/ChartData.h"

#include "files/core/CDBFFile.h"

namespace vorn::chart
{

namespace
{

constexpr int kRecordsAtOnce = 256;

/// Calls visit(FieldOf) for each live record.
template <typename Visit>
bool VisitRecords(const std::string& path, Visit visit)
{
    CDBFFile table(kRecordsAtOnce);
    if (table.Open(path.c_str(), CFile::modeRead) == 0)
        return false;
    CString text;
    const FieldOf field = [&](const char* name)
    {
        table.GetFieldValue(name, text);
        return std::string(text.GetString());
    };
    for (int found = table.ReadRecord(0); found != 0; found = table.NextRecord())
        visit(field);
    return true;
}

void Miss(std::string& missing, const char* table)
{
    missing += missing.empty() ? "" : ", ";
    missing += table;
}

} // namespace

std::string ReadChartData(const std::string& folder, ChartData& data)
{
    data = ChartData();
    std::string missing;
    const auto aid = [&](const FieldOf& field)
    {
        if (std::optional<Aid> one = AidFrom(field))
            data.aids.push_back(std::move(*one));
    };
    const auto runway = [&](const FieldOf& field)
    {
        if (std::optional<Aerodrome> one = AerodromeFrom(field))
            AddRunway(data.aerodromes, std::move(*one));
    };
    const auto shore = [&](const FieldOf& field)
    {
        AddShorePoint(data.shores, field);
    };
    if (!VisitRecords(folder + "navaids.dbf", aid))
        Miss(missing, "navaids.dbf");
    if (!VisitRecords(folder + "runways.dbf", runway))
        Miss(missing, "runways.dbf");
    if (!VisitRecords(folder + "shores.dbf", shore))
        Miss(missing, "shores.dbf");
    FinishShores(data.shores);
    return missing;
}

} // namespace vorn::chart
