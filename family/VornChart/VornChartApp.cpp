#include "family/VornChart/VornChartApp.h"

#include "family/VornChart/CriticalSection.h"

#include <new>

namespace
{

VornChartApp* g_application = nullptr;

} // namespace

VornChartApp::VornChartApp() = default;

VornChartApp::~VornChartApp()
{
    if (g_application == this)
    {
        g_application = nullptr;
    }
}

void VornChartApp::Inst(VornChartApp* app)
{
    g_application = app;
}

VornChartApp* VornChartApp::Inst()
{
    return g_application;
}

void VornChartApp::FreeInst()
{
    g_application = nullptr;
}

Vornwald::SynchObject* VornChartApp::CreateCriticalSection(DWORD spinCount)
{
    // The interface hands out a plain owning pointer.
    return new (std::nothrow) vorn::CriticalSection(spinCount);
}

bool VornChartApp::OnPreparePrinting(CView*, CPrintInfo*)
{
    return false;
}

CString VornChartApp::GetVornGlyph(CString)
{
    return CString();
}

BOOL VornChartApp::IsTrial()
{
    return FALSE;
}

CString VornChartApp::GetSettingString(const char*, const char*, const char* defaultValue)
{
    return CString(defaultValue);
}

void VornChartApp::WriteSettingString(const char*, const char*, const char*)
{
}

int VornChartApp::GetSettingInt(const char*, const char*, int defaultValue)
{
    return defaultValue;
}

void VornChartApp::WriteSettingInt(const char*, const char*, int)
{
}
