#include "aviation/WinProjectionLib.h"

#include "aviation/ReadableText.h"
#include "family/VornChart/core/ExternalProj.h"
#include "family/VornChart/core/VornLog.h"
#include "files/core/NoThrow.h"
#include "frame/QuietErrors.h"

#include <algorithm>
#include <new>
#include <type_traits>
#include <vornplugin.h>

namespace
{
struct ModuleFreer
{
    void operator()(HMODULE module) const
    {
        FreeLibrary(module);
    }
};
using OwnedModule = std::unique_ptr<std::remove_pointer_t<HMODULE>, ModuleFreer>;

template <typename Function>
Function* EntryOf(HMODULE module, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(GetProcAddress(module, name)));
}

constexpr int kDestroyEntry = 1; // of an ExternalProj

/// Only with a full path may a module's own folder come first in the search for what it needs.
bool IsFullPath(const char* path)
{
    return path[0] != '\0' && (path[1] == ':' || (path[0] == '\\' && path[1] == '\\'));
}

OwnedModule Load(const char* path)
{
    const vorn::QuietErrors quiet;
    return OwnedModule(LoadLibraryExA(path, nullptr, IsFullPath(path) ? LOAD_WITH_ALTERED_SEARCH_PATH : 0));
}

std::optional<std::string> NameOf(HMODULE module)
{
    auto* const query = EntryOf<decltype(::QueryProjectionName)>(module, "QueryProjectionName");
    return query ? vorn::ReadableText(query()) : std::nullopt;
}

void LogSkipped(const char* path, const char* reason)
{
    if (VornLog* const log = VornLog::Shared())
    {
        const std::string text = std::string("Projection module ") + path + " skipped: " + reason;
        log->LogMsg(text, LOG_WARNING);
    }
}
} // namespace

WinProjectionLib::WinProjectionLib() = default;

WinProjectionLib::~WinProjectionLib()
{
    FreeModules();
}

bool WinProjectionLib::Init(char** paths, int count)
{
    if (mpInstance)
    {
        return false;
    }
    mpInstance = new (std::nothrow) WinProjectionLib; // Deinit deletes it
    const bool isReady = vorn::NoThrow(false,
                                       [=]
                                       {
                                           return ProjectionLib::Init(paths, count);
                                       });
    if (!isReady)
    {
        Deinit();
    }
    return isReady;
}

void WinProjectionLib::Deinit()
{
    ProjectionLib::Deinit();
}

bool WinProjectionLib::sInit(char** paths, int count)
{
    ProjectionLib::sInit(paths, count);
    FreeModules();
    if (paths && count > 0)
    {
        m_modules = std::make_unique<HMODULE[]>(static_cast<std::size_t>(count));
        std::for_each_n(paths, count,
                        [this](const char* path)
                        {
                            LoadModule(path);
                        });
    }
    return NumProjections() > 0;
}

void WinProjectionLib::LoadModule(const char* path)
{
    if (!path)
    {
        return;
    }
    OwnedModule module = Load(path);
    if (!module)
    {
        LogSkipped(path, "it cannot be loaded");
        return;
    }
    const auto name = NameOf(module.get());
    if (!name)
    {
        LogSkipped(path, "it tells no readable name");
        return;
    }
    mProjections.push_back({name->c_str()});
    m_modules[static_cast<std::size_t>(m_moduleCount++)] = module.release();
}

void WinProjectionLib::sDeinit()
{
    FreeModules();
    ProjectionLib::sDeinit();
}

void WinProjectionLib::FreeModules()
{
    std::for_each_n(m_modules.get(), m_moduleCount, FreeLibrary);
    m_moduleCount = 0;
    m_modules.reset();
}

Projection* WinProjectionLib::CreateProjection(int index)
{
    if (index < 0 || index >= NumProjections())
    {
        return nullptr;
    }
    return vorn::NoThrow<Projection*>(nullptr,
                                      [this, index]
                                      {
                                          Projection* const builtIn = Projection::CreateProjection(index);
                                          return builtIn ? builtIn : CreateFromModule(index - NumBuiltIn());
                                      });
}

Projection* WinProjectionLib::CreateFromModule(int slot)
{
    // A built-in projection comes here when there was no memory for it. Once a module was dropped there are fewer of
    // them than names.
    if (slot < 0 || slot >= m_moduleCount)
    {
        return nullptr;
    }
    HMODULE const module = m_modules[static_cast<std::size_t>(slot)];
    auto* const create = EntryOf<decltype(::CreateProjection)>(module, "CreateProjection");
    if (!create)
    {
        DropModule(slot);
        return nullptr;
    }
    // Memory first: without it the module is not asked for a projection that nobody could end.
    std::unique_ptr<ExternalProj> projection(new (std::nothrow) ExternalProj(create()));
    if (!projection)
    {
        return nullptr;
    }
    for (int i = 0; i < ExternalProj::kEntryPoints; ++i)
    {
        const int entry = (i + kDestroyEntry) % ExternalProj::kEntryPoints; // first of all the one that ends it
        projection->Bind(entry, GetProcAddress(module, ExternalProj::EntryPointName(entry)));
    }
    projection->Init(); // what it answers is the projection's own affair
    return projection.release();
}

void WinProjectionLib::DropModule(int slot)
{
    HMODULE* const first = m_modules.get() + slot;
    FreeLibrary(*first);
    std::copy(first + 1, m_modules.get() + m_moduleCount, first);
    --m_moduleCount;
}
