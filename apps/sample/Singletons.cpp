#include "apps/sample/Singletons.h"

#include "apps/sample/model/Messages.h"

namespace
{

struct Folders : PathMgr
{
    static bool AreKnown()
    {
        return mpInstance != nullptr;
    }
};

} // namespace

// What ends by itself: the colour context, which holds numbers alone, when its library is unloaded; the unit converter
// with the process, as hosts may use it to their last moment; the help texts are resources, and no object.
void FreeSingletons()
{
    EndLog();
    WinProjectionLib::Deinit();
    ResMgr::FreeInst();
    TimerMgr::FreeInst();
    PathMgr::FreeInst(); // before the settings that it reads
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
}

std::string SingletonsText()
{
    std::string text = VornLog::Shared() == nullptr ? "no log, " : "a log, ";
    text += ProjectionLib::mpInstance == nullptr ? "no projections, " : "projections, ";
    text += Folders::AreKnown() ? "path records, " : "no path records, ";
    int settings = 0;
    for (const char* const name : {AfxGetAppName(), "VornBriefing", "Global", "Installers"})
        settings += AppRegMgr::Instance()->GetAppRegIndex(name) >= 0 ? 1 : 0;
    text += std::to_string(settings) + (settings == 1 ? " settings record, " : " settings records, ");
    text += std::to_string(ResMgr::Inst()->GetResourceCount()) + " drawing objects, timer ";
    text += std::to_string(TimerMgr::Inst()->GetNextTimerValue());
    TimerMgr::FreeInst(); // the number was used up
    return text;
}
