#include <VornCommon.h>

#include <cstdio>
#include <memory>

/// A log into which the libraries write, too, as long as it lives.
class SharedLog : public VornLog
{
public:
    SharedLog()
    {
        mpSingleInst = this;
    }
    ~SharedLog() override
    {
        mpSingleInst = nullptr;
    }
};

int main()
{
    SharedLog log;
    if (!log.InitLog("example.log"))
        return 1;
    log.LogMsg("Loading tables", LOG_INFO);
    log.LogMsg("No table of airspaces", LOG_WARNING);

    // A plug-in that is not there is told in the log.
    char path[] = "NoSuchPlugin.dll";
    char* paths[] = {path};
    WinProjectionLib::Init(paths, 1);
    WinProjectionLib::Deinit();

    char* text = nullptr;
    const int length = log.GetLog(text);
    const std::unique_ptr<char[]> owned(text);
    std::printf("%d characters\n%s", length, owned.get());
    return 0;
}
