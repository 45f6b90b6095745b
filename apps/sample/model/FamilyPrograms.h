#pragma once

#include "apps/sample/core/ReportTable.h"

/// The family's programs that are installed, with their versions, and the ground that they run on.
vorn::ReportTable FamilyProgramsTable();
