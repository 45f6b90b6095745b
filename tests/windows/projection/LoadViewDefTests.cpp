#include "aviation/LoadViewDef.h"
#include "config/AppRegMgr.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
constexpr const char* kDefault = "v1|1|0|0|0|0|0|0|180|0|25|0|";

/// Keeps the text that it is to read, and answers as told.
class RecordingView : public ViewDefinition
{
public:
    bool Parse(const char* text) override
    {
        ++parses;
        parsed = text;
        keyAtParse = Key();
        return answer;
    }

    int parses = 0;
    std::string parsed;
    std::string keyAtParse;
    bool answer = true;
};

/// The host's settings, empty before and after.
class LoadViewDefTest : public testing::Test
{
protected:
    LoadViewDefTest()
    {
        CleanUp();
    }
    ~LoadViewDefTest() override
    {
        CleanUp();
    }

    static void Put(const char* section, const char* key, const char* value)
    {
        ASSERT_TRUE(AppRegMgr::Instance()->WriteVornString(section, key, value, 0));
    }
    static void PutNumber(const char* section, const char* key, int value)
    {
        ASSERT_TRUE(AppRegMgr::Instance()->WriteVornInt(section, key, value, 0));
    }
    static std::string Loaded(const char* section = "Views", const char* name = "Last")
    {
        RecordingView view;
        EXPECT_TRUE(LoadViewDef(&view, section, name));
        EXPECT_EQ(view.parses, 1);
        return view.parsed;
    }

private:
    static void CleanUp()
    {
        AppRegMgr::FreeInst();
        RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Vornwald\\windows_projection_tests");
    }
};
} // namespace

TEST_F(LoadViewDefTest, WithoutSettingsItIsTheDefaultView)
{
    EXPECT_EQ(Loaded(), kDefault);
    ViewDefinition view;
    EXPECT_TRUE(LoadViewDef(&view, "Views", "Last"));
    EXPECT_STREQ(view.Format(), kDefault);
}

TEST_F(LoadViewDefTest, TheNameBecomesTheViewsKeyBeforeItReads)
{
    RecordingView view;
    LoadViewDef(&view, "Views", "Last");
    EXPECT_EQ(view.keyAtParse, "Last");
    EXPECT_STREQ(view.Key(), "Last");
}

TEST_F(LoadViewDefTest, AStoredTextIsReadAsItStands)
{
    const char* const text = "v1|2|2|33|45|1|2|3|4|5|6|7|8|9|";
    Put("Views", "Last", text);
    EXPECT_EQ(Loaded(), text);
    EXPECT_EQ(Loaded("Views", "Other"), kDefault);
    Put("Views", "Last", "no view at all");
    EXPECT_EQ(Loaded(), "no view at all");
    ViewDefinition view;
    EXPECT_FALSE(LoadViewDef(&view, "Views", "Last"));
    EXPECT_STREQ(view.Format(), kDefault); // as it was made
    Put("Views", "Last", "");
    EXPECT_EQ(Loaded(), kDefault);
}

TEST_F(LoadViewDefTest, AnswersWhatTheViewAnswers)
{
    RecordingView view;
    view.answer = false;
    EXPECT_FALSE(LoadViewDef(&view, "Views", "Last"));
    view.answer = true;
    EXPECT_TRUE(LoadViewDef(&view, "Views", "Last"));
    EXPECT_FALSE(LoadViewDef(nullptr, "Views", "Last"));
}

TEST_F(LoadViewDefTest, TheOlderLayoutIsConverted)
{
    Put("Views", "Projection", "5");
    Put("Views", "Param1", "2.5");
    Put("Views", "Param2", "7");
    EXPECT_EQ(Loaded(), "v1|5|2|2.5|7|0|0|0|0|0|180|0|25|0|");
}

TEST_F(LoadViewDefTest, EveryFieldOfTheOlderLayoutHasItsPlace)
{
    const char* const keys[] = {"LogX", "LogY", "MapX", "MapY", "Scale", "SeamLon", "Skew", "CntrLat", "CntrLon"};
    PutNumber("Views", "Projection", 3);
    int value = 1;
    for (const char* key : keys)
    {
        Put("Views", key, std::to_string(value++).c_str());
    }
    Put("Views", "Param1", "-1.5e2");
    EXPECT_EQ(Loaded(), "v1|3|1|-1.5e2|1|2|3|4|5|6|7|8|9|");
}

TEST_F(LoadViewDefTest, AProjectionStoredAsNumberIsTheSameAsText)
{
    PutNumber("Views", "Projection", 5);
    EXPECT_EQ(Loaded(), "v1|5|0|0|0|0|0|0|180|0|25|0|");
    PutNumber("Views", "Projection", 0);
    EXPECT_EQ(Loaded(), "v1|0|0|0|0|0|0|0|180|0|25|0|");
    Put("Views", "Projection", "5abc");
    EXPECT_EQ(Loaded(), "v1|5abc|0|0|0|0|0|0|180|0|25|0|");
    PutNumber("Views", "Projection", -2);
    EXPECT_EQ(Loaded(), "v1|-2|0|0|0|0|0|0|180|0|25|0|");
}

TEST_F(LoadViewDefTest, AGapEndsTheParameters)
{
    Put("Views", "Projection", "2");
    Put("Views", "Param0", "9");
    Put("Views", "Param1", "1");
    Put("Views", "Param3", "3");
    EXPECT_EQ(Loaded(), "v1|2|1|1|0|0|0|0|0|180|0|25|0|");
    Put("Views", "Param2", "");
    EXPECT_EQ(Loaded(), "v1|2|1|1|0|0|0|0|0|180|0|25|0|");
    Put("Views", "Param2", "2");
    EXPECT_EQ(Loaded(), "v1|2|3|1|2|3|0|0|0|0|0|180|0|25|0|");
}

TEST_F(LoadViewDefTest, TheOlderLayoutWinsOverAStoredText)
{
    Put("Views", "Last", "v1|4|0|0|0|0|0|0|180|0|25|0|");
    Put("Views", "Projection", "2");
    EXPECT_EQ(Loaded(), "v1|2|0|0|0|0|0|0|180|0|25|0|");
}

TEST_F(LoadViewDefTest, TheFieldsComeFromTheSectionThatHasTheProjection)
{
    Put("Last", "Projection", "4");
    Put("Last", "Scale", "44");
    Put("Views", "Scale", "99");
    EXPECT_EQ(Loaded(), "v1|4|0|0|0|0|0|44|180|0|25|0|");
    Put("Views", "Projection", "2"); // the first section comes first
    EXPECT_EQ(Loaded(), "v1|2|0|0|0|0|0|99|180|0|25|0|");
}

TEST_F(LoadViewDefTest, AProjectionThatIsNoNumberIsAbsent)
{
    Put("Views", "Last", "v1|4|0|0|0|0|0|0|180|0|25|0|");
    for (const char* text : {"-1", "abc", "", " 5", "+5"})
    {
        Put("Views", "Projection", text);
        EXPECT_EQ(Loaded(), "v1|4|0|0|0|0|0|0|180|0|25|0|") << text;
    }
    PutNumber("Views", "Projection", -1);
    EXPECT_EQ(Loaded(), "v1|4|0|0|0|0|0|0|180|0|25|0|");
}

TEST_F(LoadViewDefTest, AnEmptyFieldStaysEmptyAndIsRefused)
{
    Put("Views", "Projection", "1");
    Put("Views", "MapY", "");
    EXPECT_EQ(Loaded(), "v1|1|0|0|0|0||0|180|0|25|0|");
    ViewDefinition view;
    EXPECT_FALSE(LoadViewDef(&view, "Views", "Last"));
}

TEST_F(LoadViewDefTest, ALineWithinAParameterPassesAndIsRefused)
{
    Put("Views", "Projection", "1");
    Put("Views", "Param1", "1|2");
    EXPECT_EQ(Loaded(), "v1|1|1|1|2|0|0|0|0|0|180|0|25|0|");
    ViewDefinition view;
    EXPECT_FALSE(LoadViewDef(&view, "Views", "Last"));
}

TEST_F(LoadViewDefTest, LongAndManyParametersPass)
{
    Put("Views", "Projection", "1");
    const std::string longest(1023, '1');
    std::string expected = "v1|1|70|";
    for (int i = 1; i <= 70; ++i)
    {
        const std::string key = std::string("Param").append(std::to_string(i));
        Put("Views", key.c_str(), longest.c_str());
        expected += longest + '|';
    }
    expected += "0|0|0|0|0|180|0|25|0|";
    EXPECT_EQ(Loaded(), expected);
    ViewDefinition view;
    EXPECT_FALSE(LoadViewDef(&view, "Views", "Last")); // too many, and too large
}

TEST_F(LoadViewDefTest, NullNamesAreEmptyOnes)
{
    RecordingView view;
    EXPECT_TRUE(LoadViewDef(&view, nullptr, nullptr));
    EXPECT_EQ(view.parsed, kDefault);
    EXPECT_STREQ(view.Key(), "");
    Put("Last", "Projection", "3");
    EXPECT_TRUE(LoadViewDef(&view, nullptr, "Last"));
    EXPECT_EQ(view.parsed, "v1|3|0|0|0|0|0|0|180|0|25|0|");
    Put("Views", "Projection", "4");
    EXPECT_TRUE(LoadViewDef(&view, "Views", nullptr));
    EXPECT_EQ(view.parsed, "v1|4|0|0|0|0|0|0|180|0|25|0|");
}

TEST_F(LoadViewDefTest, NothingIsWritten)
{
    Put("Views", "Projection", "2");
    Loaded();
    Loaded("Views", "Other");
    AppRegMgr& settings = *AppRegMgr::Instance();
    EXPECT_STREQ(settings.ReadVornString("Views", "Projection", "gone", 0), "2");
    EXPECT_STREQ(settings.ReadVornString("Views", "Last", "none", 0), "none");
    EXPECT_STREQ(settings.ReadVornString("Views", "Other", "none", 0), "none");
    EXPECT_STREQ(settings.ReadVornString("Views", "LogX", "none", 0), "none");
}
