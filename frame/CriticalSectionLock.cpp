// Gives the inline members their exported copies, for callers whose compiler does not inline them.
#include "frame/CriticalSectionLock.h"
