#include "apps/briefing/Briefing.h"
#include "apps/briefing/BriefingDialog.h"

#include <VornCommon.h>

// A second application of the family beside the sample: it shows its own units and folders next to the sample's.
namespace
{

constexpr int kWrongUse = 2;

struct Options
{
    bool summary = false;
    Currency currency = Currency::Mixed;
    bool wrong = false;
};

Options ParseOptions(int count, const char* const* arguments)
{
    Options options;
    for (int i = 1; i < count; ++i)
    {
        const std::string_view word = arguments[i];
        const auto currency = i + 1 < count && word == "--data" ? CurrencyNamed(arguments[i + 1]) : std::nullopt;
        options.summary = options.summary || word == "--summary";
        options.wrong = options.wrong || (word != "--summary" && !currency);
        options.currency = currency.value_or(options.currency);
        i += currency ? 1 : 0;
    }
    return options;
}

std::string Utf8(const std::string& text)
{
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(1252, 0, text.data(), size, wide.data(), size)));
    std::string out(4 * wide.size(), '\0');
    out.resize(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), out.data(),
                                                     static_cast<int>(out.size()), nullptr, nullptr)));
    return out;
}

void Print(DWORD stream, const std::string& text)
{
    const std::string out = Utf8(text);
    DWORD written = 0;
    WriteFile(GetStdHandle(stream), out.data(), static_cast<DWORD>(out.size()), &written, nullptr);
}

class BriefingApp : public CWinApp, public VornCommonApp
{
public:
    BriefingApp() : CWinApp(kThisProgram)
    {
    }

    BOOL InitInstance() override
    {
        const Options options = ParseOptions(__argc, __argv);
        if (options.wrong)
        {
            Print(STD_ERROR_HANDLE,
                  std::string("VornBriefing [--data CASE] [--summary]\n\nCASE is ") + CurrencyWords() + ".\n");
            m_exitCode = kWrongUse;
            return FALSE;
        }
        VornCommonApp::Inst(this);
        SetRegistryKey("Vornwald");
        RegisterFamily();
        if (options.summary)
        {
            Print(STD_OUTPUT_HANDLE, TextOf(Briefing(options.currency)));
            return FALSE;
        }
        BriefingDialog dialog(options.currency);
        m_pMainWnd = &dialog;
        dialog.DoModal();
        m_pMainWnd = nullptr;
        return FALSE; // the dialog was all
    }

    int ExitInstance() override
    {
        CWinApp::ExitInstance();
        VornCommonApp::FreeInst();
        TimerMgr::FreeInst();
        ResMgr::FreeInst();
        PathMgr::FreeInst();
        AppRegMgr::FreeInst();
        return m_exitCode;
    }

private:
    int m_exitCode = 0;
};

BriefingApp theApp;

} // namespace
