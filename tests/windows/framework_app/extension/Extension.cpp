#include "tests/windows/framework_app/extension/Extension.h"

namespace
{

AFX_EXTENSION_MODULE extension;

} // namespace

BEGIN_MESSAGE_MAP(ExtensionWindow, CWnd)
ON_MESSAGE(kExtensionMessage, &ExtensionWindow::OnExtension)
ON_MESSAGE(kSharedMessage, &ExtensionWindow::OnShared)
END_MESSAGE_MAP()

LRESULT ExtensionWindow::OnExtension(WPARAM wParam, LPARAM)
{
    ++extensionCalls;
    return static_cast<LRESULT>(wParam) + 1;
}

LRESULT ExtensionWindow::OnShared(WPARAM, LPARAM)
{
    ++extensionCalls;
    return 100;
}

void LeaveChain()
{
    AfxTermExtensionModule(extension);
}

void JoinChain()
{
    if (AfxInitExtensionModule(extension, ExtensionModule()))
    {
        new CDynLinkLibrary(extension); // AfxTermExtensionModule deletes it
    }
}

namespace
{

HINSTANCE self = nullptr;

} // namespace

HINSTANCE ExtensionModule()
{
    return self;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        self = module;
        JoinChain();
    }
    else if (reason == DLL_PROCESS_DETACH)
    {
        LeaveChain();
    }
    return TRUE;
}
