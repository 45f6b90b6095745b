#pragma once

#include "apps/vorntool/core/Command.h"

#include <stdexcept>

namespace vorn::tool
{

/// Ends a command on tables; the group reports the reason and gives the status.
class DbfFailure : public std::runtime_error
{
public:
    explicit DbfFailure(const std::string& reason, ExitStatus status = ExitStatus::Refused)
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
class DbfWrongUse : public DbfFailure
{
public:
    explicit DbfWrongUse(const std::string& reason) : DbfFailure(reason, ExitStatus::WrongUse)
    {
    }
};

} // namespace vorn::tool
