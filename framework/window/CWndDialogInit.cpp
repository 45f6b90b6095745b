#include "framework/window/CWnd.h"

#include "framework/core/DialogInit.h"
#include "framework/window/ModuleState.h"

namespace
{

/// Resource type of the first contents of a dialog's lists.
constexpr WORD kDialogInitType = 240;

/// The message numbers are stored as they were on older systems.
UINT CurrentMessageNumber(UINT stored)
{
    switch (stored)
    {
    case 0x0401:
        return LB_ADDSTRING;
    case 0x0403:
        return CB_ADDSTRING;
    default:
        return stored;
    }
}

void FillLists(HWND dialog, std::span<const std::uint8_t> bytes)
{
    for (const auto& entry : vorn::ReadDialogInit(bytes))
    {
        ::SendDlgItemMessageA(dialog, entry.controlId, CurrentMessageNumber(entry.message), 0,
                              reinterpret_cast<LPARAM>(entry.data.c_str()));
    }
}

/// Memory of unknown size holds whole records up to the end mark: its length is where they end.
std::size_t LengthOfRecords(const std::uint8_t* bytes)
{
    std::size_t offset = 0;
    const auto word = [&](std::size_t at)
    {
        return static_cast<std::size_t>(bytes[at] | bytes[at + 1] << 8);
    };
    while (word(offset) != 0)
    {
        offset += 8 + (word(offset + 4) | word(offset + 6) << 16);
    }
    return offset + 2;
}

} // namespace

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName)
{
    const LPCTSTR type = MAKEINTRESOURCE(kDialogInitType);
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, type);
    const HRSRC resource = ::FindResource(module, lpszResourceName, type);
    if (!resource)
    {
        return TRUE; // most dialogs have none
    }
    const auto* bytes = static_cast<const std::uint8_t*>(::LockResource(::LoadResource(module, resource)));
    if (!bytes)
    {
        return FALSE;
    }
    FillLists(m_hWnd, {bytes, ::SizeofResource(module, resource)});
    return TRUE;
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource)
{
    if (lpResource)
    {
        const auto* bytes = static_cast<const std::uint8_t*>(lpResource);
        FillLists(m_hWnd, {bytes, LengthOfRecords(bytes)});
    }
    return TRUE;
}
