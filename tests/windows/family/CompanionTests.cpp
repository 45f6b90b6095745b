#include "family/TarnComm/core/ProxySet.h"
#include "family/TarnUtil/core/FixCase.h"
#include "family/TarnUtil/core/TarnObject.h"
#include "family/TarnUtil/core/Units.h"
#include "family/VornChart/core/VornLog.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <memory>

// The companions as their users meet them: through the exports of their libraries.

namespace
{

/// Makes the shared log, as derived classes may.
struct LogMaker : VornLog
{
    static void Make()
    {
        mpSingleInst = new VornLog; // deleted below
    }
    static void Delete()
    {
        delete mpSingleInst;
        mpSingleInst = nullptr;
    }
};

} // namespace

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
    ASSERT_EQ(VornLog::Shared(), nullptr);
    LogMaker::Make();
    VornLog::Shared()->LogMsg("shared", LOG_INFO);
    char* raw = nullptr;
    EXPECT_EQ(VornLog::Shared()->GetLog(raw), 8);
    const std::unique_ptr<char[]> text(raw);
    EXPECT_STREQ(text.get(), "shared\r\n");
    LogMaker::Delete();
}

TEST(Companions, TheLogsTextComesFromItsDerivedClass)
{
    EXPECT_EQ(vorn::test::SlotOf(&VornLog::GetLog), 2);
}

TEST(Companions, AProxySetFreesWhatItsUserMade)
{
    ProxySet proxies;
    auto* const proxy = new ProxyInfo; // the set's, from the next line on
    ASSERT_TRUE(proxies.AddProxy(proxy));
    EXPECT_TRUE(proxy->mAddress.Parse("joe:secret@[::1]:1080"));
    EXPECT_STREQ(proxies.GetAt(0)->mAddress.mpHost, "[::1]");
    EXPECT_TRUE(proxies.DeleteProxy(proxy));
    EXPECT_EQ(proxies.GetCount(), 0);
}
