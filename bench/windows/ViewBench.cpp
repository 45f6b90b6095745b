#include "aviation/LoadViewDef.h"
#include "config/AppRegMgr.h"

#include <benchmark/benchmark.h>

#include <stdexcept>

namespace
{
constexpr char kSection[] = "VornBenchView";

/// A view in the host's settings, in the older layout with two parameters: the most reads.
class StoredView
{
public:
    StoredView()
    {
        const char* const fields[][2] = {{"Projection", "2"}, {"Param1", "33"}, {"Param2", "45"},  {"LogX", "640"},
                                         {"LogY", "512"},     {"MapX", "0"},    {"MapY", "0"},     {"Scale", "12000"},
                                         {"SeamLon", "180"},  {"Skew", "0"},    {"CntrLat", "47"}, {"CntrLon", "8"}};
        for (const auto& [key, value] : fields)
        {
            if (!AppRegMgr::Instance()->WriteVornString(kSection, key, value, 0))
            {
                throw std::runtime_error("the view could not be stored");
            }
        }
    }
    ~StoredView()
    {
        AppRegMgr::Instance()->WriteVornString(kSection, nullptr, nullptr, 0); // the whole section
    }
    StoredView(const StoredView&) = delete;
    StoredView& operator=(const StoredView&) = delete;
};

void LoadView(benchmark::State& state)
{
    const StoredView stored;
    ViewDefinition view;
    for (auto _ : state)
    {
        if (!LoadViewDef(&view, kSection, "Last"))
        {
            state.SkipWithError("the view was not read");
        }
    }
}
BENCHMARK(LoadView)->Name("Projection/LoadViewDef of the older layout")->UseRealTime();
} // namespace
