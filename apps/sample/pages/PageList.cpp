#include "apps/sample/pages/PageList.h"

#include "apps/sample/pages/ChartPage.h"
#include "apps/sample/pages/CurrencyPage.h"
#include "apps/sample/pages/FoldersPage.h"
#include "apps/sample/pages/OverviewPage.h"
#include "apps/sample/pages/PicturePage.h"
#include "apps/sample/pages/PositionPage.h"
#include "apps/sample/pages/TablePage.h"

std::vector<std::unique_ptr<Page>> MakePages()
{
    std::vector<std::unique_ptr<Page>> pages;
    pages.push_back(std::make_unique<OverviewPage>());
    pages.push_back(std::make_unique<PositionPage>());
    pages.push_back(std::make_unique<CurrencyPage>());
    pages.push_back(std::make_unique<FoldersPage>());
    pages.push_back(std::make_unique<TablePage>());
    pages.push_back(std::make_unique<ChartPage>());
    pages.push_back(std::make_unique<PicturePage>());
    return pages;
}
