#pragma once

#include "framework/include/afxwin.h"
#include "toolkit/textlayout/CharWidths.h"
#include "toolkit/textlayout/core/TextMeasure.h"

#include <cstddef>

namespace vorn
{

/// Measures in fonts selected into a device context, which has its own font back in the end.
class DeviceTextMeasure : public TextMeasure
{
public:
    /// @param description of the fonts, but for their height.
    DeviceTextMeasure(const CDC& dc, const LOGFONT& description);
    ~DeviceTextMeasure() override;
    DeviceTextMeasure(const DeviceTextMeasure&) = delete;
    DeviceTextMeasure& operator=(const DeviceTextMeasure&) = delete;

    bool UseFont(int height) override;
    /// Takes a font of the caller's; null takes the one that was selected.
    bool UseFont(HFONT font);
    int LineHeight() override;
    int LineWidth(std::string_view line) override;

private:
    int AskWidth(std::string_view line);

    HDC m_dc;
    LOGFONT m_description;
    HGDIOBJ m_former;
    CFont m_font;
    int m_lineHeight = 0;
    std::size_t m_asked = 0; ///< characters that the system measured in this font
    bool m_summing = false;  ///< whether widths of characters are summed instead
    CharWidths m_widths;
};

} // namespace vorn
