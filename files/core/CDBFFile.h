#pragma once

/// @file
/// Tables in the dBASE III layout.
#include "frame/core/Export.h"
#include "framework/core/CString.h"
#include "framework/core/File.h"

#include <memory>

namespace vorn
{
struct TableState;
}

/// A dBASE III table with its memo file: read, search, edit, create, compact.
///
/// Records have a fixed width; each begins with its deletion flag (' ' live, '*' deleted), and reading passes over
/// deleted ones. One record is current; field values are those of its bytes. Results are 1 for success and 0 for
/// failure unless said otherwise. No exception leaves the class. A write that fails leaves the file as it was.
///
/// A table may be damaged in any way: what is asked of it then gives 0 or an empty text. Without an open table, and
/// for values before the first record was read, likewise.
///
/// The record buffer is the caller's view: writing never encodes, so a table read with a decode key is written plain.
///
/// Layout, public in many places: header of 32 bytes (version 3; year - 1900, month, day of the last change; 32-bit
/// count at 4; 16-bit header length at 8 and record length at 10), field descriptors of 32 bytes (name at 0, type at
/// 11, length at 16, decimals or the length's high byte at 17), 0x0D, the records. All numbers little-endian.
class VORNCOMMON_API CDBFFile
{
public:
    /// @param bufferRecords records that one read of the file fetches ahead; below 1 none. See SetBufferSize().
    explicit CDBFFile(int bufferRecords);
    /// Closes.
    virtual ~CDBFFile();
    CDBFFile(const CDBFFile&) = delete;
    CDBFFile& operator=(const CDBFFile&) = delete;

    // --- Opening and closing -----------------------------------------------------------------------------------

    /// Opens a table, closing an open one. No record is current then; the remembered query stays.
    ///
    /// The memo file is the one named as the table with each occurrence of the name's last four characters replaced by
    /// ".dbt", or by ".btd" when that cannot be opened; it need not exist.
    /// @param mode CFile::modeRead, modeWrite or modeReadWrite; others may read the files meanwhile, not write them.
    /// @return 0 when the file cannot be opened, when its header or descriptors are short, and for a header length
    /// below 32.
    int Open(const char* name, int mode);

    /// Makes an empty table of the fields added before and leaves it open for reading and writing, without a memo
    /// file. An existing file is replaced, in one step.
    /// @return 0 when the file cannot be made, with a base offset, and when a record or the header would have more than
    /// 32,767 bytes; the added fields then stay.
    int Create(const char* name);

    /// Adds a field to those that Create() makes.
    /// @param name cut to 11 characters; null is empty.
    /// @param type 'C' text, 'N' digits, 'M' number of a memo; others are carried.
    /// @param length bytes in the record.
    void AddNewField(const char* name, char type, int length);

    /// Closes the files; fields and records are gone. Always 1.
    int Close();

    // --- Records -----------------------------------------------------------------------------------------------

    /// Makes a record current.
    /// @param index 0 and up; -1 the one after the current. A deleted record counts for the next live one. At or past
    /// the number of records the file gives what it has, so a record just appended can be read.
    /// @return 0 when no live record follows or the file ends; below -1, with nothing changed.
    int ReadRecord(int index);

    /// Reads the next live record.
    /// @return 0 when there is none, or no record was read yet; with a remembered query whether it matches, else 1.
    int NextRecord();

    /// Flags the current record as deleted and writes it, as it stands, to its place.
    void DeleteRecord();

    /// Rewrites the table without its deleted records. The new table is written beside the old one, as its name with
    /// ".tmp", and takes its place in one step when all was written; the object is closed then. The header, all of it,
    /// stays but for the count, and the memo file is not touched.
    /// @return 0 done; -1 nothing changed, and the table is still open: files that cannot be made or written, a table
    /// that cannot be replaced, one with a base offset.
    int Pack();

    // --- Field values ------------------------------------------------------------------------------------------

    /// The current record's text in a field, 0 to NumFields() - 1; empty for another number.
    ///
    /// Type 'C' and others: without blanks and tabs at the end. Type 'N': the low four bits of each byte as decimal
    /// text, from the first that is not 0 on; "0" when there is none (unsigned whole numbers only: "-" reads as 13).
    /// Type 'M': the memo of that block, exactly; empty when there is no whole one.
    CString GetFieldValue(int field);
    CString GetFieldValue(const char* name);
    /// The same without a new block of memory as soon as `out` has room.
    void GetFieldValue(int field, CString& out);
    void GetFieldValue(const char* name, CString& out);
    /// The field's bytes as they stand.
    CString GetFieldValueRaw(const char* name);

    /// Sets a field of the record buffer, which begins as blanks before the first record is read: blanks, then the
    /// value over them, on the left. A longer value goes on into the next fields, up to the record's end. Nothing is
    /// written; see WriteRecord(). A null value sets blanks. In an 'N' field blanks behind a number read as zeros: pass
    /// it with the blanks in front that fill the field.
    void SetFieldValue(int field, const char* value);
    void SetFieldValue(const char* name, const char* value);
    void SetFieldValue(const char* name, long value);

    // --- Searching ---------------------------------------------------------------------------------------------

    /// Remembers the query and makes the first live record current whose value is the same.
    /// @param caseSensitive 0: ASCII letters match either way.
    /// @return 0 when none is; for a negative field, and for a name that no field has, at once.
    int Query(int field, const char* value, int caseSensitive);
    int Query(const char* fieldName, const char* value, int caseSensitive);
    /// Remembers the query for NextRecord(); a name that no field has remembers none.
    void SetNextRecordParams(const char* fieldName, const char* value, int caseSensitive);
    /// Field of the remembered query; -1 when there is none.
    int GetLastQueryField() const;
    CString GetLastQueryValue() const;

    /// Finds a record by its number in a field (as atoi() reads it) on which the table is sorted, ascending.
    int QuerySortedIntData(const char* fieldName, const char* value);
    /// Finds the first record with the value in a field on which the table is sorted, by bytes, ascending.
    int QuerySortedStrData(const char* fieldName, const char* value);

    // --- Fields and facts --------------------------------------------------------------------------------------

    /// Number of the first field of that name, cut to 11 characters, ASCII letters matching either way; -1 without.
    int GetFieldNumber(const char* name) const;
    CString GetFieldName(int field) const;
    /// 0 for a field that does not exist.
    char GetFieldType(int field) const;
    char GetFieldType(const char* name) const;

    int NumFields() const;
    /// Records in the table, deleted ones included; at most 2,147,483,647.
    int NumRecords() const;
    /// Bytes of a record with its deletion flag.
    int RecordLength() const;
    /// Bytes before the first record.
    int HeaderSize() const;
    /// -1 before the first read; the number of records after a read past the end.
    int CurRecIndex() const;
    /// Bytes of the table file.
    LONGLONG FileLen() const;
    /// The table's file, standing behind the current record however much was read ahead. The caller may move and
    /// change it; reading finds its place again.
    CFile* FP();

    /// Records fetched ahead; 0 for none.
    int GetBufferSize() const;
    /// Changes their number at any time; reading goes on behind the current record. At most 16 MiB are fetched.
    void SetBufferSize(int records);

    /// Where the table begins in its file, for tables inside a larger one; an open table is read again from there,
    /// with no fields and no records when there is none. Memos are taken from the memo file, or else from behind the
    /// table's records.
    void SetBaseOffset(int offset);

    /// The key that records and memo texts are XORed with when they are read, beginning anew for each. A length below
    /// 1 is that of the text; null or empty is no key.
    void SetDecodeString(const char* key, int length);

    // --- Writing -----------------------------------------------------------------------------------------------

    /// Writes header, descriptors and end mark: to the table's own place, or to the start of another file, which then
    /// stands behind them.
    int WriteHeader(CFile* file);
    /// Writes the record buffer, as it stands, at the file's position (FP() for the table's own). Neither the count
    /// nor the current record changes.
    int WriteRecord(CFile* file);
    /// Writes the number of records; the file's position stays. Null also sets NumRecords().
    int WriteNumRecords(CFile* file, int records);
    /// Writes a memo file's first block of 512 bytes: the next free block (the file's length in blocks, 1 at least) at
    /// 0, the block length at 20, zeros; the file then stands at its end. Null is the open memo file.
    int WriteDBTHeader(CFile* file);
    /// Writes a memo: marker FF FF 08 00, 32-bit length counting these 8 bytes, text, zeros up to a multiple of 512;
    /// at the file's position, or at the end of the open memo file for null.
    /// @return the next free block; 0 on failure.
    long WriteDBTRecord(CFile* file, const char* text);

    // --- Diagnostics -------------------------------------------------------------------------------------------

    /// Shows each fact of the header and each field in a message box.
    void DumpHeader();
    /// Shows the current record's fields in a message box.
    void DumpCurrentRecord();
    /// Writes header, fields and a line for each record to a file; a deleted record shows as the next live one. Fields
    /// of other types than 'C' and 'N' are reported in a message box.
    int DumpToFile(const char* name);

protected:
    /// Searches the records `low` to `high` (at most the number of records), sorted ascending on the field.
    int QuerySortedDataLH(int field, int value, int low, int high);
    int QuerySortedDataLH(int field, const char* value, int low, int high);

private:
    std::unique_ptr<vorn::TableState> m_state;
};
