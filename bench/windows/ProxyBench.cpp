#include "config/ProxyConfigDlg.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace
{

/// Fills its list and ends before it is shown.
class FilledDialog : public ProxyConfigDlg
{
public:
    using ProxyConfigDlg::ProxyConfigDlg;

    BOOL OnInitDialog() override
    {
        ProxyConfigDlg::OnInitDialog();
        EndDialog(IDOK);
        return TRUE;
    }
};

void Fill(benchmark::State& state)
{
    ProxySet proxies;
    for (int i = 0; i < state.range(0); ++i)
    {
        auto proxy = std::make_unique<ProxyInfo>();
        proxy->mAddress.Parse(("proxy" + std::to_string(i) + ".example.com:8080").c_str());
        if (proxies.AddProxy(proxy.get()))
        {
            proxy.release(); // the set's now
        }
    }
    for (auto _ : state)
    {
        FilledDialog dialog(&proxies);
        if (dialog.DoModal() != IDOK)
        {
            state.SkipWithError("the dialog did not open");
        }
    }
}
BENCHMARK(Fill)->Name("Proxies/a dialog of entries")->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
