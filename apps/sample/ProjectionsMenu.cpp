#include "apps/sample/ProjectionsMenu.h"

#include "apps/sample/core/MenuLetters.h"
#include "apps/sample/resource.h"

#include <algorithm>

namespace
{

MenuLetters LettersOf(const CMenu& menu)
{
    MenuLetters letters;
    for (UINT i = 0; i < menu.GetMenuItemCount(); ++i)
    {
        CString text;
        menu.GetMenuString(i, text, MF_BYPOSITION);
        letters.Take(text.GetString());
    }
    return letters;
}

} // namespace

bool ProjectionsMenu::Fill(CMenu& menu)
{
    UINT at = 0;
    while (at < menu.GetMenuItemCount() && menu.GetMenuItemID(static_cast<int>(at)) != ID_CHART_PROJECTION)
        ++at;
    if (!menu.DeleteMenu(at, MF_BYPOSITION))
        return false;
    MenuLetters letters = LettersOf(menu);
    const ProjectionLib* const projections = ProjectionLib::mpInstance;
    const int most = ID_CHART_LAST - ID_CHART_PROJECTION + 1;
    const int count = projections != nullptr ? std::min(projections->NumProjections(), most) : 0;
    for (int number = 0; number < count; ++number)
        menu.InsertMenu(at + static_cast<UINT>(number), MF_BYPOSITION | MF_STRING,
                        ID_CHART_PROJECTION + static_cast<UINT>(number),
                        letters.ItemOf(projections->ProjectionName(number)).c_str());
    return true;
}
