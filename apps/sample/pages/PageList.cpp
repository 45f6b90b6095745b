#include "apps/sample/pages/PageList.h"

#include "apps/sample/pages/OverviewPage.h"

std::vector<std::unique_ptr<Page>> MakePages()
{
    std::vector<std::unique_ptr<Page>> pages;
    pages.push_back(std::make_unique<OverviewPage>());
    return pages;
}
