#include "bench/PairedTimer.h"
#include "toolkit/textlayout/TextLayout.h"

#include "framework/include/afxwin.h"

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace
{
using TextLayout::Alignment;
using TextLayout::Item;
using TextLayout::Root;
using TextLayout::Split;
using TextLayout::Table;
using TextLayout::Text;

/// A picture to measure on.
class Picture
{
public:
    Picture()
    {
        dc.CreateCompatibleDC(nullptr);
    }
    CDC dc;
};

struct Case
{
    const char* name;
    CSize box;
    std::string text;
};

std::string Lines(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
    {
        text += "Airway segment " + std::to_string(i * 37) + (i + 1 < count ? "\n" : "");
    }
    return text;
}

std::string Wide()
{
    std::string text;
    while (text.size() < 200)
    {
        text += "Not to be used for navigation. ";
    }
    return text.substr(0, 200);
}

std::vector<Case> Cases()
{
    return {{"a label", CSize(300, 40), "ENROUTE CHART"},
            {"5 lines", CSize(300, 120), Lines(5)},
            {"40 lines", CSize(600, 900), Lines(40)},
            {"a wide line of 200 characters", CSize(900, 200), Wide()},
            {"a text that is cut", CSize(120, 60), Lines(40)}};
}

bool LayText(CDC& dc, const Case& one)
{
    Root root(one.box, new Text(one.text.c_str(), "Arial"));
    return root.ComputeLayout(&dc);
}

/// The largest font that fits, by halving the range and letting the system measure the whole text.
int SearchByHalves(CDC& dc, const Case& one)
{
    int fits = 9;
    int tooLarge = 1000;
    while (fits + 1 < tooLarge)
    {
        const int height = (fits + tooLarge) / 2;
        CFont font;
        font.CreateFont(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
        CFont* former = dc.SelectObject(&font);
        CRect size(0, 0, 0, 0);
        dc.DrawText(one.text.c_str(), static_cast<int>(one.text.size()), &size, DT_CALCRECT | DT_NOPREFIX);
        dc.SelectObject(former);
        const bool small = size.Width() <= one.box.cx && size.Height() <= one.box.cy;
        (small ? fits : tooLarge) = height;
    }
    return fits;
}

void FitOne(benchmark::State& state)
{
    Picture picture;
    const Case one = Cases()[static_cast<std::size_t>(state.range(0))];
    state.SetLabel(one.name);
    vorn::bench::Compare(
        state, 5,
        [&]
        {
            benchmark::DoNotOptimize(LayText(picture.dc, one));
        },
        [&]
        {
            benchmark::DoNotOptimize(SearchByHalves(picture.dc, one));
        });
}
BENCHMARK(FitOne)->Name("TextLayout/A text to a search by halves")->DenseRange(0, 4)->UseManualTime();

/// In fonts that nobody has asked for before, up to the thousandth turn: a weight of its own for each.
void FitOneAnew(benchmark::State& state)
{
    Picture picture;
    const Case one = Cases()[static_cast<std::size_t>(state.range(0))];
    state.SetLabel(one.name);
    int weight = 0;
    for (auto _ : state)
    {
        Root root(one.box, new Text(one.text.c_str(), "Arial", ++weight % 1000));
        benchmark::DoNotOptimize(root.ComputeLayout(&picture.dc));
    }
}
BENCHMARK(FitOneAnew)->Name("TextLayout/A text in a new face")->DenseRange(0, 4);

/// A hundred nodes of all kinds, 46 of them texts, none like another.
std::unique_ptr<Root> HundredNodes(int seed)
{
    auto table = std::make_unique<Table>("", nullptr, nullptr);
    for (int i = 0; i < 8; ++i)
    {
        const std::string title = "Sheet " + std::to_string(seed + i * 7) + " of the enroute charts";
        const std::string notes = Lines(2 + i % 4);
        auto* left = new Split("-60%", new Text(title.c_str(), "Arial", FW_BOLD),
                               new Table("", new Text("1:500,000", nullptr), new Text(notes.c_str(), nullptr)));
        auto* right =
            new Alignment("right bottom", new Table("", new Text("N", nullptr), new Text(title.c_str(), nullptr)));
        auto* row = new Split("|60%", left, right);
        row->Set("maxHeight", 90 + i * 3);
        table->Add(row);
    }
    table->Add(new Alignment("center", new Text("Not to be used for navigation", "Arial")));
    table->Add(new Text("Effective from the 5th", "Arial"));
    return std::make_unique<Root>(CSize(700, 900), table.release());
}

void LayHundred(benchmark::State& state)
{
    Picture picture;
    int seed = 0;
    bool done = true;
    for (auto _ : state)
    {
        const std::unique_ptr<Root> root = HundredNodes(++seed);
        done = root->ComputeLayout(&picture.dc) && done;
    }
    if (!done)
    {
        state.SkipWithError("the layout failed");
    }
}
BENCHMARK(LayHundred)->Name("TextLayout/A tree of 100 nodes")->Unit(benchmark::kMillisecond);

} // namespace
