#include "frame/VornCommonLog.h"

#include "frame/VornLogDlg.h"

VornCommonLog::VornCommonLog() = default;

VornCommonLog::VornCommonLog(const VornCommonLog& other) = default;

VornCommonLog& VornCommonLog::operator=(const VornCommonLog& other) = default;

VornCommonLog::~VornCommonLog() = default;

VornCommonLog* VornCommonLog::Instance()
{
    if (mpSingleInst == nullptr)
    {
        mpSingleInst = new VornCommonLog; // the interface holds it by a plain pointer; FreeInstance() deletes it
    }
    return static_cast<VornCommonLog*>(mpSingleInst);
}

void VornCommonLog::FreeInstance()
{
    delete mpSingleInst; // who made it leaves it to this call
    mpSingleInst = nullptr;
}

void VornCommonLog::DisplayLog(LogStatus level, bool alternative)
{
    const int threshold = alternative ? mAltDisplayLevel : mDisplayLevel;
    if (static_cast<int>(level) <= threshold)
    {
        VornLogDlg(*this).DoModal();
    }
}
