#pragma once

#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/Command.h"

#include <VornCommon.h>

#include <string>

namespace vorn::tool
{

/// A command whose work ends by a failure when it cannot be done: says why, and takes back what it has printed.
template <void (*kWork)(const Invocation&, Output&)>
ExitStatus RunCommand(const Command& self, const Invocation& call, Output& output)
{
    try
    {
        kWork(call, output);
        return ExitStatus::Done;
    }
    catch (const ToolFailure& failure)
    {
        output.text.clear();
        ReportError(output, self, failure.what());
        return failure.Status();
    }
    catch (CFileException* error)
    {
        const LONG code = error->m_lOsError;
        error->Delete();
        output.text.clear();
        ReportError(output, self, "a file could not be read or written: error " + std::to_string(code));
        return ExitStatus::Refused;
    }
}

} // namespace vorn::tool
