#pragma once

/// @file
/// The system's common dialogs, property sheets and wizards.
#include "framework/include/afxwin.h"

#include "framework/dialog/CColorDialog.h"
#include "framework/dialog/CCommonDialog.h"
#include "framework/dialog/CFileDialog.h"
#include "framework/dialog/CFontDialog.h"
#include "framework/dialog/CPrintDialog.h"
#include "framework/dialog/CPropertyPage.h"
#include "framework/dialog/CPropertySheet.h"

#include <prsht.h>
