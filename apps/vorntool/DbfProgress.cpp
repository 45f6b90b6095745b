#include "apps/vorntool/DbfProgress.h"

#include "apps/vorntool/StandardStreams.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

constexpr ULONGLONG kPatience = 1000; // milliseconds
constexpr ULONGLONG kBetween = 200;

bool IsConsole(DWORD stream)
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(stream), &mode) != FALSE;
}

bool IsFreeConsole(DbfPrinting printing)
{
    const bool isTaken = printing == DbfPrinting::Meanwhile && IsConsole(STD_OUTPUT_HANDLE);
    return IsConsole(STD_ERROR_HANDLE) && !isTaken;
}

void Say(const std::string& text)
{
    WriteToStandardStreams({"", text});
}

} // namespace

DbfProgress::DbfProgress(const Invocation& call, std::string what, std::uint64_t total, DbfPrinting printing)
    : m_what(std::move(what)), m_total(total), m_isConsole(IsConsole(STD_ERROR_HANDLE)),
      m_isAskedFor(call.Has("progress")), m_shows(m_isAskedFor || IsFreeConsole(printing)),
      m_next(GetTickCount64() + (m_isAskedFor ? kBetween : kPatience))
{
}

DbfProgress::~DbfProgress()
{
    if (m_isShown && m_isConsole)
    {
        Say(std::string("\r").append(m_what.size() + 8, ' ').append("\r"));
    }
}

void DbfProgress::Done()
{
    if (m_isAskedFor && !m_isConsole)
    {
        Show(m_total);
    }
}

void DbfProgress::Look(std::uint64_t done)
{
    const ULONGLONG now = GetTickCount64();
    if (now >= m_next)
    {
        m_next = now + kBetween;
        Show(done);
    }
}

// A console's line is written over, a file or pipe gets one line each.
void DbfProgress::Show(std::uint64_t done)
{
    const std::uint64_t percent = m_total == 0 ? 100 : std::min<std::uint64_t>(done * 100 / m_total, 100);
    std::string text = m_isConsole ? "\r" : "";
    text.append(m_what).append(": ").append(std::to_string(percent)).append(m_isConsole ? " %" : " %\n");
    Say(text);
    m_isShown = true;
}

} // namespace vorn::tool
