#include "files/core/CDBFFile.h"

#include "files/core/FieldText.h"
#include "files/core/NoThrow.h"
#include "files/core/TableState.h"

#include <compare>

using vorn::FieldScratch;
using vorn::NoThrow;
using vorn::TableState;

namespace
{
bool FindFrom(TableState& state, int index)
{
    FieldScratch scratch;
    for (bool isRead = state.reader.Read(index); isRead; isRead = state.reader.Read(-1))
        if (state.IsMatch(scratch))
            return true;
    return false;
}

// Halves the range until `orderOf` finds the key equal to the current record's value. A deleted record stands for the
// next live one; with none behind it the key is taken for smaller.
template <class OrderOf>
bool FindSorted(TableState& state, int low, int high, OrderOf orderOf)
{
    if (low < 0 || low > high || high > state.layout.records)
        return false;
    while (low <= high)
    {
        const int middle = low + (high - low) / 2;
        const std::strong_ordering order = state.reader.ReadOne(middle) ? orderOf() : std::strong_ordering::less;
        if (order == std::strong_ordering::equal)
            return true;
        if (order == std::strong_ordering::less)
            high = middle - 1;
        else
            low = state.reader.Current() + 1; // deleted records between are passed too
    }
    return false;
}

// Steps back from the record found while live records hold the same value; the first of them becomes current.
void StepToFirst(TableState& state, int field, std::string_view value)
{
    const int found = state.reader.Current();
    std::vector<char> bytes(vorn::kTrimMargin + static_cast<std::size_t>(state.layout.recordLength));
    char* record = bytes.data() + vorn::kTrimMargin;
    FieldScratch scratch;
    int first = found;
    for (int index = found - 1; index >= 0 && state.reader.Peek(index, record); --index)
    {
        if (*record == '*')
            continue;
        if (state.TextOf(state.Field(field), record, scratch) != value)
            break;
        first = index;
    }
    if (first != found)
        state.reader.ReadOne(first);
}

void Remember(TableState& state, int field, const char* value, int caseSensitive)
{
    state.query.field = field;
    state.query.value = value;
    state.query.isCaseSensitive = caseSensitive != 0;
}
} // namespace

int CDBFFile::Query(int field, const char* value, int caseSensitive)
{
    return NoThrow(0,
                   [&]
                   {
                       Remember(*m_state, field, value, caseSensitive);
                       return field >= 0 && FindFrom(*m_state, 0) ? 1 : 0;
                   });
}

int CDBFFile::Query(const char* fieldName, const char* value, int caseSensitive)
{
    return Query(GetFieldNumber(fieldName), value, caseSensitive);
}

void CDBFFile::SetNextRecordParams(const char* fieldName, const char* value, int caseSensitive)
{
    NoThrow(false,
            [&]
            {
                Remember(*m_state, GetFieldNumber(fieldName), value, caseSensitive);
                return true;
            });
}

int CDBFFile::GetLastQueryField() const
{
    return m_state->query.field;
}

CString CDBFFile::GetLastQueryValue() const
{
    return m_state->query.value;
}

int CDBFFile::QuerySortedIntData(const char* fieldName, const char* value)
{
    return QuerySortedDataLH(GetFieldNumber(fieldName), vorn::NumberOf(value != nullptr ? value : ""), 0,
                             NumRecords() - 1);
}

int CDBFFile::QuerySortedStrData(const char* fieldName, const char* value)
{
    const int field = GetFieldNumber(fieldName);
    const char* key = value != nullptr ? value : "";
    return NoThrow(0,
                   [&]
                   {
                       if (QuerySortedDataLH(field, key, 0, NumRecords() - 1) == 0)
                           return 0;
                       StepToFirst(*m_state, field, key);
                       return 1;
                   });
}

int CDBFFile::QuerySortedDataLH(int field, int value, int low, int high)
{
    TableState& state = *m_state;
    return NoThrow(0,
                   [&]
                   {
                       FieldScratch scratch;
                       const auto orderOf = [&]
                       {
                           return value <=> vorn::NumberOf(state.TextOf(field, scratch));
                       };
                       return state.IsField(field) && FindSorted(state, low, high, orderOf) ? 1 : 0;
                   });
}

int CDBFFile::QuerySortedDataLH(int field, const char* value, int low, int high)
{
    TableState& state = *m_state;
    return NoThrow(0,
                   [&]
                   {
                       FieldScratch scratch;
                       const std::string_view key = value != nullptr ? value : "";
                       const auto orderOf = [&]
                       {
                           return key <=> state.TextOf(field, scratch);
                       };
                       return state.IsField(field) && FindSorted(state, low, high, orderOf) ? 1 : 0;
                   });
}
