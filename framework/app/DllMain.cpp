#include "framework/app/AppState.h"
#include "framework/core/Exception.h"
#include "framework/core/StringData.h"
#include "framework/window/CWinApp.h"
#include "framework/window/ThreadState.h"

namespace
{

/// Shows exceptions' descriptions; without one the message of the given number.
int ReportInBox(LPCSTR message, UINT type, UINT messageId)
{
    const bool described = message && *message;
    return described ? AfxMessageBox(message, type) : AfxMessageBox(messageId, type);
}

void Join(HINSTANCE module)
{
    vorn::SetFrameworkModule(module);
    CException::SetReportFunction(&ReportInBox);
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID processEnds)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        Join(module);
    }
    else if (reason == DLL_THREAD_DETACH)
    {
        vorn::ReleaseThreadState();
    }
    else if (reason == DLL_PROCESS_DETACH && !processEnds)
    {
        // The library is unloaded and the process stays: nothing of ours may be left behind.
        vorn::ReleaseThreadState();
        vorn::UnregisterClasses();
        vorn::ReleaseThreadSlot();
        vorn::CloseStringPool();
    }
    return TRUE;
}
