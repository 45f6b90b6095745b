#pragma once

/// @file
/// The system's common controls.
#include "framework/include/afxwin.h"

#include "framework/controls/CCheckListBox.h"
#include "framework/controls/CHeaderCtrl.h"
#include "framework/controls/CImageList.h"
#include "framework/controls/CListCtrl.h"
#include "framework/controls/CProgressCtrl.h"
#include "framework/controls/CRichEditCtrl.h"
#include "framework/controls/CSliderCtrl.h"
#include "framework/controls/CSpinButtonCtrl.h"
#include "framework/controls/CTabCtrl.h"
#include "framework/controls/CToolTipCtrl.h"
#include "framework/controls/CTreeCtrl.h"
