// The umbrella header comes first and alone: it must bring everything it needs.
#include <VornCommon.h>

#include <gtest/gtest.h>

TEST(UmbrellaHeader, BringsTheFrameworkTheControlsAndTheLibrary)
{
    EXPECT_GT(sizeof(CString), 0u);
    EXPECT_GT(sizeof(CFrameWnd), sizeof(CWnd));
    EXPECT_GT(sizeof(TCITEMA), 0u);          // common controls
    EXPECT_GT(sizeof(PROPSHEETHEADERA), 0u); // property sheets
    EXPECT_EQ(sizeof(ConversionBoy), 28u);
    EXPECT_GT(sizeof(VornCommonApp), sizeof(VornChartApp));
}
