#pragma once

/// @file
/// The collection templates.
#include "framework/core/TypedPtr.h"
#include "framework/include/afxcoll.h"
