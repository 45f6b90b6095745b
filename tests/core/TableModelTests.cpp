#include "files/core/CDBFFile.h"
#include "tests/core/TableModel.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <random>

/// Thousands of steps over invented tables, each compared with the plain model.
namespace
{

using namespace vorn::test;

class Chance
{
public:
    explicit Chance(unsigned seed) : m_random(seed)
    {
    }
    int Below(int limit)
    {
        return static_cast<int>(m_random() % static_cast<unsigned>(limit));
    }
    std::string Text(int length)
    {
        std::string text;
        while (static_cast<int>(text.size()) < length)
        {
            text += "   \t09aZzA:?.-\xE9\xA0"[Below(16)];
        }
        return text;
    }

private:
    std::mt19937 m_random;
};

std::string InventTable(Chance& chance)
{
    vorn::test::TableBytes table;
    const int fields = chance.Below(7);
    for (int i = 0; i < fields; ++i)
    {
        const char type = "CCCCNNFD"[chance.Below(8)];
        const bool hasDecimals = type == 'N' && chance.Below(6) == 0;
        table.Field("F" + std::to_string(i % 5), type, chance.Below(chance.Below(4) == 0 ? 60 : 12),
                    hasDecimals ? 1 + chance.Below(2) : 0);
    }
    const int records = chance.Below(5) == 0 ? chance.Below(3) : chance.Below(60);
    for (int i = 0; i < records; ++i)
    {
        table.Record(chance.Text(table.RecordLength() - 1), chance.Below(4) == 0 ? '*' : ' ');
    }
    if (chance.Below(5) == 0)
    {
        table.StateCount(static_cast<unsigned long>(chance.Below(80)));
    }
    return table.Bytes() + chance.Text(chance.Below(9));
}

/// A table and its model, changed by the same steps.
class Pair
{
public:
    Pair(const ScratchFolder& folder, Chance& chance) : m_folder(folder), m_chance(chance), m_model(InventTable(chance))
    {
        folder.Write("t.dbf", m_model.Bytes());
        EXPECT_EQ(1, m_table.Open(folder.File("t.dbf").c_str(), CFile::modeReadWrite));
        EXPECT_EQ(static_cast<int>(m_model.Fields().size()), m_table.NumFields());
        EXPECT_EQ(m_model.Count(), m_table.NumRecords());
    }

    void Step()
    {
        using Action = void (Pair::*)();
        static constexpr Action kActions[] = {&Pair::Read,   &Pair::ReadOn, &Pair::ReadOn,       &Pair::ReadOn,
                                              &Pair::Next,   &Pair::Find,   &Pair::Remember,     &Pair::Change,
                                              &Pair::Delete, &Pair::Write,  &Pair::SetReadAhead, &Pair::SetKey};
        (this->*kActions[m_chance.Below(static_cast<int>(std::size(kActions)))])();
        ASSERT_EQ(m_model.Current(), m_table.CurRecIndex());
        CompareValues();
    }

    void CompareFiles()
    {
        m_table.Close();
        EXPECT_EQ(m_model.Bytes(), m_folder.Read("t.dbf"));
    }

private:
    int SomeField()
    {
        return m_model.Fields().empty() ? -1 : m_chance.Below(static_cast<int>(m_model.Fields().size()));
    }

    void CompareValues()
    {
        for (int i = 0; m_model.HasRecord() && i < m_table.NumFields(); ++i)
        {
            m_table.GetFieldValue(i, m_value);
            const std::string value(m_value, static_cast<std::size_t>(m_value.GetLength()));
            ASSERT_EQ(m_model.Value(i), value) << "field " << i << " of record " << m_model.Current();
            ASSERT_TRUE(m_value == m_table.GetFieldValue(i));
        }
    }

    void Read()
    {
        const int index = m_chance.Below(m_model.Count() + 4) - 2;
        EXPECT_EQ(m_model.ReadRecord(index) ? 1 : 0, m_table.ReadRecord(index)) << index;
    }
    void ReadOn()
    {
        EXPECT_EQ(m_model.ReadRecord(-1) ? 1 : 0, m_table.ReadRecord(-1));
    }
    void Next()
    {
        EXPECT_EQ(m_model.NextRecord() ? 1 : 0, m_table.NextRecord());
    }
    void Find()
    {
        const int field = SomeField();
        const std::string value =
            m_model.HasRecord() && field >= 0 && m_chance.Below(2) == 0 ? m_model.Value(field) : m_chance.Text(1);
        const int caseSensitive = m_chance.Below(2);
        EXPECT_EQ(m_model.Query(field, value.c_str(), caseSensitive != 0) ? 1 : 0, // values may hold zeros
                  m_table.Query(field, value.c_str(), caseSensitive));
    }
    void Remember()
    {
        m_table.SetNextRecordParams("no such field", "", 0);
        m_model.Query(-1, "", false);
    }
    void Change()
    {
        const int field = SomeField();
        if (m_model.HasRecord() && field >= 0)
        {
            const std::string value = m_chance.Text(m_chance.Below(20));
            m_model.SetValue(field, value);
            m_table.SetFieldValue(field, value.c_str());
        }
    }
    void Delete()
    {
        if (m_model.HasRecord())
        {
            m_model.DeleteRecord();
            m_table.DeleteRecord();
        }
    }
    /// Over any record or behind the last, but not over those read ahead: a caller who writes there reads them again.
    void Write()
    {
        if (!m_model.HasRecord())
        {
            return;
        }
        const int index = m_chance.Below(m_model.Count() + 1);
        m_table.FP()->Seek(m_table.HeaderSize() + LONGLONG{m_table.RecordLength()} * index, CFile::begin);
        EXPECT_EQ(1, m_table.WriteRecord(nullptr));
        m_model.WriteRecordAt(index);
    }
    void SetReadAhead()
    {
        m_table.SetBufferSize(m_chance.Below(3) == 0 ? 0 : m_chance.Below(40));
    }
    void SetKey()
    {
        const std::string key = m_chance.Below(3) == 0 ? std::string(1, '\x01') : std::string();
        m_model.SetKey(key);
        m_table.SetDecodeString(key.c_str(), static_cast<int>(key.size()));
    }

    const ScratchFolder& m_folder;
    Chance& m_chance;
    TableModel m_model;
    CDBFFile m_table{0};
    CString m_value;
};

TEST(TableModel, EveryStepDoesToTheTableWhatItDoesToTheModel)
{
    const ScratchFolder folder;
    for (unsigned seed = 1; seed <= 150; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Chance chance(seed);
        Pair pair(folder, chance);
        for (int step = 0; step < 100 && !testing::Test::HasFailure(); ++step)
        {
            SCOPED_TRACE("step " + std::to_string(step));
            pair.Step();
        }
        pair.CompareFiles();
        ASSERT_FALSE(testing::Test::HasFailure());
    }
}

} // namespace
