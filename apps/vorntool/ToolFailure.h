#pragma once

#include "apps/vorntool/core/Command.h"

#include <stdexcept>

namespace vorn::tool
{

/// Ends a command; RunCommand() reports the reason and gives the status.
class ToolFailure : public std::runtime_error
{
public:
    explicit ToolFailure(const std::string& reason, ExitStatus status = ExitStatus::Refused)
        : std::runtime_error(reason), m_status(status)
    {
    }

    ExitStatus Status() const
    {
        return m_status;
    }

private:
    ExitStatus m_status;
};

/// The command line itself is wrong.
class ToolWrongUse : public ToolFailure
{
public:
    explicit ToolWrongUse(const std::string& reason) : ToolFailure(reason, ExitStatus::WrongUse)
    {
    }
};

} // namespace vorn::tool
