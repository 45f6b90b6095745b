#include "tests/support/ProcessId.h"

#include <windows.h>

unsigned long vorn::test::ProcessId()
{
    return GetCurrentProcessId();
}
