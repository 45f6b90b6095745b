#pragma once

/// @file
/// Everything that a host application needs of the library: the framework, the companions and the whole public
/// interface.
#include "framework/include/afx.h"
#include "framework/include/afxcmn.h"
#include "framework/include/afxcoll.h"
#include "framework/include/afxdlgs.h"
#include "framework/include/afxext.h"
#include "framework/include/afxtempl.h"
#include "framework/include/afxwin.h"

#include <commctrl.h>
#include <prsht.h>

#include "family/TarnUtil/core/FixCase.h"
#include "family/TarnUtil/core/SynchObject.h"
#include "family/TarnUtil/core/TarnObject.h"
#include "family/TarnUtil/core/Units.h"
#include "family/VornChart/VornChartApp.h"
#include "family/VornChart/core/VornLog.h"

#include "aviation/ConversionBoy.h"
#include "aviation/Date.h"
#include "aviation/Formatting.h"
#include "config/AppRegData.h"
#include "config/AppRegMgr.h"
#include "config/DefinedPathSetting.h"
#include "config/GlobalRegData.h"
#include "config/PathMgr.h"
#include "config/Registry.h"
#include "files/BrowseForDirectory.h"
#include "files/core/CDBFFile.h"
#include "files/core/CFileFindInExtSet.h"
#include "files/core/FileExists.h"
#include "frame/CriticalSectionLock.h"
#include "frame/PriorityBoost.h"
#include "frame/ProgramVersion.h"
#include "frame/SystemVersion.h"
#include "frame/TimerMgr.h"
#include "frame/VornCommonApp.h"
#include "frame/VornStrings.h"
#include "frame/Win32CriticalSection.h"
#include "frame/WindowPlacement.h"
#include "frame/core/BaseN.h"
#include "frame/core/CSortableStringArray.h"
#include "frame/core/ProgramStats.h"
#include "frame/core/Serialisation.h"
#include "frame/core/StringBuffer.h"
#include "frame/core/TextUtilities.h"
