#include "files/core/TableBox.h"

#include <string>

namespace vorn
{
namespace
{
constexpr std::size_t kMaxBoxText = 4096;
ShowTableBox showBox = nullptr;
} // namespace

ShowTableBox SetTableBox(ShowTableBox show) noexcept
{
    const ShowTableBox before = showBox;
    showBox = show;
    return before;
}

void TableBox(const char* text, const char* title)
{
    if (showBox != nullptr)
        showBox(std::string(text).substr(0, kMaxBoxText).c_str(), title);
}
} // namespace vorn
