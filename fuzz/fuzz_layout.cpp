#include "fuzz/PaneTreeUse.h"

#include <cstdio>
#include <cstdlib>

/// Any bytes as a layout. The first one says whether its numbers are wild or such as windows have.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const std::span<const unsigned char> rest(data + 1, size - 1);
    const std::string complaint =
        data[0] % 2 == 0 ? vorn::fuzz::WildPanes().Try(rest) : vorn::fuzz::SoundPanes().Try(rest);
    if (!complaint.empty())
    {
        std::fprintf(stderr, "%s\n", complaint.c_str());
        std::abort();
    }
    return 0;
}
