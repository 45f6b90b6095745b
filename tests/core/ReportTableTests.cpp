#include "apps/sample/core/ReportTable.h"

#include <gtest/gtest.h>

using vorn::Align;
using vorn::ReportTable;

TEST(ReportTable, AlignsColumnsToTheirWidestCellWithoutTrailingBlanks)
{
    ReportTable table{"Values", "in your units", {{"What"}, {"Value", Align::Right}, {"Unit"}}, {}};
    table.AddHeading("Distance that is wider than any cell");
    table.AddRow({"Leg", "12.5", "NM"});
    table.AddRow({"Crossing", "5000.0"});
    EXPECT_EQ(vorn::ToText(table), "Values - in your units\n"
                                   "  What       Value  Unit\n"
                                   "  Distance that is wider than any cell\n"
                                   "  Leg         12.5  NM\n"
                                   "  Crossing  5000.0\n");
}

TEST(ReportTable, WithoutRowsShowsTitleAndColumns)
{
    const ReportTable table{"Empty", "", {{"Key"}, {"Value"}}, {}};
    EXPECT_EQ(vorn::ToText(table), "Empty\n  Key  Value\n");
}

TEST(Utf8FromCodePage1252, KeepsAsciiAndSpellsTheRest)
{
    EXPECT_EQ(vorn::Utf8FromCodePage1252("KSEA 15 \xB0"
                                         "C"),
              "KSEA 15 \xC2\xB0"
              "C");
    EXPECT_EQ(vorn::Utf8FromCodePage1252("\x80\x85\x96"), "\xE2\x82\xAC\xE2\x80\xA6\xE2\x80\x93");
    EXPECT_EQ(vorn::Utf8FromCodePage1252("\x81"), "\xEF\xBF\xBD");
    EXPECT_EQ(vorn::Utf8FromCodePage1252("\xE9\xFF"), "\xC3\xA9\xC3\xBF");
}
