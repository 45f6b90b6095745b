#include "frame/core/ProgramStats.h"

#include "frame/core/StatisticsFile.h"
#include "framework/core/File.h"
#include "framework/core/Time.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <new>
#include <optional>

namespace
{

// Keeps the file's length within what one write takes.
constexpr std::size_t kMaxCounters = std::size_t{1} << 28;

std::int64_t Now()
{
    return CTime::GetCurrentTime().GetTime();
}

// Up to the last counter that is read.
std::vector<std::byte> ReadFile(CFile& file)
{
    constexpr ULONGLONG kMost = vorn::kStatisticsHeaderSize + vorn::kMaxStoredCounters * sizeof(std::int32_t);
    std::vector<std::byte> bytes(static_cast<std::size_t>(std::min(file.GetLength(), kMost)));
    bytes.resize(file.Read(bytes.data(), static_cast<UINT>(bytes.size())));
    return bytes;
}

// Runs a step on files; false when it failed.
template <class Step>
bool Succeeds(Step step) noexcept
{
    try
    {
        step();
        return true;
    }
    catch (CException* error)
    {
        error->Delete();
    }
    catch (const std::bad_alloc&)
    {
    }
    return false;
}

// Makes the counters up to `index`; false when the memory cannot hold them.
bool HasCounter(std::vector<std::int32_t>& counters, std::size_t index)
{
    const auto grow = [&]
    {
        counters.resize(index + 1);
    };
    return index < counters.size() || Succeeds(grow);
}

} // namespace

ProgramStats::ProgramStats() : m_startDate(0)
{
}

ProgramStats::~ProgramStats() = default;

bool ProgramStats::Init(const char* fileName)
{
    m_counters.clear();
    std::optional<vorn::StoredStatistics> stored;
    bool isOpen = false;
    Succeeds(
        [&]
        {
            m_fileName = fileName;
            CFile file;
            constexpr UINT kFlags = CFile::modeRead | CFile::modeCreate | CFile::modeNoTruncate | CFile::shareDenyWrite;
            isOpen = file.Open(m_fileName, kFlags) != FALSE;
            stored = isOpen ? vorn::DecodeStatistics(ReadFile(file)) : vorn::StoredStatistics{};
        });
    if (isOpen && !stored)
    {
        return false;
    }
    if (stored)
    {
        m_counters.swap(stored->counters);
        m_startDate = stored->startDate.value_or(m_startDate);
    }
    m_startDate = m_startDate == 0 ? Now() : m_startDate;
    return true;
}

bool ProgramStats::SaveStats() const
{
    if (m_counters.empty())
    {
        return false;
    }
    Succeeds(
        [this]
        {
            const std::vector<std::byte> bytes = vorn::EncodeStatistics(m_startDate, m_counters);
            CFile file;
            if (file.Open(m_fileName, CFile::modeWrite | CFile::modeCreate | CFile::shareExclusive))
            {
                file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
                file.Close();
            }
        });
    return true;
}

void ProgramStats::Event(APPSTAT stat)
{
    if (stat < 0 || static_cast<std::size_t>(stat) >= kMaxCounters)
    {
        return;
    }
    const auto index = static_cast<std::size_t>(stat);
    if (HasCounter(m_counters, index) && m_counters[index] < INT_MAX)
    {
        ++m_counters[index];
    }
}

long ProgramStats::GetStat(APPSTAT stat) const
{
    const bool hasCounter = stat >= 0 && static_cast<std::size_t>(stat) < m_counters.size();
    return hasCounter ? m_counters[static_cast<std::size_t>(stat)] : 0;
}

long ProgramStats::GetStatCount() const
{
    return static_cast<long>(m_counters.size());
}

long long ProgramStats::GetStartDate() const
{
    return m_startDate;
}

void ProgramStats::ClearStats()
{
    std::fill(m_counters.begin(), m_counters.end(), 0);
    m_startDate = Now();
}
