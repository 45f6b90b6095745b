#pragma once

/// @file
/// Windows, threads, the application: the framework's central header.
#include "framework/include/afx.h"
#include "framework/include/afxres.h"
#include "framework/window/CCmdTarget.h"
#include "framework/window/CCmdUI.h"
#include "framework/window/CMenu.h"
#include "framework/window/CWinApp.h"
#include "framework/window/CWinThread.h"
#include "framework/window/CWnd.h"
#include "framework/window/ModuleState.h"
