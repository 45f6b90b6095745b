#include "files/core/TableState.h"

#include "files/core/FieldText.h"
#include "files/core/NoThrow.h"
#include "files/core/NumericDigits.h"

#include <algorithm>

namespace vorn
{
static_assert(sizeof(FieldScratch::digits) >= kMaxDigits);

namespace
{
CString MemoNameOf(const CString& table, const char* extension)
{
    CString memo = table;
    memo.Replace(table.Right(4), extension);
    return memo;
}

// The head from `file`: as many bytes as its first ones say, with zeros for those behind the file's end.
bool ReadHeadFrom(TableFile& file, TableLayout& layout)
{
    char header[kHeaderSize];
    if (file.ReadAt(layout.baseOffset, header, kHeaderSize) != kHeaderSize)
        return false;
    const int length = StatedHeaderLength(header);
    if (length < kHeaderSize)
        return false;
    std::vector<char> head(static_cast<std::size_t>(length));
    std::copy_n(header, kHeaderSize, head.begin());
    const int rest =
        file.ReadAt(LONGLONG{layout.baseOffset} + kHeaderSize, head.data() + kHeaderSize, length - kHeaderSize);
    return rest >= 0 && ReadLayout(std::move(head), std::size_t{kHeaderSize} + static_cast<std::size_t>(rest), layout);
}

int ReadFrom(CFile& file, LONGLONG position, char* bytes, int count)
{
    return NoThrow(-1,
                   [&]
                   {
                       file.Seek(position, CFile::begin);
                       return static_cast<int>(file.Read(bytes, static_cast<UINT>(count)));
                   });
}

MemoSource MemoFileSource(CFile& file)
{
    return {[&file](LONGLONG position, char* bytes, int count)
            {
                return ReadFrom(file, position, bytes, count);
            },
            NoThrow<LONGLONG>(0,
                              [&]
                              {
                                  return static_cast<LONGLONG>(file.GetLength());
                              }),
            0};
}

MemoSource ContainerSource(TableFile& file, const TableLayout& layout)
{
    return {[&file](LONGLONG position, char* bytes, int count)
            {
                return file.ReadAt(position, bytes, count);
            },
            file.Length(), layout.PositionOf(layout.records)};
}
} // namespace

bool TableState::ReadHead()
{
    ForgetTable();
    const bool isRead = NoThrow(false,
                                [this]
                                {
                                    return ReadHeadFrom(file, layout);
                                });
    readableFields = static_cast<unsigned>(layout.fields.size());
    reader.Start();
    return isRead;
}

void TableState::OpenMemo()
{
    const UINT flags = (mode & ~static_cast<UINT>(CFile::modeCreate | CFile::modeNoTruncate)) | CFile::shareDenyWrite;
    for (const char* extension : {".dbt", ".btd"})
    {
        const CString memoName = MemoNameOf(name, extension);
        if (memoName != name && memo.Open(memoName, flags))
            return;
    }
}

void TableState::CloseFiles()
{
    file.CloseTable();
    memo.Abort();
}

void TableState::ForgetTable()
{
    const int base = layout.baseOffset;
    layout = TableLayout();
    layout.baseOffset = base;
    readableFields = 0;
    names.Forget();
    reader.Start();
}

void TableState::ReadMemoOf(const TableField& field, const char* record, CString& text)
{
    text.Empty();
    const std::string_view number(record + field.start, static_cast<std::size_t>(field.size));
    if (HasMemo())
        ReadMemo(MemoFileSource(memo), MemoBlockNumber(number), key, text);
    else if (layout.baseOffset != 0)
        ReadMemo(ContainerSource(file, layout), MemoBlockNumber(number), key, text);
}

std::string_view TableState::TextOf(const TableField& field, const char* record, FieldScratch& scratch)
{
    const char* bytes = record + field.start;
    const auto size = static_cast<std::size_t>(field.size);
    switch (field.type)
    {
    case 'N':
        if (field.size == 0 && field.length != 0)
            return {}; // outside the record
        return {scratch.digits.data(), NumericDigits({bytes, size}, scratch.digits.data())};
    case 'M':
        ReadMemoOf(field, record, scratch.memo);
        return {scratch.memo.GetString(), static_cast<std::size_t>(scratch.memo.GetLength())};
    default:
        return {bytes, TrimmedLength(bytes, size)};
    }
}

std::string_view TableState::TextOf(int field, FieldScratch& scratch)
{
    const char* record = reader.Record();
    return record != nullptr && IsField(field) ? TextOf(Field(field), record, scratch) : std::string_view();
}

bool TableState::IsMatch(FieldScratch& scratch)
{
    return query.Matches(TextOf(query.field, scratch));
}
} // namespace vorn
