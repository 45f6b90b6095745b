#include "framework/core/CString.h"
#include "framework/core/OleException.h"
#include "framework/core/StringResourceHook.h"
#include "framework/window/ModuleState.h"

#include <cstdarg>

namespace
{
bool LoadFromChain(CString& text, unsigned int id)
{
    return AfxLoadString(id, text) != FALSE;
}

// Strings may be made before the program begins, so the way to the resources is open from load on.
[[maybe_unused]] const bool g_isLoaderSet = []
{
    vorn::SetStringResourceLoader(&LoadFromChain);
    return true;
}();

CString FormatOf(UINT id)
{
    CString format;
    if (!AfxLoadString(id, format))
    {
        AtlThrow(E_INVALIDARG);
    }
    return format;
}
} // namespace

BOOL CString::LoadString(UINT nID)
{
    return AfxLoadString(nID, *this);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID)
{
    // With no room given, the system points to the text inside the module.
    LPWSTR source = nullptr;
    const int length = LoadStringW(hInstance, nID, reinterpret_cast<LPWSTR>(&source), 0);
    if (length <= 0 || source == nullptr)
    {
        return FALSE;
    }
    CString text;
    const int size = WideCharToMultiByte(CP_ACP, 0, source, length, nullptr, 0, nullptr, nullptr);
    WideCharToMultiByte(CP_ACP, 0, source, length, text.GetBufferSetLength(size), size, nullptr, nullptr);
    *this = text;
    return TRUE;
}

void CString::Format(UINT nFormatID, ...)
{
    const CString format = FormatOf(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatV(format, args);
    va_end(args);
}

void CString::AppendFormat(UINT nFormatID, ...)
{
    const CString format = FormatOf(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    AppendFormatV(format, args);
    va_end(args);
}
