#include "apps/vorntool/core/CsvReader.h"
#include "apps/vorntool/core/CsvWriter.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace
{

using Rows = std::vector<std::vector<std::string>>;

struct Parsed
{
    Rows rows;
    bool isWhole;
};

Parsed Parse(std::string_view text, std::size_t piece)
{
    vorn::tool::CsvReader reader(
        [&](std::span<char> room)
        {
            const std::size_t count = std::min({piece, room.size(), text.size()});
            std::memcpy(room.data(), text.data(), count);
            text.remove_prefix(count);
            return count;
        });
    Parsed parsed = {{}, false};
    for (std::vector<std::string> row; reader.Next(row);)
    {
        parsed.rows.push_back(row);
    }
    parsed.isWhole = reader.Error().empty();
    return parsed;
}

std::string Written(const Rows& rows)
{
    vorn::tool::CsvWriter csv;
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

void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

} // namespace

/// Any bytes: the rows do not depend on the pieces in which they come, and what is written of them reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const Parsed whole = Parse(text, size + 1);
    const Parsed pieces = Parse(text, 1);
    Require(whole.rows == pieces.rows && whole.isWhole == pieces.isWhole);
    const Parsed again = Parse(Written(whole.rows), 7);
    Require(again.isWhole && again.rows == whole.rows);
    return 0;
}
