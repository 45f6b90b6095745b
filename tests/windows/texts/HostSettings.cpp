#include "tests/windows/texts/HostSettings.h"

#include "config/AppRegMgr.h"

namespace vorn::test
{

HostSettings::HostSettings()
{
    VornCommonApp::Inst(&m_app);
}

HostSettings::~HostSettings()
{
    VornCommonApp::FreeInst();
    // Without a host's object the manager made here must not outlive its settings.
    AppRegMgr::FreeInst();
}

void HostSettings::Set(const char* section, const char* key, int value)
{
    VornCommonApp::Inst()->WriteSettingInt(section, key, value);
}

} // namespace vorn::test
