#include "config/Registry.h"
#include "config/RegistryCall.h"
#include "config/core/TextListData.h"

#include <algorithm>
#include <cstring>

namespace
{
// The interface takes what it stores as writable; nothing writes there.
BYTE* Bytes(const void* data)
{
    return static_cast<BYTE*>(const_cast<void*>(data));
}

std::vector<std::string_view> TextsOf(const CStringArray& array)
{
    std::vector<std::string_view> texts;
    texts.reserve(static_cast<std::size_t>(array.GetSize()));
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
    {
        texts.emplace_back(array[i].GetString());
    }
    return texts;
}

void Assign(CStringArray& array, const std::vector<std::string_view>& texts)
{
    CStringArray fresh;
    for (const std::string_view text : texts)
    {
        fresh.Add(CString(text.data(), static_cast<int>(text.size())));
    }
    array.Copy(fresh);
}
} // namespace

// Turns a value read, or one that did not fit its buffer, into a refusal when its type is not the one asked for.
bool Registry::RefuseUnless(bool fits)
{
    const bool isKnown = m_lastError == ERROR_SUCCESS || m_lastError == ERROR_MORE_DATA;
    if (isKnown && !fits)
    {
        m_lastError = ERROR_INVALID_DATATYPE;
    }
    return m_lastError == ERROR_SUCCESS;
}

bool Registry::GetStringValue(const char* name, CString& value)
{
    char text[2048];
    DWORD size = sizeof text;
    KeyValueTypes type = TypeNone;
    QueryValue(name, type, reinterpret_cast<BYTE*>(text), size);
    return RefuseUnless(type == TypeString || type == TypeExpandString) &&
           Record(vorn::CodeOf(
               [&]() -> LSTATUS
               {
                   value.SetString(text, static_cast<int>(strnlen(text, size)));
                   return ERROR_SUCCESS;
               }));
}

bool Registry::SetStringValue(const char* name, const char* value)
{
    return value != nullptr ? SetValue(name, TypeString, Bytes(value), static_cast<DWORD>(std::strlen(value)) + 1)
                            : Record(ERROR_INVALID_PARAMETER);
}

bool Registry::GetDoubleWordValue(const char* name, DWORD& value)
{
    DWORD number = 0;
    DWORD size = sizeof number;
    KeyValueTypes type = TypeNone;
    QueryValue(name, type, Bytes(&number), size);
    const bool isNumber = RefuseUnless(type == TypeDoubleWord) || m_lastError == ERROR_MORE_DATA;
    if (isNumber && size != sizeof number)
    {
        return Record(ERROR_INVALID_DATA);
    }
    value = isNumber ? number : value;
    return isNumber;
}

bool Registry::SetDoubleWordValue(const char* name, DWORD value)
{
    return SetValue(name, TypeDoubleWord, Bytes(&value), sizeof value);
}

bool Registry::GetBinaryValue(const char* name, CByteArray& value)
{
    return Record(vorn::CodeOf(
        [&]
        {
            KeyValueTypes type = TypeNone;
            std::vector<BYTE> data;
            if (ReadWhole(name, type, data))
            {
                value.SetSize(static_cast<INT_PTR>(data.size()));
                std::ranges::copy(data, value.GetData());
            }
            return static_cast<LSTATUS>(m_lastError);
        }));
}

bool Registry::SetBinaryValue(const char* name, CByteArray& value)
{
    return SetValue(name, TypeBinary, value.GetData(), static_cast<DWORD>(value.GetSize()));
}

bool Registry::GetStringArrayValue(const char* name, CStringArray& value)
{
    return Record(vorn::CodeOf(
        [&]
        {
            KeyValueTypes type = TypeNone;
            std::vector<BYTE> data;
            ReadWhole(name, type, data);
            if (RefuseUnless(type == TypeMultiString || type == TypeString))
            {
                const std::string_view bytes(reinterpret_cast<const char*>(data.data()), data.size());
                Assign(value, type == TypeString ? std::vector{bytes.substr(0, bytes.find('\0'))}
                                                 : vorn::TextsOfListData(bytes));
            }
            return static_cast<LSTATUS>(m_lastError);
        }));
}

bool Registry::SetStringArrayValue(const char* name, CStringArray& value)
{
    return Record(vorn::CodeOf(
        [&]
        {
            const std::vector<char> data = vorn::TextListData(TextsOf(value));
            SetValue(name, TypeMultiString, Bytes(data.data()), static_cast<DWORD>(data.size()));
            return static_cast<LSTATUS>(m_lastError);
        }));
}

bool Registry::GetValue(const char* name, DWORD& value)
{
    return GetDoubleWordValue(name, value);
}

bool Registry::GetValue(const char* name, CString& value)
{
    return GetStringValue(name, value);
}

bool Registry::GetValue(const char* name, CByteArray& value)
{
    return GetBinaryValue(name, value);
}

bool Registry::GetValue(const char* name, CStringArray& value)
{
    return GetStringArrayValue(name, value);
}

bool Registry::SetValue(const char* name, DWORD value)
{
    return SetDoubleWordValue(name, value);
}

bool Registry::SetValue(const char* name, const char* value)
{
    return SetStringValue(name, value);
}

bool Registry::SetValue(const char* name, CByteArray& value)
{
    return SetBinaryValue(name, value);
}

bool Registry::SetValue(const char* name, CStringArray& value)
{
    return SetStringArrayValue(name, value);
}
