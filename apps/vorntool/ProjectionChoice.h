#pragma once

#include "apps/vorntool/core/Command.h"

#include <VornCommon.h>

#include <memory>
#include <optional>
#include <string>

namespace vorn::tool
{

/// The options of every command on projections.
inline constexpr Option kPluginsOption = {"plugins", "FILES", "load projection plug-ins too, FILE;FILE"};

/// The registry of projections with the plug-ins that a call names; it ends with the object.
class ProjectionRegistry
{
public:
    ProjectionRegistry() = default;
    ~ProjectionRegistry();
    ProjectionRegistry(const ProjectionRegistry&) = delete;
    ProjectionRegistry& operator=(const ProjectionRegistry&) = delete;

    /// False when a plug-in cannot be used; that is reported.
    static bool Start(const Command& self, const Invocation& call, Output& output);
};

/// Where the projection of a call lies, and in which unit its map coordinates are printed.
struct ProjectionSetup
{
    std::unique_ptr<Projection> projection;
    double unit; ///< map coordinates for one Earth radius
};

/// The projection that a call names first, by number or name, with the call's parameters, map pole and skew. Nothing
/// when that is not possible; `status` then says what to end with, and the reason is reported.
std::optional<ProjectionSetup> TakeProjection(const Command& self, const Invocation& call, Output& output,
                                              ExitStatus& status);

} // namespace vorn::tool
