#include "tests/windows/log/LogBox.h"

#include "tests/support/DialogDriver.h"

LogTest::LogTest()
{
    VornCommonLog::FreeInstance();
}

LogTest::~LogTest()
{
    VornCommonLog::FreeInstance();
}

bool WhileShown(const std::function<void()>& show, const std::function<void(HWND)>& look, WPARAM command)
{
    DialogDriver driver(
        [&]
        {
            const HWND window = FindDialog("Message Log");
            if (window == nullptr)
            {
                return false;
            }
            if (look)
            {
                look(window);
            }
            ::PostMessageA(window, WM_COMMAND, command, 0);
            return true;
        });
    show();
    return driver.IsDone();
}

bool ShowLog(VornCommonLog& log, const std::function<void(HWND)>& look, WPARAM command)
{
    return WhileShown(
        [&log]
        {
            log.DisplayLog(LOG_FATAL, false);
        },
        look, command);
}

HWND TextControl(HWND window)
{
    return ::GetDlgItem(window, IDC_VORN_LOG_TEXT);
}

std::string ShownText(HWND window)
{
    const HWND control = TextControl(window);
    std::string text(static_cast<std::size_t>(::SendMessageA(control, WM_GETTEXTLENGTH, 0, 0)) + 1, '\0');
    const LRESULT length =
        ::SendMessageA(control, WM_GETTEXT, static_cast<WPARAM>(text.size()), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}
