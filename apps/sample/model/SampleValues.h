#pragma once

#include "apps/sample/core/ReportTable.h"

/// Quantities that a pilot meets, each as the applications hold it and in the user's units.
vorn::ReportTable SampleValuesTable();
