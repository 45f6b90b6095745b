#include "framework/include/afxwin.h"

#include <new>

namespace
{
AFX_EXTENSION_MODULE g_module; // the framework asks for one zeroed record in each extension module
}

/// Joins the host's resource chain, so that it finds the library's dialogs, texts and icons, and leaves it again.
/// Nothing else happens at load.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH && AfxInitExtensionModule(g_module, instance))
    {
        new CDynLinkLibrary(g_module); // owned by the framework until the module ends
    }
    else if (reason == DLL_PROCESS_DETACH)
    {
        AfxTermExtensionModule(g_module);
    }
    return TRUE;
}
