#include "frame/core/Serialisation.h"

#include "family/TarnUtil/core/TarnObject.h"
#include "frame/core/Serialise.h"
#include "framework/core/Exception.h"

namespace
{

using Fields = vorn::RecordFields<decltype(&TarnObject::ReadWriteSimpleValue)>;

/// Short memory fails like a short buffer.
template <class Transfer>
bool WithoutExceptions(Transfer&& transfer)
{
    try
    {
        return transfer();
    }
    catch (CException* exception)
    {
        exception->Delete();
        return false;
    }
}

bool Read(Fields& fields, CString& text)
{
    text.Empty();
    return WithoutExceptions(
        [&]
        {
            return fields.ReadText(
                [&text](std::int32_t length)
                {
                    return text.GetBufferSetLength(length);
                });
        });
}

bool Write(Fields& fields, const CString& text)
{
    return fields.WriteText({text.GetString(), static_cast<std::size_t>(text.GetLength())});
}

/// Reads straight into the list's new tail, which goes again when it was not read whole.
bool ReadToTail(Fields& fields, CStringList& list)
{
    list.AddTail(CString());
    const bool read = Read(fields, list.GetTail());
    if (!read)
        list.RemoveTail();
    return read;
}

bool ReadList(Fields& fields, CStringList& list)
{
    return fields.ReadList(
        [&list](Fields& f)
        {
            return ReadToTail(f, list);
        });
}

bool WriteList(Fields& fields, const CStringList& list)
{
    bool written = fields.WriteNumber(list.GetCount());
    for (POSITION position = list.GetHeadPosition(); written && position != nullptr;)
        written = Write(fields, list.GetNext(position));
    return written;
}

} // namespace

bool ReadWriteCString(char*& cursor, unsigned long& remaining, CString& text, bool read)
{
    Fields fields(cursor, remaining, &TarnObject::ReadWriteSimpleValue);
    return WithoutExceptions(
        [&]
        {
            return read ? Read(fields, text) : Write(fields, text);
        });
}

bool ReadWriteCStringList(char*& cursor, unsigned long& remaining, CStringList& list, bool read)
{
    Fields fields(cursor, remaining, &TarnObject::ReadWriteSimpleValue);
    return WithoutExceptions(
        [&]
        {
            return read ? ReadList(fields, list) : WriteList(fields, list);
        });
}
