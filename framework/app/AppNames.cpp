#include "framework/app/AppNames.h"

#include <cstdlib>
#include <cstring>

namespace vorn
{

LPCTSTR CopyName(LPCTSTR name)
{
    if (!name)
    {
        return nullptr;
    }
    const std::size_t size = std::strlen(name) + 1;
    auto* copy = static_cast<char*>(std::malloc(size)); // hosts release names with free()
    if (copy)
    {
        std::memcpy(copy, name, size);
    }
    return copy;
}

void FreeName(LPCTSTR name)
{
    std::free(const_cast<LPTSTR>(name)); // hosts assign names from strdup()
}

void ReplaceName(LPCTSTR& name, LPCTSTR value)
{
    LPCTSTR before = name;
    name = CopyName(value);
    FreeName(before);
}

CString ModulePath(HMODULE module)
{
    CString path;
    for (int size = MAX_PATH;; size *= 2)
    {
        const int length =
            static_cast<int>(::GetModuleFileName(module, path.GetBuffer(size), static_cast<DWORD>(size)));
        path.ReleaseBuffer(length);
        if (length < size)
        {
            return path;
        }
    }
}

CString BaseName(const CString& path)
{
    const int slash = path.ReverseFind('\\');
    const CString file = path.Mid(slash + 1);
    const int dot = file.ReverseFind('.');
    return dot > 0 ? file.Left(dot) : file;
}

LPCTSTR ProgramName()
{
    static const CString name = BaseName(ModulePath(nullptr));
    return name;
}

} // namespace vorn
