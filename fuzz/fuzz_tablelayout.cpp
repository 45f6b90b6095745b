#include "apps/vorntool/core/DbfColumns.h"
#include "apps/vorntool/core/DbfGrid.h"
#include "apps/vorntool/core/DbfLayout.h"
#include "apps/vorntool/core/Utf8.h"

#include <cstdlib>

namespace
{

void Require(bool holds)
{
    if (!holds)
    {
        std::abort();
    }
}

void CheckLayout(std::span<const std::uint8_t> bytes)
{
    const vorn::tool::DbfLayout layout = vorn::tool::ReadDbfLayout(bytes);
    Require(layout.fields.size() * vorn::tool::kDbfDescriptorSize <= bytes.size());
    Require(vorn::tool::HeldRecords(layout, bytes.size()) <= bytes.size());
    for (const vorn::tool::DbfField& field : layout.fields)
    {
        const int usable = vorn::tool::UsableLength(field, layout.recordLength);
        Require(usable >= 0 && (usable == 0 || field.offset + usable <= layout.recordLength));
    }
}

// A list that is taken makes a table: what fits a column fills no more than its length.
void CheckColumns(std::string_view text)
{
    std::string reason;
    const auto columns = vorn::tool::ParseColumns(text, reason);
    Require(columns.has_value() == reason.empty());
    vorn::tool::DbfColumnFacts facts;
    facts.Add(text);
    const vorn::tool::DbfColumn found = facts.Column("X");
    if (found.type != 'M' && vorn::tool::ReasonAgainst(found.type, found.length, text).empty())
    {
        Require(vorn::tool::Placed(found.type, found.length, text).size() <= static_cast<std::size_t>(found.length));
    }
}

} // namespace

/// Any bytes as a table's header, as a list of columns and as a value to be shown.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    CheckLayout({data, size});
    CheckColumns(text);
    Require(vorn::tool::CharacterCount(vorn::tool::Shown(vorn::tool::ValidUtf8(text))) <= vorn::tool::DbfGrid::kWidest);
    return 0;
}
