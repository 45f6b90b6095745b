#include "config/core/IniTable.h"
#include "config/core/NumberText.h"
#include "config/core/StoredValue.h"

#include <cstdlib>

/// Any block of profile text: every entry found comes from the block, and its numbers are read without harm.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view block(reinterpret_cast<const char*>(data), size);
    vorn::IniTable table;
    for (const std::string_view section : vorn::BlockTexts(block))
    {
        vorn::AddSection(table, section, block);
        vorn::LeadingNumber(section);
        vorn::StoredNumber(section, -1);
        vorn::DigitsOnly(section);
        if (table.size() > 1000)
        {
            break;
        }
    }
    for (const auto& [name, value] : table)
    {
        if (block.find(value) == std::string_view::npos || name.find('|') == std::string::npos)
        {
            std::abort();
        }
    }
    for (std::uint32_t type = 0; type < 12; ++type)
    {
        const auto bytes = std::as_bytes(std::span(data, size));
        if (vorn::StoredAsText(type, bytes).size() > size && type != vorn::kStoredNumber)
        {
            std::abort();
        }
        vorn::StoredAsNumber(type, bytes, 0);
    }
    return 0;
}
