#include "config/Registry.h"

bool Registry::GetSecurity(SECURITY_INFORMATION information, void* descriptor, DWORD& size)
{
    size = descriptor != nullptr ? size : 0;
    return Record(RegGetKeySecurity(Key(), information, descriptor, &size));
}

bool Registry::SetSecurity(const DWORD& information, void* descriptor)
{
    return Record(descriptor != nullptr ? RegSetKeySecurity(Key(), information, descriptor) : ERROR_INVALID_PARAMETER);
}

bool Registry::NotifyChange(HANDLE event, NotifyChangeFilter filter, bool watchSubtree, bool wait)
{
    if (event == nullptr && !wait)
    {
        return Record(ERROR_INVALID_PARAMETER);
    }
    return Record(RegNotifyChangeKeyValue(Key(), watchSubtree, filter, event, !wait));
}
