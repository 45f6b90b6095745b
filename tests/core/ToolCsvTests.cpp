#include "apps/vorntool/core/CsvReader.h"
#include "apps/vorntool/core/CsvWriter.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace vorn::tool;

namespace
{

using Rows = std::vector<std::vector<std::string>>;

// Hands a text over in pieces of a given size.
class Pieces
{
public:
    Pieces(std::string text, std::size_t size) : m_text(std::move(text)), m_size(size)
    {
    }

    std::size_t operator()(std::span<char> room)
    {
        const std::size_t count = std::min({m_size, room.size(), m_text.size() - m_next});
        std::memcpy(room.data(), m_text.data() + m_next, count);
        m_next += count;
        return count;
    }

private:
    std::string m_text;
    std::size_t m_size;
    std::size_t m_next = 0;
};

struct Parsed
{
    Rows rows;
    std::string error;
};

Parsed Parse(const std::string& text, std::size_t piece)
{
    CsvReader reader(Pieces(text, piece));
    Parsed parsed;
    for (std::vector<std::string> row; reader.Next(row);)
    {
        parsed.rows.push_back(row);
    }
    parsed.error = reader.Error();
    return parsed;
}

// However the text comes in, the rows are the same.
void ExpectRows(const std::string& text, const Rows& rows)
{
    for (const std::size_t piece : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{100000}})
    {
        const Parsed parsed = Parse(text, piece);
        EXPECT_EQ(parsed.rows, rows) << "in pieces of " << piece;
        EXPECT_EQ(parsed.error, "") << "in pieces of " << piece;
    }
}

void ExpectError(const std::string& text, const Rows& rows, const std::string& error)
{
    for (const std::size_t piece : {std::size_t{1}, std::size_t{100000}})
    {
        const Parsed parsed = Parse(text, piece);
        EXPECT_EQ(parsed.rows, rows);
        EXPECT_EQ(parsed.error, error);
    }
}

std::string Written(const Rows& rows, const char* lineEnd = "\r\n")
{
    CsvWriter csv(lineEnd);
    for (const std::vector<std::string>& row : rows)
    {
        for (const std::string& value : row)
        {
            csv.Value(value);
        }
        csv.EndRow();
    }
    return csv.Text();
}

} // namespace

TEST(CsvReader, ReadsRowsWhateverTheirLineEnd)
{
    ExpectRows("a,b\r\nc,d\r\n", {{"a", "b"}, {"c", "d"}});
    ExpectRows("a,b\nc,d\n", {{"a", "b"}, {"c", "d"}});
    ExpectRows("a,b\rc,d\r", {{"a", "b"}, {"c", "d"}});
    ExpectRows("a,b\r\nc,d", {{"a", "b"}, {"c", "d"}});
}

TEST(CsvReader, KeepsEmptyValuesAndBlanks)
{
    ExpectRows(",\r\n, x ,\r\n", {{"", ""}, {"", " x ", ""}});
    ExpectRows("a,", {{"a", ""}});
    ExpectRows("\"\"\r\n", {{""}});
}

TEST(CsvReader, PassesOverEmptyLines)
{
    ExpectRows("\r\n\n\ra\n\n\nb\n\n", {{"a"}, {"b"}});
    ExpectRows("", {});
    ExpectRows("\r\n", {});
}

TEST(CsvReader, TakesQuotedValuesLiterally)
{
    ExpectRows("\"a,b\",\"c\r\nd\",\"e\"\"f\"\r\n\"\"\"\",g", {{"a,b", "c\r\nd", "e\"f"}, {"\"", "g"}});
    ExpectRows("\"\r\",\"\n\"", {{"\r", "\n"}});
    ExpectRows("\"\"\"\"\"\"", {{"\"\""}});
}

TEST(CsvReader, KeepsZeroBytesAndForeignBytes)
{
    ExpectRows(std::string("a\0b,\xFF\x80", 6), {{std::string("a\0b", 3), "\xFF\x80"}});
}

TEST(CsvReader, PassesOverAByteOrderMarkAtTheBeginningOnly)
{
    ExpectRows("\xEF\xBB\xBF"
               "a,b\n\xEF\xBB\xBF"
               "c,d",
               {{"a", "b"},
                {"\xEF\xBB\xBF"
                 "c",
                 "d"}});
    ExpectRows("\xEF\xBB\xBF", {});
    ExpectRows("\xEF\xBB", {{"\xEF\xBB"}});
    ExpectRows("\xEF,a", {{"\xEF", "a"}});
    ExpectRows("\xEF\xBB\xBF\"a\"", {{"a"}});
}

TEST(CsvReader, NamesTheLineOfWhatIsNoCsv)
{
    ExpectError("a\nb\"c\nd\n", {{"a"}}, "line 2 has a quote within a value that does not begin with one");
    ExpectError("a\n\"b\nc\"x\n", {{"a"}}, "line 3 has text behind a closing quote");
    ExpectError("a\r\n\"b\r\nc\r\n", {{"a"}}, "line 2 has a quote that is never closed");
    ExpectError("\"", {}, "line 1 has a quote that is never closed");
    ExpectError("a\rb\r\"c\"\"", {{"a"}, {"b"}}, "line 3 has a quote that is never closed");
}

TEST(CsvReader, StaysAtAnError)
{
    CsvReader reader(Pieces("a\"\nb\n", 100));
    std::vector<std::string> row;
    EXPECT_FALSE(reader.Next(row));
    EXPECT_FALSE(reader.Next(row));
    EXPECT_EQ(reader.Error(), "line 1 has a quote within a value that does not begin with one");
}

TEST(CsvReader, CountsLinesWithinQuotedValues)
{
    CsvReader reader(Pieces("\n\"a\r\nb\rc\nd\",\"\"\r\ne\nf", 1));
    std::vector<std::string> row;
    std::vector<std::size_t> lines;
    while (reader.Next(row))
    {
        lines.push_back(reader.Line());
    }
    EXPECT_EQ(lines, (std::vector<std::size_t>{2, 6, 7}));
}

TEST(CsvReader, ReadsValuesLongerThanItsBuffer)
{
    const std::string longText(200000, 'x');
    ExpectRows(longText + ",\"" + longText + "\"\n", {{longText, longText}});
}

TEST(CsvWriter, QuotesOnlyWhatNeedsIt)
{
    EXPECT_EQ(Written({{"a", " b ", "", "c;d", "\t"}}), "a, b ,,c;d,\t\r\n");
    EXPECT_EQ(Written({{"a,b", "c\"d", "e\rf", "g\nh"}}), "\"a,b\",\"c\"\"d\",\"e\rf\",\"g\nh\"\r\n");
    EXPECT_EQ(Written({{"a"}, {"b"}}, "\n"), "a\nb\n");
}

TEST(CsvWriter, KeepsApartWhatWouldReadAsSomethingElse)
{
    EXPECT_EQ(Written({{""}, {"", ""}}), "\"\"\r\n,\r\n");
    EXPECT_EQ(Written({{"\xEF\xBB\xBF"}}), "\"\xEF\xBB\xBF\"\r\n");
}

TEST(CsvWriter, WhatItWritesReadsBack)
{
    const Rows rows = {{""}, {"a,", "\"", "\r\n", "\xEF\xBB\xBF"}, {" ", "\"\"", std::string(1, '\0')}};
    ExpectRows(Written(rows), rows);
    ExpectRows(Written(rows, "\n"), rows);
}
