#include "framework/app/ExtensionModules.h"

#include "framework/app/AppState.h"
#include "framework/window/ModuleState.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

namespace
{

/// Modules join and leave under the system's loader lock, on any thread.
constinit SRWLOCK chainLock = SRWLOCK_INIT;

class ChainLock
{
public:
    ChainLock()
    {
        ::AcquireSRWLockExclusive(&chainLock);
    }
    ChainLock(const ChainLock&) = delete;
    ChainLock& operator=(const ChainLock&) = delete;
    ~ChainLock()
    {
        ::ReleaseSRWLockExclusive(&chainLock);
    }
};

/// All libraries, newest first. Never destroyed: modules may leave after the framework's own objects went.
std::vector<CDynLinkLibrary*>& Libraries()
{
    static auto* const libraries = new std::vector<CDynLinkLibrary*>; // lives as long as the process
    return *libraries;
}

} // namespace

namespace vorn
{

std::vector<HMODULE> ExtensionResources()
{
    std::vector<HMODULE> modules;
    const ChainLock lock;
    for (const bool system : {false, true})
    {
        for (const CDynLinkLibrary* library : Libraries())
        {
            if ((library->m_bSystem != FALSE) == system)
            {
                modules.push_back(library->m_hResource);
            }
        }
    }
    return modules;
}

} // namespace vorn

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : CDynLinkLibrary(state.hModule, state.hResource)
{
    m_bSystem = bSystem;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(FALSE)
{
    const ChainLock lock;
    Libraries().insert(Libraries().begin(), this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    const ChainLock lock;
    std::erase(Libraries(), this);
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    if (!state.bInitialized)
    {
        state.bInitialized = TRUE;
        state.hModule = hModule;
        state.hResource = hModule;
    }
    return TRUE;
}

namespace
{

/// The newest library object of a module, or of any.
CDynLinkLibrary* FirstOf(HMODULE module, bool any)
{
    const ChainLock lock;
    const auto found = std::ranges::find_if(Libraries(),
                                            [&](const CDynLinkLibrary* library)
                                            {
                                                return any || library->m_hModule == module;
                                            });
    return found == Libraries().end() ? nullptr : *found;
}

} // namespace

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    if (!state.bInitialized)
    {
        return;
    }
    while (CDynLinkLibrary* library = FirstOf(state.hModule, bAll != FALSE))
    {
        delete library; // DllMain made it with new; its destructor takes it off the chain
    }
    if (AfxGetResourceHandle() == state.hModule)
    {
        AfxSetResourceHandle(nullptr);
    }
    state.bInitialized = FALSE;
}
