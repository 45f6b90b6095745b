#pragma once

#include <VornCommon.h>

/// Control numbers of the table page, beside those of its commands.
enum TableControlId : UINT
{
    kTableList = 2200,
    kTableField,
    kTableValue,
    kTableMethod,
    kTableMatchCase,
    kTableFields,
    kTableMemo,
    kTableNotice,
};
