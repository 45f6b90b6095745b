#include "aviation/LoadViewDef.h"

#include "aviation/core/OldViewText.h"
#include "config/AppRegMgr.h"
#include "files/core/NoThrow.h"

namespace
{
constexpr int kHost = 0; // the host's settings record

bool HasOldLayout(const char* section)
{
    return AppRegMgr::Instance()->ReadVornInt(section, "Projection", -1, kHost) != -1;
}

std::string StoredText(const char* section, const char* key, const char* otherwise)
{
    return AppRegMgr::Instance()->ReadVornString(section, key, otherwise, kHost).GetString();
}

std::string ViewText(const char* section, const char* name)
{
    const char* const old = HasOldLayout(section) ? section : HasOldLayout(name) ? name : nullptr;
    if (old)
    {
        return vorn::OldViewText(
            [old](const char* key, const char* otherwise)
            {
                return StoredText(old, key, otherwise);
            });
    }
    const std::string text = StoredText(section, name, "");
    return text.empty() ? vorn::kDefaultViewText : text;
}
} // namespace

bool LoadViewDef(ViewDefinition* view, const char* section, const char* name)
{
    if (!view)
    {
        return false;
    }
    const char* const key = name ? name : "";
    return vorn::NoThrow(false,
                         [&]
                         {
                             view->LoadKey(key);
                             return view->Parse(ViewText(section ? section : "", key).c_str());
                         });
}
