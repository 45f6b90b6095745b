#include "framework/app/AppState.h"

#include "framework/app/AppNames.h"
#include "framework/window/CWinApp.h"
#include "framework/window/ModuleState.h"

#include <atomic>

namespace
{

constinit std::atomic<CWinApp*> currentApp = nullptr;
constinit std::atomic<HINSTANCE> currentInstance = nullptr;
constinit std::atomic<HINSTANCE> currentResources = nullptr;
constinit std::atomic<HINSTANCE> frameworkModule = nullptr;

} // namespace

void vorn::SetApp(CWinApp* app)
{
    currentApp = app;
}

void vorn::ForgetApp(const CWinApp* app)
{
    auto* expected = const_cast<CWinApp*>(app);
    currentApp.compare_exchange_strong(expected, nullptr);
}

void vorn::SetInstance(HINSTANCE instance)
{
    currentInstance = instance;
}

HINSTANCE vorn::FrameworkModule()
{
    return frameworkModule;
}

void vorn::SetFrameworkModule(HINSTANCE module)
{
    frameworkModule = module;
}

CWinApp* AfxGetApp()
{
    return currentApp;
}

LPCTSTR AfxGetAppName()
{
    const CWinApp* app = AfxGetApp();
    return app && app->m_pszAppName ? app->m_pszAppName : vorn::ProgramName();
}

HINSTANCE AfxGetInstanceHandle()
{
    const HINSTANCE instance = currentInstance;
    return instance ? instance : ::GetModuleHandle(nullptr);
}

void AfxSetInstanceHandle(HINSTANCE hInstance)
{
    vorn::SetInstance(hInstance);
}

HINSTANCE AfxGetResourceHandle()
{
    const HINSTANCE resources = currentResources;
    return resources ? resources : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE hInstResource)
{
    currentResources = hInstResource;
}
