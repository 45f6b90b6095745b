#include "files/core/CDBFFile.h"
#include "framework/include/afxwin.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

constexpr int kTextControl = 0xFFFF;

/// Closes boxes of a title and keeps their texts.
class BoxReader
{
public:
    explicit BoxReader(const char* title) : m_title(title)
    {
    }

    bool operator()(std::size_t count)
    {
        HWND box = FindDialog(m_title);
        if (box == nullptr || box == m_last)
            return false;
        char text[8192] = {};
        ::GetDlgItemTextA(box, kTextControl, text, sizeof(text));
        texts.emplace_back(text);
        m_last = box;
        ::SendMessageA(box, WM_COMMAND, IDOK, 0);
        return texts.size() == count;
    }

    std::vector<std::string> texts;

private:
    const char* m_title;
    HWND m_last = nullptr;
};

class TableBoxes : public testing::Test
{
protected:
    TableBoxes()
    {
        vorn::test::TableBytes bytes;
        bytes.Field("IDENT", 'C', 4).Field("FREQ", 'N', 6).Date(126, 11, 21).Record("SEA 116800");
        m_isOpen = m_table.Open(m_folder.Write("t.dbf", bytes.Bytes()).c_str(), CFile::modeRead) == 1;
    }

    vorn::test::ScratchFolder m_folder;
    CDBFFile m_table{10};
    bool m_isOpen = false;
};

} // namespace

TEST_F(TableBoxes, DumpHeader_ShowsOneAfterTheOther)
{
    ASSERT_TRUE(m_isOpen);
    BoxReader boxes("Header");
    DialogDriver driver(
        [&boxes]
        {
            return boxes(8);
        });
    m_table.DumpHeader();
    EXPECT_TRUE(driver.IsDone());
    EXPECT_EQ(boxes.texts, (std::vector<std::string>{"dbt 3\n", "date: 126 11 21\n", "num records: 1\n",
                                                     "record len:  11\n", "header len:  97\n", "num fields:  2\n",
                                                     "IDENT type=C length=4 precision=0 offset=1\n",
                                                     "FREQ type=N length=6 precision=0 offset=5\n"}));
}

TEST_F(TableBoxes, DumpCurrentRecord_HasNoTitleAndDisablesOtherWindows)
{
    ASSERT_TRUE(m_isOpen);
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    HWND other = ::CreateWindowExA(0, "STATIC", "other", WS_OVERLAPPED | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                   nullptr, nullptr);
    ASSERT_NE(other, nullptr);
    BoxReader boxes("");
    bool isOtherEnabled = true;
    DialogDriver driver(
        [&]
        {
            isOtherEnabled = FindDialog("") != nullptr ? ::IsWindowEnabled(other) != FALSE : isOtherEnabled;
            return boxes(1);
        });
    m_table.DumpCurrentRecord();
    EXPECT_TRUE(driver.IsDone());
    EXPECT_EQ(boxes.texts, (std::vector<std::string>{">SEA < >116800< "}));
    EXPECT_FALSE(isOtherEnabled) << "modal to the whole task";
    EXPECT_TRUE(::IsWindowEnabled(other));
    ::DestroyWindow(other);
}
