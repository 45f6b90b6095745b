#include <afxwin.h>

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace
{

constexpr UINT kFirst = 700;
constexpr UINT kLast = 1810;
constexpr int kTextBuffer = 512; // what the tooltips load into, the terminating zero included

/// The gaps between the topics: no text has these ids.
constexpr UINT kUnused[] = {722,  745,  768,  791,  814,  837,  860,  883,  907,  931,  955,  980,
                            1003, 1027, 1050, 1073, 1096, 1119, 1141, 1165, 1187, 1210, 1233, 1256,
                            1279, 1302, 1326, 1350, 1373, 1396, 1420, 1444, 1467, 1490, 1513, 1536,
                            1559, 1583, 1606, 1627, 1650, 1673, 1696, 1719, 1742, 1765, 1788, 1809};

struct TwoFields
{
    std::string tip;
    std::string info;
};

std::string WithLineFeeds(std::string text)
{
    for (size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n", at))
        text.replace(at, 2, "\n");
    return text;
}

std::vector<std::string> Columns(const std::string& line)
{
    std::vector<std::string> columns(1);
    for (const char c : line)
    {
        if (c == '\t')
            columns.emplace_back();
        else
            columns.back() += c;
    }
    return columns;
}

/// The table from which the texts are made, read anew.
std::map<UINT, TwoFields> Table()
{
    std::map<UINT, TwoFields> texts;
    std::ifstream file(VORN_HELP_TABLE);
    for (std::string line; std::getline(file, line);)
    {
        const std::vector<std::string> columns = Columns(line);
        if (columns.size() == 6 && line.front() != '#')
            texts[static_cast<UINT>(std::stoul(columns[0]))] = {WithLineFeeds(columns[4]), WithLineFeeds(columns[5])};
    }
    return texts;
}

/// The text of an id through the resource chain; empty when there is none.
std::string Loaded(UINT id)
{
    char text[kTextBuffer] = "";
    const int length = AfxLoadString(id, text, kTextBuffer);
    return {text, static_cast<size_t>(length)};
}

class HelpTexts : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_library = ::LoadLibraryA("VornCommon.dll"); // joins the chain by being loaded
        ASSERT_NE(s_library, nullptr);
    }
    static void TearDownTestSuite()
    {
        ::FreeLibrary(s_library);
    }

    static inline HMODULE s_library = nullptr;
};

} // namespace

TEST_F(HelpTexts, AreFoundInTheLibraryAndNotInTheProgram)
{
    char text[kTextBuffer] = "";
    EXPECT_EQ(::LoadStringA(::GetModuleHandleA(nullptr), kFirst, text, kTextBuffer), 0);
    EXPECT_EQ(AfxFindStringResourceHandle(kFirst), s_library);
    EXPECT_EQ(AfxFindStringResourceHandle(kLast), s_library);
}

TEST_F(HelpTexts, Are1063BetweenTheirFirstAndLastId)
{
    int count = 0;
    for (UINT id = kFirst; id <= kLast; ++id)
    {
        const bool unused = std::find(std::begin(kUnused), std::end(kUnused), id) != std::end(kUnused);
        EXPECT_EQ(Loaded(id).empty(), unused) << id;
        count += Loaded(id).empty() ? 0 : 1;
    }
    EXPECT_EQ(count, 1063);
    EXPECT_EQ(Loaded(kFirst - 1), "");
    EXPECT_EQ(Loaded(kLast + 1), "");
}

TEST_F(HelpTexts, HaveTheFourWordingsThatAreFixed)
{
    EXPECT_EQ(Loaded(700), "The display name for this view.");
    EXPECT_EQ(Loaded(999), "Enter the weight.");
    EXPECT_EQ(Loaded(1149), "Minimum aircraft CG as set in\nthe aircraft CG model data.");
    EXPECT_EQ(Loaded(1601), "Select a point of arrival");
}

TEST_F(HelpTexts, FitTheTooltipsBufferWhole)
{
    for (UINT id = kFirst; id <= kLast; ++id)
    {
        CString whole;
        whole.LoadString(id);
        EXPECT_LT(whole.GetLength(), kTextBuffer) << id;
        EXPECT_EQ(Loaded(id), whole.GetString()) << id;
    }
}

TEST_F(HelpTexts, SplitAtOneCarriageReturnIntoTipAndInfoText)
{
    const std::map<UINT, TwoFields> table = Table();
    ASSERT_EQ(table.size(), 1063U);
    int infos = 0;
    for (const auto& [id, fields] : table)
    {
        const std::string text = Loaded(id);
        const size_t at = text.find('\r');
        EXPECT_EQ(text.substr(0, at), fields.tip) << id;
        EXPECT_EQ(at == std::string::npos ? "" : text.substr(at + 1), fields.info) << id;
        infos += at == std::string::npos ? 0 : 1;
    }
    EXPECT_GT(infos, 230);
}

TEST_F(HelpTexts, AreOfPrintableCharactersAndLineEndsAlone)
{
    for (UINT id = kFirst; id <= kLast; ++id)
    {
        const std::string text = Loaded(id);
        const bool clean = std::all_of(text.begin(), text.end(),
                                       [](char c)
                                       {
                                           return c == '\r' || c == '\n' || (c >= ' ' && c <= '~');
                                       });
        EXPECT_TRUE(clean) << id;
    }
}

TEST_F(HelpTexts, LeaveWithTheLibrary)
{
    ::FreeLibrary(s_library);
    EXPECT_EQ(AfxFindStringResourceHandle(kFirst), nullptr);
    s_library = ::LoadLibraryA("VornCommon.dll");
    EXPECT_EQ(AfxFindStringResourceHandle(kFirst), s_library);
}
