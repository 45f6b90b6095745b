#include "frame/core/Split.h"

#include <cstdlib>
#include <string>
#include <vector>

/// The first byte chooses the options, the text up to the first zero holds the separators. Joined again by one
/// separator, the pieces give the text back.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const std::string_view input(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::string_view separators = input.substr(0, input.find('\0'));
    const std::string_view text = input.substr(std::min(separators.size() + 1, input.size()));
    const vorn::SplitOptions options{(data[0] & 1) != 0, (data[0] & 2) != 0};

    std::vector<std::string_view> pieces;
    const auto keep = [&pieces](std::string_view piece)
    {
        pieces.push_back(piece);
    };
    const std::size_t count = vorn::SplitText(text, separators, options, keep);
    if (count != pieces.size() || count > text.size() + 1)
    {
        std::abort();
    }
    for (const std::string_view piece : pieces)
    {
        const bool cut = !separators.empty() && piece.find_first_of(separators) != std::string_view::npos;
        const bool empty = options.skipEmpty && !separators.empty() && piece.empty();
        const bool untrimmed = options.trim && !separators.empty() && piece != vorn::TrimBoth(piece);
        if (cut || empty || untrimmed)
        {
            std::abort();
        }
    }
    if (!options.trim && !options.skipEmpty && !text.empty())
    {
        std::string joined;
        for (const std::string_view piece : pieces)
        {
            if (piece.data() != text.data())
            {
                joined += *(piece.data() - 1);
            }
            joined += piece;
        }
        if (joined != text)
        {
            std::abort();
        }
    }
    return 0;
}
