#include "apps/sample/preferences/core/Entries.h"

#include <gtest/gtest.h>

namespace vorn::preferences
{
namespace
{

TEST(WholeNumberEntry, TakesDigitsWithinItsRange)
{
    EXPECT_EQ(WholeNumber("18000", 0, 100000), 18000);
    EXPECT_EQ(WholeNumber("0", 0, 100000), 0);
    EXPECT_EQ(WholeNumber("100000", 0, 100000), 100000);
    EXPECT_EQ(WholeNumber("  5000 ", 0, 100000), 5000);
    EXPECT_EQ(WholeNumber("007", 0, 100000), 7);
    EXPECT_EQ(WholeNumber("-1", -5, 5), -1);
}

TEST(WholeNumberEntry, TakesCommasThatPartGroupsOfThree)
{
    EXPECT_EQ(WholeNumber("18,000", 0, 100000), 18000);
    EXPECT_EQ(WholeNumber("100,000", 0, 100000), 100000);
    EXPECT_EQ(WholeNumber("1,234,567", 0, 2000000), 1234567);
    for (const char* const text : {",", ",000", "18,00", "18,0000", "1,,000", "1800,000", "18,000,", "1,000000"})
        EXPECT_EQ(WholeNumber(text, 0, 100000000), std::nullopt) << text;
}

TEST(WholeNumberEntry, RefusesEverythingElse)
{
    for (const char* const text : {"", " ", "x", "12x", "1 2", "1.5", "1e3", "0x10", "+5", "99999999999999", "100001"})
        EXPECT_EQ(WholeNumber(text, 0, 100000), std::nullopt) << text;
    EXPECT_EQ(WholeNumber("-1", 0, 100000), std::nullopt);
}

TEST(FactorEntry, TakesNumbersFromNoughtToOneWithPointOrComma)
{
    EXPECT_EQ(Factor("0.4"), 0.4);
    EXPECT_EQ(Factor("0,25"), 0.25);
    EXPECT_EQ(Factor("0"), 0.0);
    EXPECT_EQ(Factor("1"), 1.0);
    EXPECT_EQ(Factor(" .5 "), 0.5);
    EXPECT_EQ(Factor("1."), 1.0);
}

TEST(FactorEntry, RefusesEverythingElse)
{
    for (const char* const text : {"", " ", ".", "1.01", "-0.1", "2", "0.4x", "nan", "inf", "1e-3", "0,2,5", "0.2.5"})
        EXPECT_EQ(Factor(text), std::nullopt) << text;
}

TEST(FactorEntry, IsWrittenShortAndComesBackExactly)
{
    EXPECT_EQ(FactorText(0.4), "0.4");
    EXPECT_EQ(FactorText(0), "0");
    EXPECT_EQ(FactorText(1), "1");
    EXPECT_EQ(FactorText(0.0001), "0.0001");
    EXPECT_EQ(Factor(FactorText(1.0 / 3)), 1.0 / 3);
}

TEST(FolderEntry, EndsInABackslashAndHasNothingAroundIt)
{
    EXPECT_EQ(FolderText("C:\\Charts"), "C:\\Charts\\");
    EXPECT_EQ(FolderText("C:\\Charts\\"), "C:\\Charts\\");
    EXPECT_EQ(FolderText("  \"C:\\My charts\" "), "C:\\My charts\\");
    EXPECT_EQ(FolderText("C:/Charts/IFR"), "C:\\Charts\\IFR\\");
    EXPECT_EQ(FolderText("  "), "");
}

TEST(FolderEntry, BeginsWithADriveOrAComputer)
{
    for (const char* const folder : {"C:\\", "d:\\Charts\\", "\\\\Hangar\\Charts\\", "C:\\a\\..\\b\\"})
        EXPECT_EQ(FolderFault(folder), "") << folder;
    for (const char* const folder :
         {"Charts\\", "\\Charts\\", "C:Charts\\", "1:\\Charts\\", "\\\\", "\\\\\\x\\", "..\\"})
        EXPECT_NE(FolderFault(folder).find("begins with a drive"), std::string::npos) << folder;
    EXPECT_NE(FolderFault("").find("Enter a folder"), std::string::npos);
}

TEST(FolderEntry, HasNoForbiddenCharacterAndFitsTheSystem)
{
    for (const char* const folder :
         {"C:\\a<b\\", "C:\\a>b\\", "C:\\a|b\\", "C:\\a?\\", "C:\\*\\", "C:\\a:b\\", "C:\\a\"b\\"})
        EXPECT_NE(FolderFault(folder).find("none of these characters"), std::string::npos) << folder;
    EXPECT_EQ(FolderFault("C:\\" + std::string(255, 'a') + '\\'), "");
    EXPECT_EQ(FolderFault("C:\\" + std::string(256, 'a') + '\\'), "A folder's name has at most 259 characters.");
}

} // namespace
} // namespace vorn::preferences
