#include "apps/vorntool/Programs.h"

#include <VornCommon.h>

#include <algorithm>
#include <string>

namespace vorn::tool
{

const Program* ProgramNamed(std::string_view name)
{
    const auto* const found = std::find_if(std::begin(kPrograms), std::end(kPrograms),
                                           [&](const Program& program)
                                           {
                                               return lstrcmpiA(program.name, std::string(name).c_str()) == 0;
                                           });
    return found == std::end(kPrograms) ? nullptr : found;
}

} // namespace vorn::tool
