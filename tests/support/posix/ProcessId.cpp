#include "tests/support/ProcessId.h"

#include <unistd.h>

unsigned long vorn::test::ProcessId()
{
    return static_cast<unsigned long>(getpid());
}
