#include "config/Registry.h"

namespace
{
// Without a key the system is not asked: it would answer by the caller's privileges alone.
template <class Call>
LSTATUS Ask(HKEY key, bool isComplete, Call call)
{
    if (!isComplete)
    {
        return ERROR_INVALID_PARAMETER;
    }
    return key != nullptr ? call() : ERROR_INVALID_HANDLE;
}
} // namespace

bool Registry::Load(const char* subkey, const char* file)
{
    return Record(Ask(Root(), subkey != nullptr && file != nullptr,
                      [&]
                      {
                          return RegLoadKeyA(Root(), subkey, file);
                      }));
}

bool Registry::UnLoad(const char* subkey)
{
    return Record(Ask(Root(), subkey != nullptr,
                      [&]
                      {
                          return RegUnLoadKeyA(Root(), subkey);
                      }));
}

bool Registry::Save(const char* file, SECURITY_ATTRIBUTES* security)
{
    return Record(Ask(Key(), file != nullptr,
                      [&]
                      {
                          return RegSaveKeyA(Key(), file, security);
                      }));
}

bool Registry::Restore(const char* file, DWORD flags)
{
    return Record(Ask(Key(), file != nullptr,
                      [&]
                      {
                          return RegRestoreKeyA(Key(), file, flags);
                      }));
}

bool Registry::Replace(const char* subkey, const char* newFile, const char* oldFile)
{
    return Record(Ask(Key(), newFile != nullptr && oldFile != nullptr,
                      [&]
                      {
                          return RegReplaceKeyA(Key(), subkey, newFile, oldFile);
                      }));
}
