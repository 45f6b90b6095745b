#pragma once

/// @file
/// Fields by their names.
#include "files/core/TableLayout.h"

#include <string_view>

namespace vorn
{
/// Number of the first field of that name, cut to 11 characters, ASCII letters matching either way; -1 without.
int FindField(const std::vector<TableField>& fields, std::string_view name);

/// Remembers the field asked for last: loops over records ask for the same few.
class FieldNames
{
public:
    int Find(const std::vector<TableField>& fields, const char* name);
    /// The fields changed.
    void Forget()
    {
        m_field = -1;
    }

private:
    char m_name[kFieldNameSize + 1] = "";
    int m_field = -1;
};
} // namespace vorn
