#include "framework/window/ModuleState.h"

#include "framework/app/AppState.h"
#include "framework/app/ExtensionModules.h"

#include <algorithm>

namespace
{

/// Calls @p found with each module of the chain until it answers true.
template <class Predicate>
HINSTANCE FirstModule(Predicate found)
{
    if (found(AfxGetResourceHandle()))
    {
        return AfxGetResourceHandle();
    }
    for (const HMODULE module : vorn::ExtensionResources())
    {
        if (found(module))
        {
            return module;
        }
    }
    const HINSTANCE own = vorn::FrameworkModule();
    return own && found(own) ? own : nullptr;
}

/// String tables are stored in blocks of 16, named by number from 1.
LPCTSTR BlockName(UINT id)
{
    return MAKEINTRESOURCE((id >> 4) + 1);
}

struct TableText
{
    const WCHAR* text = nullptr;
    int length = 0;
};

/// One text of a module's string table, in place; null and 0 when it is not there or empty.
TableText FindText(HINSTANCE module, UINT id)
{
    const HRSRC resource = ::FindResource(module, BlockName(id), RT_STRING);
    const auto* block =
        resource ? static_cast<const WCHAR*>(::LockResource(::LoadResource(module, resource))) : nullptr;
    if (!block)
    {
        return {};
    }
    const WCHAR* const end = block + ::SizeofResource(module, resource) / sizeof(WCHAR);
    for (UINT index = id & 15; index > 0 && block < end; --index)
    {
        block += 1 + *block;
    }
    if (block >= end || *block == 0 || block + 1 + *block > end)
    {
        return {};
    }
    return {block + 1, *block};
}

TableText FindText(UINT id)
{
    TableText text;
    FirstModule(
        [&](HINSTANCE module)
        {
            text = FindText(module, id);
            return text.text != nullptr;
        });
    return text;
}

int ToMultiByte(const TableText& text, LPTSTR buffer, int size)
{
    return ::WideCharToMultiByte(CP_ACP, 0, text.text, text.length, buffer, size, nullptr, nullptr);
}

} // namespace

HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType)
{
    const HINSTANCE module = FirstModule(
        [&](HINSTANCE candidate)
        {
            return ::FindResource(candidate, lpszName, lpszType) != nullptr;
        });
    return module ? module : AfxGetResourceHandle();
}

HINSTANCE AfxFindStringResourceHandle(UINT nID)
{
    return FirstModule(
        [&](HINSTANCE module)
        {
            return FindText(module, nID).text != nullptr;
        });
}

BOOL AfxLoadString(UINT nID, CString& text)
{
    const TableText found = FindText(nID);
    if (!found.text)
    {
        return FALSE;
    }
    const int size = ToMultiByte(found, nullptr, 0);
    ToMultiByte(found, text.GetBuffer(size), size);
    text.ReleaseBuffer(size);
    return TRUE;
}

int AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf)
{
    if (!lpszBuf || nMaxBuf == 0)
    {
        return 0;
    }
    CString text;
    AfxLoadString(nID, text);
    const int length = std::min(text.GetLength(), static_cast<int>(nMaxBuf) - 1);
    std::copy_n(text.GetString(), length, lpszBuf);
    lpszBuf[length] = '\0';
    return length;
}
