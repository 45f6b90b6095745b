#include "apps/sample/model/Messages.h"

#include "apps/sample/model/UserFile.h"
#include "apps/sample/preferences/MessagesCategory.h"

#include <algorithm>
#include <array>

namespace
{

constexpr const char* kFileName = "messages.log";
constexpr std::array<const char*, 5> kWords = {"Fatal error", "Error", "Warning", "Note", "Detail"};

bool g_speaks = false;
LogStatus g_gravest = LOG_DEBUG; // of what was noted before anybody was there

} // namespace

void BeginLog()
{
    VornCommonLog::Instance()->InitLog(UserFile(kFileName));
    vorn::preferences::ApplyLogDetail();
}

void LogNote(LogStatus weight, const std::string& message)
{
    const CString time = CTime::GetCurrentTime().FormatGmt("%Y-%m-%d %H:%M:%SZ");
    const std::string line =
        std::string(time.GetString()) + "  " + kWords[static_cast<std::size_t>(weight)] + ": " + message;
    VornCommonLog::Instance()->LogMsg(line, weight);
    if (g_speaks)
        VornCommonLog::Instance()->DisplayLog(weight, false);
    else
        g_gravest = std::min(g_gravest, weight);
}

void SpeakUp()
{
    g_speaks = true;
    if (g_gravest <= LOG_WARNING) // the start itself is no news
        VornCommonLog::Instance()->DisplayLog(g_gravest, false);
}

void EndLog()
{
    g_speaks = false;
    g_gravest = LOG_DEBUG;
    VornCommonLog::FreeInstance();
}
