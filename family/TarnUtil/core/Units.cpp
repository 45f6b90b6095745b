#include "family/TarnUtil/core/Units.h"
