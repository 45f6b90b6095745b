#include "files/core/SelectionSteps.h"

#include <gtest/gtest.h>

namespace
{

using Steps = std::vector<std::string>;
using vorn::SelectionSteps;

} // namespace

TEST(SelectionSteps, LeadFromTheDriveDownToTheFolder)
{
    EXPECT_EQ(SelectionSteps("C:\\Data\\Charts"), (Steps{"C:\\", "C:\\Data", "C:\\Data\\Charts"}));
    EXPECT_EQ(SelectionSteps("C:\\Data\\Charts\\"), (Steps{"C:\\", "C:\\Data", "C:\\Data\\Charts"}));
}

TEST(SelectionSteps, OfADriveAreItsRoot)
{
    for (const char* drive : {"C:", "C:\\"})
    {
        EXPECT_EQ(SelectionSteps(drive), (Steps{"C:\\"})) << drive;
    }
}

TEST(SelectionSteps, BeginWithTheServer)
{
    EXPECT_EQ(SelectionSteps("\\\\server\\share\\Maps"),
              (Steps{"\\\\server\\", "\\\\server\\share", "\\\\server\\share\\Maps"}));
    EXPECT_EQ(SelectionSteps("\\\\server"), (Steps{"\\\\server\\"}));
}

TEST(SelectionSteps, NeedNoDrive)
{
    EXPECT_EQ(SelectionSteps("Data\\Maps"), (Steps{"Data", "Data\\Maps"}));
    EXPECT_EQ(SelectionSteps("\\Data"), (Steps{"\\Data"}));
}

TEST(SelectionSteps, OfNoFolderAreNone)
{
    EXPECT_EQ(SelectionSteps(""), Steps());
    EXPECT_EQ(SelectionSteps("\\"), Steps());
}
