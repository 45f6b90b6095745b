#pragma once

#include "apps/chart/core/ChartFeatures.h"
#include "apps/chart/core/Shores.h"

#include <string>
#include <vector>

namespace vorn::chart
{

/// All that the chart of a region is made of.
struct ChartData
{
    std::vector<Aid> aids;
    std::vector<Aerodrome> aerodromes;
    std::vector<Shore> shores;
};

/// Reads the tables navaids.dbf, runways.dbf and shores.dbf of a folder, whose name ends with its separator. A table
/// that cannot be opened leaves its part empty; records that make no sense are passed over.
/// @return the tables that could not be opened, parted by commas; empty when all could.
std::string ReadChartData(const std::string& folder, ChartData& data);

} // namespace vorn::chart
