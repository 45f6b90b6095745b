#pragma once

#include "apps/planner/shots/ShotRun.h"

class MainFrame;

/// Pictures of the sample's own dialogs: preferences, proxies, log, about.
void TakeSampleShots(MainFrame& frame, vorn::planner::ShotRun& run);
