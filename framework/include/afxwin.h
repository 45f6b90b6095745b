#pragma once

/// @file
/// Windows, threads, the application: the framework's central header.
#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CBrush.h"
#include "framework/gdi/CClientDC.h"
#include "framework/gdi/CDC.h"
#include "framework/gdi/CFont.h"
#include "framework/gdi/CPaintDC.h"
#include "framework/gdi/CPalette.h"
#include "framework/gdi/CPen.h"
#include "framework/gdi/CRgn.h"
#include "framework/gdi/CWindowDC.h"
#include "framework/include/afx.h"
#include "framework/include/afxres.h"
#include "framework/window/CCmdTarget.h"
#include "framework/window/CCmdUI.h"
#include "framework/window/CMenu.h"
#include "framework/window/CWinApp.h"
#include "framework/window/CWinThread.h"
#include "framework/window/CWnd.h"
#include "framework/window/ModuleState.h"
