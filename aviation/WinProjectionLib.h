#pragma once

#include "family/VornChart/core/ProjectionLib.h"
#include "frame/core/Export.h"
#include "framework/core/BaseTypes.h"

#include <memory>

/// The registry of projections on this platform: after the built-in ones come those of plug-in modules, dynamic
/// libraries as include/vornplugin.h describes them. Used from one thread.
///
/// The order of the virtual operations is part of the interface.
class VORNCOMMON_API WinProjectionLib : public ProjectionLib
{
public:
    ~WinProjectionLib() override;

    /// Makes the process's registry and loads the modules at @p paths.
    /// @return false, and nothing happens, when there is a registry already.
    static bool Init(char** paths, int count);

    /// Ends and deletes the registry and lets its modules go. Projections that they made live on.
    static void Deinit();

    /// A new projection, which the caller deletes; null for a number that there is not.
    ///
    /// A module that turns out unable to make one is let go, and null returned. Its name stays, so from then on each
    /// later number means the module after the one that it names, and the last number none.
    Projection* CreateProjection(int index) override;

protected:
    /// Loads modules after the built-in projections. One that does not load, or that does not tell a readable name, is
    /// let go at once; the log says so. @return whether there is any projection.
    bool sInit(char** paths, int count) override;
    void sDeinit() override;

private:
    WinProjectionLib();
    void LoadModule(const char* path);
    void FreeModules();
    Projection* CreateFromModule(int slot);
    void DropModule(int slot);

    std::unique_ptr<HMODULE[]> m_modules; ///< the loaded ones, in the order of their names
    int m_moduleCount = 0;
};
