#include "apps/sample/core/DataTable.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace vorn
{

namespace
{

bool BeginsWith(const CString& text, const std::string& beginning)
{
    const auto lower = [](char c)
    {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c;
    };
    return static_cast<std::size_t>(text.GetLength()) >= beginning.size() &&
           std::equal(beginning.begin(), beginning.end(), text.GetString(),
                      [lower](char a, char b)
                      {
                          return lower(a) == lower(b);
                      });
}

} // namespace

std::optional<int> DataTable::FindFirst(const SearchTerms& terms)
{
    m_terms = terms;
    if (terms.field < 0 || terms.field >= m_file.NumFields())
        return std::nullopt;
    const char* const value = m_terms.value.c_str();
    if (terms.method == SearchMethod::Linear)
        return m_file.Query(terms.field, value, terms.matchCase) ? CurrentRowNumber() : std::nullopt;
    const CString name = m_file.GetFieldName(terms.field);
    if (!IsNumber(terms.field))
        return m_file.QuerySortedStrData(name, value) ? CurrentRowNumber() : std::nullopt;
    if (!m_file.QuerySortedIntData(name, value))
        return std::nullopt;
    const std::optional<int> any = CurrentRowNumber();
    return any ? FirstOfRun(*any, terms.field) : any;
}

// The search by numbers ends on any record of a run of equal ones.
int DataTable::FirstOfRun(int row, int field)
{
    const std::string value = Value(row, field);
    while (row > 0 && Value(row - 1, field) == value)
        --row;
    return row;
}

std::optional<int> DataTable::FindNext(int row)
{
    if (m_terms.field < 0 || m_terms.field >= m_file.NumFields() || !MakeCurrent(row))
        return std::nullopt;
    const bool binary = m_terms.method == SearchMethod::Binary;
    m_file.SetNextRecordParams(m_file.GetFieldName(m_terms.field), m_terms.value.c_str(), binary || m_terms.matchCase);
    const int last = m_rows.RecordOf(RowCount() - 1);
    while (m_file.CurRecIndex() < last)
    {
        const int before = m_file.CurRecIndex();
        if (m_file.NextRecord())
            return CurrentRowNumber();
        // In a sorted table the next one stands right behind.
        if (binary || m_file.CurRecIndex() == before)
            break;
    }
    return std::nullopt;
}

std::optional<int> DataTable::FindBeginning(int field, const std::string& text, int row)
{
    const int count = RowCount();
    for (int turn = 0; turn < count; ++turn)
    {
        const int candidate = (std::clamp(row, 0, count) + turn) % count;
        const bool there = turn == 0 || candidate == 0 ? MakeCurrent(candidate) : m_file.ReadRecord(-1) != 0;
        if (!there)
            break;
        m_file.GetFieldValue(field, m_text);
        if (BeginsWith(m_text, text))
            return CurrentRowNumber();
    }
    return std::nullopt;
}

bool DataTable::IsSortedBy(int field)
{
    if (field < 0 || static_cast<std::size_t>(field) >= m_sorted.size())
        return false;
    std::optional<bool>& known = m_sorted[static_cast<std::size_t>(field)];
    if (!known)
        known = Ascends(field);
    return *known;
}

bool DataTable::Ascends(int field)
{
    CString before;
    for (bool more = MakeCurrent(0), first = true; more; more = m_file.ReadRecord(-1) != 0, first = false)
    {
        m_file.GetFieldValue(field, m_text);
        const bool falls = IsNumber(field) ? std::atoi(m_text) < std::atoi(before) : std::strcmp(m_text, before) < 0;
        if (!first && falls)
            return false;
        std::swap(before, m_text);
    }
    return true;
}

} // namespace vorn
