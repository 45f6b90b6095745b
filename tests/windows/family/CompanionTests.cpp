#include "family/TarnUtil/core/FixCase.h"
#include "family/TarnUtil/core/TarnObject.h"
#include "family/TarnUtil/core/Units.h"
#include "family/VornChart/core/VornLog.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <memory>

// The companions as their users meet them: through the exports of their libraries.

TEST(Companions, UnitTableIsReachedThroughTheLibrary)
{
    EXPECT_EQ(gUnitCount, 22);
    EXPECT_STREQ(gUnitInfo[UNIT_INHG][1], "inHg");
    double value = 1;
    EXPECT_TRUE(ConvertValue(&value, UNIT_NM, UNIT_M));
    EXPECT_EQ(value, 1852.0);
}

TEST(Companions, TextAndFieldsAreReachedThroughTheLibrary)
{
    char text[] = "BOEING FIELD";
    FixCase(text);
    EXPECT_STREQ(text, "Boeing Field");
    char* cursor = text;
    unsigned long remaining = 12;
    char letter = 0;
    EXPECT_NE(TarnObject::ReadWriteSimpleValue(cursor, remaining, &letter, 1, 1), 0);
    EXPECT_EQ(letter, 'B');
}

TEST(Companions, AllUsersShareOneLogPointer)
{
    ASSERT_EQ(VornLog::mpSingleInst, nullptr);
    const auto log = std::make_unique<VornLog>();
    VornLog::mpSingleInst = log.get();
    VornLog::mpSingleInst->LogMsg("shared", LOG_INFO);
    char* raw = nullptr;
    EXPECT_EQ(VornLog::mpSingleInst->GetLog(raw), 8);
    const std::unique_ptr<char[]> text(raw);
    EXPECT_STREQ(text.get(), "shared\r\n");
    VornLog::mpSingleInst = nullptr;
}

TEST(Companions, TheLogsTextComesFromItsDerivedClass)
{
    EXPECT_EQ(vorn::test::SlotOf(&VornLog::GetLog), 2);
}
