#pragma once

/// @file
/// Frames' extras: control bars, printing, metafile contexts.
#include "framework/bars/CControlBar.h"
#include "framework/bars/CDialogBar.h"
#include "framework/bars/CDockBar.h"
#include "framework/bars/CStatusBar.h"
#include "framework/bars/CToolBar.h"
#include "framework/frames/CDockState.h"
#include "framework/frames/CFloatingBarFrame.h"
#include "framework/frames/CFormView.h"
#include "framework/frames/CMiniFrameWnd.h"
#include "framework/frames/CPrintInfo.h"
#include "framework/frames/CScrollView.h"
#include "framework/gdi/CMetaFileDC.h"
#include "framework/include/afxwin.h"
