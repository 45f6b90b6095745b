#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/VornSample/RunningSample.h"
#include "tests/windows/VornSample/SampleSettings.h"

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>

using vorn::test::PumpUntil;
using vorn::test::SampleProcess;
using vorn::test::ScratchFolder;
using vorn::test::ScratchKey;

namespace
{

// The sample's public numbers: of the table page's controls, of its commands and of its dialog's controls.
constexpr int kList = 2200;
constexpr int kField = 2201;
constexpr int kValue = 2202;
constexpr int kMethod = 2203;
constexpr int kMemo = 2206;
constexpr int kTableNotice = 2207;
constexpr int kFind = 33205;
constexpr WPARAM kPackCommand = 33203;
constexpr int kEditField = 1010;
constexpr int kEditValue = 1011;
constexpr int kEditHint = 1012;

constexpr int kBoxText = 0xFFFF; // of a message box

struct Field
{
    std::string name;
    char type;
    int length;
};

std::string Padded(std::string text, std::size_t length, char with = ' ')
{
    text.resize(length, with);
    return text;
}

std::string Little(std::uint32_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i, value >>= 8)
        text += static_cast<char>(value & 0xFF);
    return text;
}

// A table as its layout has been published, without the library.
std::string TableHead(const std::vector<Field>& fields, std::uint32_t records)
{
    std::uint32_t record = 1;
    std::string descriptors;
    for (const Field& field : fields)
    {
        descriptors += Padded(field.name, 11, '\0') + field.type + std::string(4, '\0') +
                       static_cast<char>(field.length) + std::string(15, '\0');
        record += static_cast<std::uint32_t>(field.length);
    }
    const std::uint32_t header = 33 + static_cast<std::uint32_t>(descriptors.size());
    return std::string("\3\x7E\xB\x15", 4) + Little(records, 4) + Little(header, 2) + Little(record, 2) +
           std::string(20, '\0') + descriptors + '\r';
}

constexpr std::size_t kHead = 32 + 3 * 32 + 1;
constexpr std::size_t kRecord = 1 + 4 + 10 + 10;

class SampleTables : public vorn::test::RunningSample
{
protected:
    SampleTables()
    {
        const std::string section = std::string(kSettings) + "\\Paths";
        const std::string folder = m_folder.Path().string() + '\\';
        RegSetKeyValueA(HKEY_CURRENT_USER, section.c_str(), "UserHidden Path", REG_SZ, folder.c_str(),
                        static_cast<DWORD>(folder.size() + 1));
        std::string table = TableHead({{"IDENT", 'C', 4}, {"NAME", 'C', 10}, {"REMARK", 'M', 10}}, 4);
        table += " ALW Walla     " + std::string(10, ' ');
        table += " BOI Boise              1";
        table += " BOI Boise 2   " + std::string(10, ' ');
        table += " SEA Seattle   " + std::string(10, ' ');
        m_table = m_folder.Write("aids.dbf", table);
        m_folder.Write("aids.dbt", Little(2, 4) + std::string(508, '\0') +
                                       Padded(std::string("\xFF\xFF\x08\0\x14\0\0\0", 8) + "On the field", 512, '\0'));
    }

    std::string Output() const
    {
        return m_folder.Read("output.txt");
    }

    // Starts the sample with a table and waits until its list is there.
    void Start(const std::string& table, int rows)
    {
        ASSERT_NO_FATAL_FAILURE(Open("--table \"" + table + '"'));
        ASSERT_TRUE(PumpUntil(
            [&]
            {
                return IsWindowVisible(Control(kList)) && Rows() == rows;
            }))
            << Notice();
    }

    static void SetText(HWND window, const char* text)
    {
        SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }

    // In place of the whole text, with the news of it: an edit of several lines sends none when its text is set.
    static void Type(HWND edit, const char* text)
    {
        SendMessageA(edit, EM_SETSEL, 0, -1);
        SendMessageA(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
    }

    static void Choose(HWND box, WPARAM index)
    {
        SendMessageA(box, CB_SETCURSEL, index, 0);
        SendMessageA(GetParent(box), WM_COMMAND,
                     MAKEWPARAM(static_cast<WORD>(GetDlgCtrlID(box)), static_cast<WORD>(CBN_SELCHANGE)),
                     reinterpret_cast<LPARAM>(box));
    }

    void Press(WPARAM key) const
    {
        PostMessageA(Control(kList), WM_KEYDOWN, key, 1);
    }

    static void Click(HWND dialog, int button)
    {
        PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }

    int Rows() const
    {
        return static_cast<int>(SendMessageA(Control(kList), LVM_GETITEMCOUNT, 0, 0));
    }

    int SelectedRow() const
    {
        return static_cast<int>(SendMessageA(Control(kList), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    }

    std::string Notice() const
    {
        return TextOf(Control(kTableNotice));
    }

    bool NoticeBecomes(const std::string& beginning) const
    {
        return PumpUntil(
            [&]
            {
                return Notice().starts_with(beginning);
            });
    }

    // The text of the message box that has come up, which is then answered.
    std::string AnswerBox(int button) const
    {
        const HWND box = m_sample->Dialog();
        const std::string text = TextOf(GetDlgItem(box, kBoxText));
        Click(box, button);
        PumpUntil(
            [box]
            {
                return IsWindow(box) == FALSE;
            });
        return text;
    }

    void WriteLongTable(const char* name, int records) const
    {
        std::vector<Field> fields;
        for (int field = 0; field < 12; ++field)
            fields.push_back({"FIELD" + std::to_string(field), 'C', field == 11 ? 9 : 10});
        std::string table = TableHead(fields, static_cast<std::uint32_t>(records));
        table.reserve(table.size() + std::size_t{120} * static_cast<std::size_t>(records));
        for (int record = 0; record < records; ++record)
        {
            const std::string number = std::to_string(record);
            table += ' ' + Padded("W" + std::string(6 - number.size(), '0') + number, 10);
            for (int field = 1; field < 12; ++field)
                table += Padded(std::to_string(record * 7919 % 100003 + field), field == 11 ? 9 : 10);
        }
        m_folder.Write(name, table);
    }

    // From page to page downwards and upwards, and by leaps, each painted to the end.
    void LeapThrough(int rows) const
    {
        constexpr int kTurns = 50;
        const HWND list = Control(kList);
        for (int turn = 0; turn < kTurns; ++turn)
        {
            SendMessageA(list, WM_VSCROLL, turn < kTurns / 2 ? SB_PAGEDOWN : SB_PAGEUP, 0);
            RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            const LRESULT row = turn * 7919 * 83 % rows;
            SendMessageA(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
            RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            const LRESULT top = SendMessageA(list, LVM_GETTOPINDEX, 0, 0);
            EXPECT_LE(top, row);
            EXPECT_LT(row, top + SendMessageA(list, LVM_GETCOUNTPERPAGE, 0, 0));
        }
    }

    ScratchKey m_settings{HKEY_CURRENT_USER, kSettings};
    std::string m_table;
};

} // namespace

TEST_F(SampleTables, ShowItsOwnAidsWithoutBeingAsked)
{
    EXPECT_EQ(Run("--page tables --summary"), 0u);
    EXPECT_NE(Output().find("navaids.dbf - 156 records with 10 fields, 87 bytes each\n"), std::string::npos)
        << Output();
    EXPECT_EQ(Run("--find IDENT=SEA --summary"), 0u);
    EXPECT_NE(Output().find("     123  SEA    Seattle       VORTAC     116800  47.43540  -122.31000      354  17.6  "),
              std::string::npos)
        << Output();
    EXPECT_NE(Output().find("  On the field of Seattle-Tacoma International (KSEA); its longest runway is 16L/34R, "),
              std::string::npos)
        << Output();
}

TEST_F(SampleTables, ReportWhatTheCommandLineAsksInVain)
{
    EXPECT_EQ(Run("--table \"" + m_folder.File("none.dbf") + "\" --summary"), 1u);
    EXPECT_EQ(Output(), "VornSample: cannot open " + m_folder.File("none.dbf") + ": There is no such file\n");
    const std::string text = m_folder.Write("text.dbf", "no table");
    EXPECT_EQ(Run("--table \"" + text + "\" --summary"), 1u);
    EXPECT_EQ(Output(), "VornSample: cannot open " + text + ": The file is no dBASE table\n");
    EXPECT_EQ(Run("--find IDENT=NOPE --summary"), 1u);
    EXPECT_EQ(Output(), "VornSample: no record has IDENT=NOPE\n");
    EXPECT_EQ(Run("--find NOPE=1 --summary"), 1u);
    EXPECT_EQ(Output(), "VornSample: the table has no field NOPE\n");
    EXPECT_EQ(Run("--find NOPE --summary"), 2u);
    EXPECT_EQ(Output(), "VornSample: --find wants FIELD=VALUE, for example IDENT=SEA\n");
}

TEST_F(SampleTables, ShowTheMemoOfTheSelectedRecord)
{
    Start(m_table, 4);
    EXPECT_EQ(SelectedRow(), 0);
    EXPECT_EQ(TextOf(Control(kMemo)), "");
    Press(VK_DOWN);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return TextOf(Control(kMemo)) == "On the field";
        }));
    End();
}

TEST_F(SampleTables, FindValuesByBothSearchesAndTheNextByF3)
{
    Start(m_table, 4);
    for (const WPARAM method : {0u, 1u})
    {
        const std::string how = method == 0 ? "linear" : "binary";
        Choose(Control(kField), 0);
        Choose(Control(kMethod), method);
        SetText(Control(kValue), "BOI");
        PostMessageA(Control(kFind), BM_CLICK, 0, 0);
        EXPECT_TRUE(NoticeBecomes("Found in record 1 by " + how)) << Notice();
        EXPECT_EQ(SelectedRow(), 1);
        Press(VK_F3);
        EXPECT_TRUE(NoticeBecomes("Found in record 2 by " + how)) << Notice();
        EXPECT_EQ(SelectedRow(), 2);
        Press(VK_F3);
        EXPECT_TRUE(NoticeBecomes("No other record")) << Notice();
        EXPECT_EQ(SelectedRow(), 2);
        SetText(Control(kValue), "XYZ");
        PostMessageA(Control(kValue), WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_TRUE(NoticeBecomes("No record has XYZ")) << Notice();
    }
    End();
}

TEST_F(SampleTables, WarnOfABinarySearchWhereNothingIsSorted)
{
    std::string table = m_folder.Read("aids.dbf");
    table.replace(kHead + 1, 3, "ZZZ");
    m_folder.Write("aids.dbf", table);
    Start(m_table, 4);
    Choose(Control(kMethod), 1);
    SetText(Control(kValue), "ZZZ");
    PostMessageA(Control(kFind), BM_CLICK, 0, 0);
    EXPECT_TRUE(NoticeBecomes("The binary search found nothing, but the table is not sorted")) << Notice();
    End();
}

TEST_F(SampleTables, GoToTheRowThatIsTyped)
{
    Start(m_table, 4);
    PostMessageA(Control(kList), WM_CHAR, 's', 1);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return SelectedRow() == 3;
        }));
    End();
}

TEST_F(SampleTables, WriteAnEditedFieldAndRefuseWhatIsTooLong)
{
    const std::string before = m_folder.Read("aids.dbf");
    Start(m_table, 4);
    Press(VK_RETURN);
    const HWND dialog = m_sample->Dialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(TextOf(dialog), "Edit record 0");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kEditValue)), "ALW");
    Choose(GetDlgItem(dialog, kEditField), 1);
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kEditValue)), "Walla");
    Type(GetDlgItem(dialog, kEditValue), "Walla Walla");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kEditHint)), "11 of 10 characters. The text is longer than the field");
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, IDOK)));
    Type(GetDlgItem(dialog, kEditValue), "WallaWalla");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kEditHint)), "10 of 10 characters");
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(dialog, IDOK)));
    Click(dialog, IDOK);
    EXPECT_TRUE(NoticeBecomes("Written: NAME of record 0.")) << Notice();
    End();
    std::string expected = before;
    expected.replace(kHead + 5, 10, "WallaWalla");
    EXPECT_EQ(m_folder.Read("aids.dbf"), expected);
}

TEST_F(SampleTables, DeleteWhenTheUserSaysYesAndPack)
{
    Start(m_table, 4);
    Press(VK_DOWN);
    Press(VK_DELETE);
    EXPECT_EQ(AnswerBox(IDNO), "Delete record 1, BOI?\n\nIt stays in the file until the table is packed.");
    EXPECT_EQ(Rows(), 4);
    Press(VK_DELETE);
    AnswerBox(IDYES);
    EXPECT_TRUE(NoticeBecomes("Deleted: record 1.")) << Notice();
    EXPECT_EQ(Rows(), 3);
    EXPECT_EQ(m_folder.Read("aids.dbf")[kHead + kRecord], '*');
    PostMessageA(m_window, WM_COMMAND, kPackCommand, 0);
    EXPECT_EQ(AnswerBox(IDYES), "Rewrite the table without its 1 deleted record?\n\nThey cannot be brought back.");
    EXPECT_TRUE(NoticeBecomes("Packed: 1 deleted record")) << Notice();
    EXPECT_EQ(Rows(), 3);
    End();
    const std::string table = m_folder.Read("aids.dbf");
    EXPECT_EQ(table.size(), kHead + 3 * kRecord);
    EXPECT_EQ(table.substr(kHead + kRecord, 15), " BOI Boise 2   ");
}

TEST_F(SampleTables, CountTheirUse)
{
    Start(m_table, 4);
    SetText(Control(kValue), "SEA");
    PostMessageA(Control(kFind), BM_CLICK, 0, 0);
    EXPECT_TRUE(NoticeBecomes("Found in record 3"));
    Press(VK_DELETE);
    AnswerBox(IDYES);
    EXPECT_TRUE(NoticeBecomes("Deleted"));
    End();
    EXPECT_EQ(Run("--page overview --summary"), 0u);
    EXPECT_NE(Output().find("  Program starts          2\n"
                            "  Tables opened           1\n"
                            "  Searches in tables      1\n"
                            "  Fields changed          0\n"
                            "  Records deleted         1\n"
                            "  Tables packed           0\n"),
              std::string::npos)
        << Output();
    // Version 1, when counting began, and five counters: that of packs was never needed.
    const std::string counts = m_folder.Read("usage.dat");
    ASSERT_EQ(counts.size(), 16u + 5 * 4);
    EXPECT_EQ(counts.substr(0, 4), Little(1, 4));
    EXPECT_EQ(counts.substr(12),
              Little(5, 4) + Little(2, 4) + Little(1, 4) + Little(1, 4) + Little(0, 4) + Little(1, 4));
}

TEST_F(SampleTables, SayThatATableIsOpenElsewhereAndCannotBeChanged)
{
    const std::string before = m_folder.Read("aids.dbf");
    const HANDLE reader =
        CreateFileA(m_table.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    Start(m_table, 4);
    EXPECT_TRUE(NoticeBecomes("For reading alone. Another program has the table open.")) << Notice();
    const std::string why = " The table is open for reading alone. Another program has the table open.";
    Press(VK_RETURN);
    EXPECT_EQ(AnswerBox(IDOK), "The field cannot be changed." + why);
    Press(VK_DELETE);
    EXPECT_EQ(AnswerBox(IDOK), "Nothing can be deleted." + why);
    PostMessageA(m_window, WM_COMMAND, kPackCommand, 0);
    EXPECT_EQ(AnswerBox(IDOK), "The table cannot be packed." + why);
    CloseHandle(reader);
    PostMessageA(m_window, WM_COMMAND, 33000, 0); // View, Refresh
    EXPECT_TRUE(NoticeBecomes("Opened aids.dbf.")) << Notice();
    End();
    EXPECT_EQ(m_folder.Read("aids.dbf"), before);
}

TEST_F(SampleTables, StayAsTheyWereWhenPackingCannotReplaceThem)
{
    Start(m_table, 4);
    Press(VK_DELETE);
    AnswerBox(IDYES);
    EXPECT_TRUE(NoticeBecomes("Deleted: record 0.")) << Notice();
    const std::string before = m_folder.Read("aids.dbf");
    const HANDLE reader = CreateFileA(m_table.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(reader, INVALID_HANDLE_VALUE);
    PostMessageA(m_window, WM_COMMAND, kPackCommand, 0);
    AnswerBox(IDYES);
    EXPECT_TRUE(NoticeBecomes("The table was not packed. The change could not be written; the table is as it was."))
        << Notice();
    AnswerBox(IDOK);
    EXPECT_EQ(m_folder.Read("aids.dbf"), before);
    CloseHandle(reader);
    PostMessageA(m_window, WM_COMMAND, kPackCommand, 0);
    AnswerBox(IDYES);
    EXPECT_TRUE(NoticeBecomes("Packed")) << Notice();
    End();
    EXPECT_EQ(m_folder.Read("aids.dbf").size(), kHead + 3 * kRecord);
}

TEST_F(SampleTables, SayThatATableCannotBeOpened)
{
    const HANDLE writer =
        CreateFileA(m_table.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(Run("--table \"" + m_table + "\" --summary"), 1u);
    EXPECT_EQ(Output(), "VornSample: cannot open " + m_table + ": Another program has the table open\n");
    CloseHandle(writer);
    const std::string folder = m_folder.Path().string();
    EXPECT_EQ(Run("--table \"" + folder + "\" --summary"), 1u);
    EXPECT_EQ(Output(), "VornSample: cannot open " + folder + ": The file is write-protected, or may not be opened\n");
}

namespace
{

// The field for the file's name in the system's dialog, wherever it stands there.
HWND NameField(HWND dialog)
{
    constexpr int kPlainName = 0x480;
    constexpr int kNameWithList = 0x47C;
    const HWND plain = GetDlgItem(dialog, kPlainName);
    return plain != nullptr ? plain : GetDlgItem(dialog, kNameWithList);
}

} // namespace

TEST_F(SampleTables, OpenAnotherByTheDialogAndKeepTheOldOneWhenThatFails)
{
    constexpr WPARAM kOpenCommand = 33200;
    WriteLongTable("other.dbf", 7);
    const std::string noTable = m_folder.Write("text.dbf", "no table");
    Start(m_table, 4);
    PostMessageA(m_window, WM_COMMAND, kOpenCommand, 0);
    HWND dialog = m_sample->Dialog();
    ASSERT_NE(NameField(dialog), nullptr);
    SetText(NameField(dialog), m_folder.File("other.dbf").c_str());
    Click(dialog, IDOK);
    EXPECT_TRUE(NoticeBecomes("Opened other.dbf.")) << Notice();
    EXPECT_EQ(Rows(), 7);
    EXPECT_FALSE(IsWindowVisible(Control(kMemo)));

    PostMessageA(m_window, WM_COMMAND, kOpenCommand, 0);
    dialog = m_sample->Dialog();
    ASSERT_NE(NameField(dialog), nullptr);
    SetText(NameField(dialog), noTable.c_str());
    Click(dialog, IDOK);
    EXPECT_TRUE(NoticeBecomes("Cannot open")) << Notice();
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return TextOf(GetDlgItem(m_sample->Dialog(), kBoxText)) ==
                   "Cannot open " + noTable + ". The file is no dBASE table.";
        }));
    AnswerBox(IDOK);
    EXPECT_EQ(Rows(), 7);
    End();
}

TEST_F(SampleTables, TabGoesThroughTheControls)
{
    Start(m_table, 4);
    const DWORD thread = GetWindowThreadProcessId(m_window, nullptr);
    const auto focus = [thread]
    {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(thread, &info);
        return info.hwndFocus;
    };
    SetForegroundWindow(m_window);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return focus() == Control(kList);
        }));
    Press(VK_TAB);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return focus() != Control(kList) && GetParent(focus()) == m_view;
        }));
    PostMessageA(m_window, WM_COMMAND, 33204, 0); // Table, Search
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return focus() == Control(kValue);
        }));
    PostMessageA(Control(kValue), WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return focus() == Control(kList);
        }));
    End();
}

// A table of 12 fields and 120 bytes a record, sorted by its first field.
TEST_F(SampleTables, ShowAndSearchTwoHundredThousandRecords)
{
    constexpr int kMany = 200000;
    WriteLongTable("many.dbf", kMany);
    Start(m_folder.File("many.dbf"), kMany);
    LeapThrough(kMany);
    Press(VK_END);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return SelectedRow() == kMany - 1;
        }));
    SetText(Control(kValue), "W199999");
    for (const WPARAM method : {0u, 1u})
    {
        Choose(Control(kMethod), method);
        PostMessageA(Control(kFind), BM_CLICK, 0, 0);
        const std::string how = method == 0 ? "linear" : "binary";
        EXPECT_TRUE(NoticeBecomes("Found in record 199999 by " + how)) << Notice();
    }
    End();
}
