#include "frame/core/ArgumentArray.h"
#include "frame/core/StringViews.h"
#include "frame/core/TextUtilities.h"

#include <windows.h>

#include <string_view>

void ProcessCommandLine(const char* commandLine, int& argc, char**& argv, bool includeProgram)
{
    // One more than the system fills: a name that is too long is cut without an end.
    char program[MAX_PATH + 1] = {};
    if (includeProgram)
        GetModuleFileNameA(nullptr, program, MAX_PATH);
    vorn::MakeArguments(vorn::ViewOf(commandLine), includeProgram ? program : nullptr, argc, argv);
}
