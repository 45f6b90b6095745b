#include "files/core/PcxRuns.h"

#include <algorithm>
#include <cstring>

namespace vorn
{
namespace
{
constexpr unsigned char kRunMark = 0xC0;
constexpr unsigned char kCountBits = 0x3F;

bool IsLiteral(unsigned char byte)
{
    return byte < kRunMark;
}
} // namespace

void PcxRuns::Fill(std::span<unsigned char> line)
{
    while (!line.empty() && (m_runLeft != 0 || !m_data.empty()))
    {
        if (m_runLeft == 0 && !IsLiteral(m_data.front()))
            StartRun();
        line = line.subspan(m_runLeft != 0 ? TakeRun(line) : TakeLiterals(line));
    }
    std::ranges::fill(line, static_cast<unsigned char>(0));
}

void PcxRuns::StartRun()
{
    if (m_data.size() >= 2)
    {
        m_runLeft = m_data[0] & kCountBits;
        m_runByte = m_data[1];
    }
    m_data = m_data.subspan(std::min<std::size_t>(m_data.size(), 2));
}

std::size_t PcxRuns::TakeRun(std::span<unsigned char> line)
{
    const std::size_t count = std::min(m_runLeft, line.size());
    std::memset(line.data(), m_runByte, count);
    m_runLeft -= count;
    return count;
}

std::size_t PcxRuns::TakeLiterals(std::span<unsigned char> line)
{
    const std::size_t most = std::min(line.size(), m_data.size());
    std::size_t count = 0;
    for (; count < most && IsLiteral(m_data[count]); ++count)
        line[count] = m_data[count];
    m_data = m_data.subspan(count);
    return count;
}
} // namespace vorn
