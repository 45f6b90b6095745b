#include "files/core/FieldNames.h"

#include "framework/core/AsciiText.h"

#include <algorithm>
#include <cstring>

namespace vorn
{
namespace
{
bool IsSameName(std::string_view first, std::string_view second)
{
    return std::equal(first.begin(), first.end(), second.begin(), second.end(),
                      [](char a, char b)
                      {
                          return ToLowerAscii(a) == ToLowerAscii(b);
                      });
}
} // namespace

int FindField(const std::vector<TableField>& fields, std::string_view name)
{
    const std::string_view asked = name.substr(0, kFieldNameSize);
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [asked](const TableField& field)
                                    {
                                        return IsSameName(field.name, asked);
                                    });
    return found != fields.end() ? static_cast<int>(found - fields.begin()) : -1;
}

int FieldNames::Find(const std::vector<TableField>& fields, const char* name)
{
    if (name == nullptr)
        return -1;
    if (m_field >= 0 && std::strncmp(name, m_name, kFieldNameSize) == 0)
        return m_field;
    m_field = FindField(fields, name);
    std::strncpy(m_name, name, kFieldNameSize);
    return m_field;
}
} // namespace vorn
