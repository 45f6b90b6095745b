#pragma once

/// @file
/// The run-length code of PCX files.
#include <cstddef>
#include <span>

namespace vorn
{
/// Hands out decoded bytes. A byte of 0xC0 and above counts the byte that follows in its low six bits, where none at
/// all is possible; any other stands for itself.
class PcxRuns
{
public:
    explicit PcxRuns(std::span<const unsigned char> data) : m_data(data)
    {
    }

    /// Fills `line`, with zeros where the data have ended. What a run has left over goes to the next line.
    void Fill(std::span<unsigned char> line);

    /// Whether only zeros are left.
    bool IsOver() const
    {
        return m_runLeft == 0 && m_data.empty();
    }

private:
    std::size_t TakeRun(std::span<unsigned char> line);
    std::size_t TakeLiterals(std::span<unsigned char> line);
    void StartRun();

    std::span<const unsigned char> m_data;
    std::size_t m_runLeft = 0;
    unsigned char m_runByte = 0;
};
} // namespace vorn
