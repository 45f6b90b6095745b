#pragma once

#include <shapefil.h>

namespace vorn::bench
{

/// A table read by shapelib, through the C library's files as that library does by itself.
class ShapelibTable
{
public:
    /// Throws when the table cannot be opened.
    explicit ShapelibTable(const char* path);
    ~ShapelibTable();
    ShapelibTable(const ShapelibTable&) = delete;
    ShapelibTable& operator=(const ShapelibTable&) = delete;

    int Records() const
    {
        return DBFGetRecordCount(m_table);
    }
    /// The field without blanks around it; valid until the next call.
    const char* Text(int record, int field)
    {
        return DBFReadStringAttribute(m_table, record, field);
    }
    /// The record's bytes.
    const char* Tuple(int record)
    {
        return DBFReadTuple(m_table, record);
    }

private:
    DBFHandle m_table;
};

} // namespace vorn::bench
