#include "config/AppRegMgr.h"
#include "family/TarnUtil/core/Units.h"
#include "family/VornChart/VornChartApp.h"

// The smallest program that has the library, its companions and the framework loaded with it: it
// looks at an exported function of each, and calls none.
int main()
{
    AppRegMgr* (*volatile const library)() = &AppRegMgr::Instance;
    void (*volatile const chart)() = &VornChartApp::FreeInst;
    const volatile int* const units = &gUnitCount;
    return library != nullptr && chart != nullptr && *units > 0 ? 0 : 1;
}
