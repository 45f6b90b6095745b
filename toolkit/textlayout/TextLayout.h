#pragma once

/// @file
/// The tree of boxes that fits texts into a rectangle.
#include "toolkit/textlayout/Text.h"
#include "toolkit/textlayout/core/Alignment.h"
#include "toolkit/textlayout/core/Item.h"
#include "toolkit/textlayout/core/Root.h"
#include "toolkit/textlayout/core/Split.h"
#include "toolkit/textlayout/core/Table.h"
