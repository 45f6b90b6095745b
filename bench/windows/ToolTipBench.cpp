#include "framework/window/CWnd.h"
#include "framework/window/ModuleState.h"
#include "toolkit/tooltips/ToolTipCtrlEx.h"

#include <benchmark/benchmark.h>

// The mouse above a window of 300 controls with tips.
namespace
{

constexpr int kTools = 300;
constexpr int kInRow = 15;
constexpr int kWidth = 50;
constexpr int kHeight = 20;
constexpr int kGap = 4;

class ManyTools : public CWnd
{
public:
    ManyTools()
    {
        CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE, 50, 50, 900, 560, nullptr, nullptr);
        m_tips.Create(this);
        for (int i = 0; i < kTools; ++i)
        {
            const HWND control = ::CreateWindowExA(0, "Button", "", WS_CHILD | WS_VISIBLE, Left(i), Top(i), kWidth,
                                                   kHeight, m_hWnd, nullptr, nullptr, nullptr);
            m_tips.AddTool(FromHandle(control), "a tip");
        }
    }
    ~ManyTools() override
    {
        m_tips.DestroyWindow();
        DestroyWindow();
    }
    static int Left(int tool)
    {
        return tool % kInRow * (kWidth + kGap);
    }
    static int Top(int tool)
    {
        return tool / kInRow * (kHeight + kGap);
    }
    void MouseAt(int x, int y)
    {
        MSG move{};
        move.hwnd = m_hWnd;
        move.message = WM_MOUSEMOVE;
        move.pt = {50 + x, 50 + y};
        m_tips.RelayEvent(&move);
    }

private:
    ToolTipCtrlEx m_tips;
};

/// Places are read anew every half second, which is counted here.
void MouseInATool(benchmark::State& state)
{
    ManyTools window;
    int step = 0;
    for (auto _ : state)
    {
        step = (step + 1) % (kWidth - 1);
        window.MouseAt(ManyTools::Left(kTools - 1) + step, ManyTools::Top(kTools - 1) + 5);
    }
}
BENCHMARK(MouseInATool)->Name("Tips/a move in one of 300 tools")->Unit(benchmark::kMicrosecond);

void MouseBesideTools(benchmark::State& state)
{
    ManyTools window;
    int step = 0;
    for (auto _ : state)
    {
        step = (step + 1) % 50;
        window.MouseAt(step, 500);
    }
}
BENCHMARK(MouseBesideTools)->Name("Tips/a move beside 300 tools")->Unit(benchmark::kMicrosecond);

/// Four pixels a message, tools and gaps alike: a timer starts or ends with every sixth message or so.
void MouseAcrossTools(benchmark::State& state)
{
    ManyTools window;
    int x = 0;
    for (auto _ : state)
    {
        x = (x + 4) % 800;
        window.MouseAt(x, 10);
    }
}
BENCHMARK(MouseAcrossTools)->Name("Tips/a move across tools")->Unit(benchmark::kMicrosecond);

} // namespace
