#include "config/Registry.h"
#include "config/RegistryCall.h"

#include <algorithm>

namespace
{
bool IsText(DWORD type)
{
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

// The system looks at the byte behind a text without closing zero, and takes a zero there along: here it finds none,
// within a buffer.
LSTATUS StoreUnended(HKEY key, const char* name, DWORD type, const BYTE* data, DWORD size)
{
    std::vector<BYTE> guarded(data, data + size);
    guarded.push_back('#');
    return RegSetValueExA(key, name, 0, type, guarded.data(), size);
}
} // namespace

bool Registry::QueryValue(const char* name, KeyValueTypes& type, BYTE* data, DWORD& size)
{
    if (name == nullptr)
    {
        return Record(ERROR_INVALID_PARAMETER);
    }
    DWORD stored = REG_NONE;
    const LSTATUS status = RegQueryValueExA(Key(), name, nullptr, &stored, data, &size);
    if (status == ERROR_SUCCESS || status == ERROR_MORE_DATA)
    {
        type = static_cast<KeyValueTypes>(stored);
    }
    return Record(status);
}

bool Registry::SetValue(const char* name, KeyValueTypes type, BYTE* data, DWORD size)
{
    if (name == nullptr || (data == nullptr && size > 0))
    {
        return Record(ERROR_INVALID_PARAMETER);
    }
    if (!IsText(type) || size == 0 || data[size - 1] == 0)
    {
        return Record(RegSetValueExA(Key(), name, 0, type, data, size));
    }
    return Record(vorn::CodeOf(
        [&]
        {
            return StoreUnended(Key(), name, type, data, size);
        }));
}

// Reads a value of any length, which may grow between two calls.
bool Registry::ReadWhole(const char* name, KeyValueTypes& type, std::vector<BYTE>& data)
{
    DWORD size = 1024;
    do
    {
        data.resize(std::max<std::size_t>(size, 2 * data.size()));
        size = static_cast<DWORD>(data.size());
        if (QueryValue(name, type, data.data(), size))
        {
            data.resize(size);
            return true;
        }
    } while (m_lastError == ERROR_MORE_DATA);
    return false;
}
