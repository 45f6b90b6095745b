#pragma once

/// @file
/// Arrays, lists and maps of the types that are used most.
#include "framework/core/Array.h"
#include "framework/core/List.h"
#include "framework/core/Map.h"
#include "framework/include/afx.h"
