#pragma once

#include <windows.h>

#include <array>
#include <string_view>

namespace vorn
{

/// The widths of a font's characters, by which long texts are measured without asking the system line by line. Not
/// every device context places characters by their widths alone: see Read().
class CharWidths
{
public:
    /// Reads the widths of the selected font.
    /// @return whether the width of the sample is the sum of them. In code pages whose characters take several bytes
    ///         it never is.
    bool Read(HDC dc, std::string_view sample, int sampleWidth);
    int Sum(std::string_view text) const;

private:
    std::array<int, 256> m_widths{};
};

} // namespace vorn
