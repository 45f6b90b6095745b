#pragma once

#include "family/VornChart/core/ViewDefinition.h"
#include "frame/core/Export.h"

/// Fills a view from the host's settings: from the text under key @p name of section @p section, or, while "Projection"
/// of section @p section or of section @p name holds a number, from the older layout of one key for each field, which
/// is read there and stays as it is. Without settings it is the text "v1|1|0|0|0|0|0|0|180|0|25|0|". Either way @p name
/// becomes the view's key.
///
/// @return what the view's Parse() answers; false for a null view. Null names are empty ones.
VORNCOMMON_API bool LoadViewDef(ViewDefinition* view, const char* section, const char* name);
