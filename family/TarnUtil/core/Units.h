#pragma once

#include "family/TarnUtil/core/Export.h"

/// Codes of the family's units. -1 asks for the automatic choice.
enum UNIT : int
{
    UNIT_AUTO = -1,
};
