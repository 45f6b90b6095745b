#include <VornCommon.h>

#include <cstdio>
#include <memory>

int main()
{
    VornCommonLog* const log = VornCommonLog::Instance(); // before anything is logged
    if (!log->InitLog("example.log"))
        return 1;
    log->LogMsg("Loading tables", LOG_INFO);
    log->LogMsg("No table of airspaces", LOG_WARNING);

    // The charting library writes into the same log: a plug-in that is not there is told in it.
    char path[] = "NoSuchPlugin.dll";
    char* paths[] = {path};
    WinProjectionLib::Init(paths, 1);
    WinProjectionLib::Deinit();

    char* text = nullptr;
    const int length = log->GetLog(text);
    const std::unique_ptr<char[]> owned(text);
    std::printf("%d characters\n%s", length, owned.get());

    // A window with the messages, when the matter is grave enough for one: a warning is not.
    log->DisplayLog(LOG_WARNING, false);
    VornCommonLog::FreeInstance();
    return 0;
}
