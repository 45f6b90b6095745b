#pragma once

#include <string_view>

namespace vorn
{

/// Measures texts in the fonts of a device.
class TextMeasure
{
public:
    virtual ~TextMeasure();
    /// Takes the font of a height, at least 1, for the questions below. @return false when it cannot be had.
    virtual bool UseFont(int height) = 0;
    /// Height of any line.
    virtual int LineHeight() = 0;
    virtual int LineWidth(std::string_view line) = 0;
};

} // namespace vorn
