#pragma once

/// @file
/// The framework's basic classes: objects, strings, exceptions.
#include "framework/core/BaseTypes.h"
#include "framework/core/CString.h"
#include "framework/core/Diagnostics.h"
#include "framework/core/Exception.h"
#include "framework/core/File.h"
#include "framework/core/FileFind.h"
#include "framework/core/Geometry.h"
#include "framework/core/MemFile.h"
#include "framework/core/Object.h"
#include "framework/core/OleException.h"
#include "framework/core/RuntimeClass.h"
#include "framework/core/StdioFile.h"
#include "framework/core/Time.h"
