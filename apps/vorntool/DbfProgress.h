#pragma once

#include "apps/vorntool/core/Command.h"

#include <windows.h>

#include <cstdint>
#include <string>

namespace vorn::tool
{

inline constexpr Option kDbfProgressOption = {"progress", nullptr, "report progress on standard error"};

/// Whether standard output is written to while work goes on.
enum class DbfPrinting
{
    Afterwards,
    Meanwhile
};

/// Tells how far long work has come, on standard error: from the second second on when that is a console, always when
/// the call asks for it. What stands on a console goes when the work is done, and a console that results are printed on
/// meanwhile is left alone.
class DbfProgress
{
public:
    DbfProgress(const Invocation& call, std::string what, std::uint64_t total, DbfPrinting printing);
    ~DbfProgress();
    DbfProgress(const DbfProgress&) = delete;
    DbfProgress& operator=(const DbfProgress&) = delete;

    /// So much of the total is done at this step. Cheap enough to be called for each record.
    void At(std::uint64_t step, std::uint64_t done)
    {
        if (m_shows && (step & 0xFF) == 0)
        {
            Look(done);
        }
    }

    /// All is done: a file or pipe gets its last line.
    void Done();

private:
    void Look(std::uint64_t done);
    void Show(std::uint64_t done);

    std::string m_what;
    std::uint64_t m_total;
    bool m_isConsole;
    bool m_isAskedFor;
    bool m_shows;
    bool m_isShown = false;
    ULONGLONG m_next;
};

} // namespace vorn::tool
