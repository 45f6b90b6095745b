#include "apps/vorntool/ToolHost.h"

namespace vorn::tool
{

ToolHost::ToolHost()
{
    Inst(this);
}

ToolHost::~ToolHost()
{
    FreeInst();
}

void ToolHost::Choose(const char* section, const char* key, int value)
{
    m_choices[{section, key}] = value;
}

int ToolHost::GetSettingInt(const char* section, const char* key, int defaultValue)
{
    const auto chosen = m_choices.find({section, key});
    return chosen != m_choices.end() ? chosen->second : VornCommonApp::GetSettingInt(section, key, defaultValue);
}

} // namespace vorn::tool
