#include "apps/planner/StoredValue.h"

namespace vorn::planner
{

VornCommonApp& App()
{
    return *VornCommonApp::Inst();
}

// Two reads with different defaults agree only when neither default was used.
bool IsStored(const char* section, const char* key)
{
    return App().GetSettingString(section, key, "a") == App().GetSettingString(section, key, "b");
}

bool StoreNumber(const char* section, const char* key, int defaultValue, int value)
{
    if (App().GetSettingInt(section, key, defaultValue) == value)
        return false;
    App().WriteSettingInt(section, key, value);
    return true;
}

bool Forget(const char* section, const char* key)
{
    if (!IsStored(section, key))
        return false;
    App().WriteSettingString(section, key, nullptr);
    return true;
}

} // namespace vorn::planner
