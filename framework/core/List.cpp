#include "framework/core/List.h"

IMPLEMENT_DYNCREATE(CPtrList, CObject)
IMPLEMENT_DYNCREATE(CObList, CObject)
IMPLEMENT_DYNCREATE(CStringList, CObject)
