#include "files/core/ExtensionSet.h"
#include "files/core/SelectionSteps.h"

#include <cstdlib>

namespace
{

void Expect(bool condition)
{
    if (!condition)
    {
        std::abort();
    }
}

// Every extension is a part of the set, without its separator.
void CheckExtensions(std::string_view set)
{
    for (int i = 0; i <= static_cast<int>(set.size()); ++i)
    {
        const std::string_view extension = vorn::ExtensionAt(set, i);
        Expect(extension.empty() ||
               (extension.data() >= set.data() && extension.data() + extension.size() <= set.data() + set.size() &&
                extension.find('|') == extension.npos));
    }
}

// Every step is one level further down the same path.
void CheckSteps(std::string_view folder)
{
    const std::vector<std::string> steps = vorn::SelectionSteps(folder);
    Expect(steps.size() <= folder.size() + 1);
    for (std::size_t i = 1; i < steps.size(); ++i)
    {
        Expect(steps[i].size() >= steps[i - 1].size());
    }
}

} // namespace

/// Any text as a set of extensions, and as a folder to open at.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size < 300 ? size : 300);
    CheckExtensions(text);
    CheckSteps(text);
    return 0;
}
