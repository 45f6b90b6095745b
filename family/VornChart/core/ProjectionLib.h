#pragma once

#include "family/VornChart/core/Export.h"
#include "family/VornChart/core/Projection.h"
#include "framework/core/CString.h"

#include <vector>

/// What the registry knows of one projection.
struct ProjectionRecord
{
    CString name; ///< display name
};

/// The process's registry of projections: the built-in ones first, then those that a derived registry adds. Used from
/// one thread.
///
/// The order of the virtual operations is part of the interface.
class VORNCHART_API ProjectionLib
{
public:
    ProjectionLib();
    ProjectionLib(const ProjectionLib&) = delete;
    ProjectionLib& operator=(const ProjectionLib&) = delete;

    /// A new projection of one of the registry's numbers, which the caller deletes; null when there is none.
    virtual Projection* CreateProjection(int index);

    /// The one registry; null until a derived class or a host makes it. Deinit() deletes it.
    static ProjectionLib* mpInstance;

    /// Starts the registry with the paths of @p count plug-in modules.
    /// @return false when there is no registry, and otherwise whether it knows any projection.
    static bool Init(char** paths, int count);

    /// Ends and deletes the registry; nothing happens when there is none.
    static void Deinit();

    /// How many projections have names here; numbers run from 0.
    int NumProjections() const;
    /// How many of them, the first ones, are built in.
    int NumBuiltIn() const;
    /// Display name; null for a number that there is not.
    const char* ProjectionName(int index) const;

protected:
    /// Enters the names of the built-in projections, in place of all that are there. @return whether there are any.
    virtual bool sInit(char** paths, int count);
    /// Forgets all names.
    virtual void sDeinit();

public:
    virtual ~ProjectionLib();

protected:
    std::vector<ProjectionRecord> mProjections; ///< all, the built-in ones first
    int mNumBuiltIn = 0;
};
