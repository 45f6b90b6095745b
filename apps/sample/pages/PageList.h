#pragma once

#include "apps/sample/pages/Page.h"

#include <memory>
#include <vector>

/// All pages of the sample, in the order of the rail.
std::vector<std::unique_ptr<Page>> MakePages();
