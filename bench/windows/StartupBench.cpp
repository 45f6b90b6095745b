#include "toolkit/startup/CStartupDlg.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

// The startup dialog from its construction until everything in it is painted.
namespace
{

using Clock = std::chrono::steady_clock;

constexpr UINT kPainted = WM_APP + 1;

class Timed : public CStartupDlg
{
public:
    explicit Timed(std::vector<DataInfo>& records)
        : CStartupDlg("Bench", "update.exe", records.data(), static_cast<int>(records.size()), nullptr, nullptr)
    {
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CStartupDlg::WindowProc(message, wParam, lParam);
        if (message == WM_PAINT && !m_asked)
        {
            m_asked = true;
            RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
            painted = Clock::now();
            PostMessage(WM_COMMAND, IDCANCEL);
        }
        return result;
    }

    Clock::time_point painted;

private:
    bool m_asked = false;
};

void OnTheScreen(benchmark::State& state)
{
    const CTime now = CTime::GetCurrentTime();
    std::vector<CStartupDlg::DataInfo> records;
    for (int i = 0; i < state.range(0); ++i)
    {
        records.push_back(
            {i % 2 + 1, 1.0F, "A region of the world", Date(now), Date(CTime(now.GetTime() + 86400 * i))});
    }
    double slowest = 0;
    for (auto _ : state)
    {
        const auto start = Clock::now();
        Timed dialog(records);
        dialog.DoModal();
        const double seconds = std::chrono::duration<double>(dialog.painted - start).count();
        slowest = std::max(slowest, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["slowest_ms"] = slowest * 1e3;
}
BENCHMARK(OnTheScreen)
    ->Name("Startup/the dialog on the screen")
    ->Arg(10)
    ->Arg(60)
    ->Iterations(10)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
