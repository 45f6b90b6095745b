#pragma once

#include <VornCommon.h>

/// The projections in the Chart menu: one item for each that the registry knows, plug-ins included. Command identifiers
/// run from ID_CHART_PROJECTION in the registry's order.
class ProjectionsMenu
{
public:
    /// Puts the items in place of the one that stands for them. False for a menu without that one.
    static bool Fill(CMenu& menu);
};
