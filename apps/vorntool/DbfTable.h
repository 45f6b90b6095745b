#pragma once

#include "apps/vorntool/core/Command.h"
#include "apps/vorntool/core/DbfLayout.h"

#include <VornCommon.h>

#include <string>
#include <vector>

namespace vorn::tool
{

inline constexpr Option kDbfKeyOption = {"key", "TEXT", "decode the table with this key"};
inline constexpr Option kDbfKeyHexOption = {"key-hex", "DIGITS", "decode with a key given as hexadecimal digits"};
inline constexpr Option kDbfOffsetOption = {"offset", "BYTES", "the table begins this far inside the file"};

/// What a look at every record's deletion mark gives.
struct DbfMarks
{
    std::uint32_t live = 0;
    std::uint32_t deleted = 0;
    std::uint32_t strange = 0; ///< neither a blank nor an asterisk; the library takes these for live
};

/// How a command opens its table.
enum class DbfAccess
{
    Read,
    Scan, ///< reads many records in order
    Write
};

/// A table that a command works on: the first value of its call, with the options above. Everything that goes wrong is
/// a ToolFailure.
class DbfTable
{
public:
    DbfTable(const Invocation& call, DbfAccess access);

    CDBFFile& Library()
    {
        return m_table;
    }

    const DbfLayout& Layout() const
    {
        return m_layout;
    }

    /// The file's name as it was given (UTF-8).
    const std::string& Name() const
    {
        return m_name;
    }

    bool IsCoded() const
    {
        return !m_key.empty();
    }

    int Offset() const
    {
        return m_offset;
    }

    int FieldCount() const
    {
        return static_cast<int>(m_layout.fields.size());
    }

    const DbfField& Field(int field) const
    {
        return m_layout.fields.at(static_cast<std::size_t>(field));
    }

    /// Records that lie wholly in the file; a damaged header may count more.
    std::uint32_t Held() const
    {
        return m_held;
    }

    /// The field of this name, in any case.
    int FieldNamed(const std::string& name);

    /// The field of type M, when there is exactly one.
    int OnlyMemoField() const;

    /// The fields that the option "fields" names; all without it.
    std::vector<int> FieldsFrom(const Invocation& call);

    /// A field's name, as UTF-8.
    std::string FieldName(int field) const;

    /// Why a field's values are not what its maker meant: it does not lie within the record, or it has decimals, which
    /// the library reads as digits. Empty for all others.
    std::string DoubtAbout(const DbfField& field) const;

    /// The number of a record that the table has, live or deleted.
    int RecordFrom(const std::string& number) const;

    /// The record of this number, made the current one: there and not deleted.
    int MakeCurrent(const std::string& number);

    /// Makes the next live record current; false when there is none.
    bool ReadNext();

    /// The value of a field of the current record, as UTF-8.
    const std::string& Value(int field);

    /// Counts the deletion marks of @p count records from @p first on.
    DbfMarks Marks(std::uint32_t first, std::uint32_t count);

    /// Whether a field of the current record names a memo, but there is no memo file.
    bool LacksMemos(int field);

    /// The name of the memo file that the library opens beside the table; empty when there is none.
    std::string MemoName() const;

    /// Where a record begins in the file.
    std::int64_t PlaceOf(std::uint32_t record) const;

private:
    void TakeKey(const Invocation& call);
    void TakeOffset(const Invocation& call);
    [[noreturn]] void FailToOpen(UINT mode);
    void ReadLayout();

    std::string m_name;
    CString m_path;
    std::string m_key;
    int m_offset = 0;
    CDBFFile m_table;
    DbfLayout m_layout;
    std::uint32_t m_held = 0;
    CString m_value;
    std::string m_text;
};

/// A file's name for the library; a ToolFailure when it has characters that the system's code page has not.
CString DbfPath(const std::string& name);

/// Bytes of a file from a place on, fewer at its end.
std::vector<std::uint8_t> DbfBytesAt(CFile& file, LONGLONG place, std::size_t count);

/// The name of a table's memo file: each occurrence of the last four characters replaced, as the library does it.
CString DbfMemoPath(const CString& table, const char* ending);

} // namespace vorn::tool
