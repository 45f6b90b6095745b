#include "config/Registry.h"
#include "config/RegistryCall.h"

#include <iterator>

namespace
{
// Bytes of the longest names with their closing zero: 255 and 16,383 characters of at most three bytes.
constexpr DWORD kKeyNameSize = 3 * 255 + 1;
constexpr DWORD kValueNameSize = 3 * 16383 + 1;
constexpr DWORD kUsualNameSize = 256;
constexpr DWORD kLongestClassSize = 1 << 20;

void Assign(CString& text, const char* characters, DWORD count)
{
    text.SetString(characters, static_cast<int>(count));
}
} // namespace

bool Registry::EnumerateKeys(DWORD index, CString& name, CString& className)
{
    return Record(vorn::CodeOf(
        [&]
        {
            char nameBuffer[kKeyNameSize];
            std::vector<char> classBuffer(kUsualNameSize);
            for (;;)
            {
                DWORD nameSize = kKeyNameSize;
                auto classSize = static_cast<DWORD>(classBuffer.size());
                const LSTATUS status = RegEnumKeyExA(Key(), index, nameBuffer, &nameSize, nullptr, classBuffer.data(),
                                                     &classSize, nullptr);
                if (status == ERROR_SUCCESS)
                {
                    Assign(name, nameBuffer, nameSize);
                    Assign(className, classBuffer.data(), classSize);
                }
                if (status != ERROR_MORE_DATA || classBuffer.size() > kLongestClassSize)
                {
                    return status;
                }
                classBuffer.resize(2 * classBuffer.size());
            }
        }));
}

bool Registry::EnumerateKeys(DWORD index, CString& name)
{
    return Record(vorn::CodeOf(
        [&]
        {
            char buffer[kKeyNameSize];
            DWORD size = kKeyNameSize;
            const LSTATUS status = RegEnumKeyExA(Key(), index, buffer, &size, nullptr, nullptr, nullptr, nullptr);
            if (status == ERROR_SUCCESS)
            {
                Assign(name, buffer, size);
            }
            return status;
        }));
}

bool Registry::EnumerateKeys(DWORD index, char* name, DWORD* nameSize, char* className, DWORD* classSize)
{
    if (name == nullptr || nameSize == nullptr || (className != nullptr && classSize == nullptr))
    {
        return Record(ERROR_INVALID_PARAMETER);
    }
    return Record(RegEnumKeyExA(Key(), index, name, nameSize, nullptr, className, classSize, nullptr));
}

// A name that does not fit and data that do not fit give the same code: what it means shows the longest buffer.
LSTATUS Registry::EnumerateValue(DWORD index, CString& name, KeyValueTypes& type, BYTE* data, DWORD* size)
{
    char buffer[kUsualNameSize];
    DWORD nameSize = kUsualNameSize;
    const DWORD dataSize = size != nullptr ? *size : 0;
    DWORD valueType = REG_NONE;
    LSTATUS status = RegEnumValueA(Key(), index, buffer, &nameSize, nullptr, &valueType, data, size);
    std::vector<char> longBuffer;
    if (status == ERROR_MORE_DATA)
    {
        longBuffer.resize(kValueNameSize);
        nameSize = kValueNameSize;
        if (size != nullptr)
        {
            *size = dataSize;
        }
        status = RegEnumValueA(Key(), index, longBuffer.data(), &nameSize, nullptr, &valueType, data, size);
    }
    if (status == ERROR_SUCCESS)
    {
        Assign(name, longBuffer.empty() ? buffer : longBuffer.data(), nameSize);
        type = static_cast<KeyValueTypes>(valueType);
    }
    return status;
}

bool Registry::EnumerateValues(DWORD index, CString& name, KeyValueTypes& type)
{
    return Record(vorn::CodeOf(
        [&]
        {
            return EnumerateValue(index, name, type, nullptr, nullptr);
        }));
}

bool Registry::EnumerateValues(DWORD index, CString& name, KeyValueTypes& type, BYTE* data, DWORD& size)
{
    return Record(vorn::CodeOf(
        [&]
        {
            return EnumerateValue(index, name, type, data, &size);
        }));
}

bool Registry::EnumerateValues(DWORD index, char* name, DWORD* nameSize, KeyValueTypes* type, BYTE* data,
                               DWORD* dataSize)
{
    if (name == nullptr || nameSize == nullptr || (data != nullptr && dataSize == nullptr))
    {
        return Record(ERROR_INVALID_PARAMETER);
    }
    DWORD valueType = REG_NONE;
    const LSTATUS status = RegEnumValueA(Key(), index, name, nameSize, nullptr, &valueType, data, dataSize);
    if (type != nullptr && (status == ERROR_SUCCESS || status == ERROR_MORE_DATA))
    {
        *type = static_cast<KeyValueTypes>(valueType);
    }
    return Record(status);
}
