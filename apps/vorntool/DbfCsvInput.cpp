#include "apps/vorntool/DbfCsvInput.h"

#include "apps/vorntool/DbfOutput.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/DbfGrid.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

std::ifstream Opened(const std::string& name)
{
    const DWORD attributes = GetFileAttributesW(WideFromUtf8(name).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
    {
        throw ToolFailure("there is no file " + Quoted(name));
    }
    std::ifstream file(PathFromUtf8(name), std::ios::binary | std::ios::ate);
    if (!file)
    {
        throw ToolFailure(Quoted(name) + " could not be opened");
    }
    return file;
}

bool IsPlain(const std::string& value)
{
    return std::all_of(value.begin(), value.end(),
                       [](char c)
                       {
                           return static_cast<unsigned char>(c) < 0x80;
                       });
}

} // namespace

DbfCsvInput::DbfCsvInput(const std::string& name)
    : m_name(name), m_file(Opened(name)), m_size(static_cast<std::uint64_t>(m_file.tellg())),
      m_reader(
          [this](std::span<char> room)
          {
              m_file.read(room.data(), static_cast<std::streamsize>(room.size()));
              const auto count = static_cast<std::size_t>(m_file.gcount());
              m_read += count;
              return count;
          })
{
    m_file.seekg(0);
    if (!NextRow(m_headings))
    {
        throw ToolFailure(Quoted(name) + " is empty: a first line with names is missing");
    }
}

bool DbfCsvInput::Next()
{
    if (!NextRow(m_values))
    {
        return false;
    }
    if (m_values.size() != m_headings.size())
    {
        Fail("has " + std::to_string(m_values.size()) + " values, the first line " + std::to_string(m_headings.size()));
    }
    for (std::string& value : m_values)
    {
        if (!IsPlain(value))
        {
            ToLibraryText(value);
        }
    }
    return true;
}

bool DbfCsvInput::NextRow(std::vector<std::string>& row)
{
    const bool found = m_reader.Next(row);
    if (!m_reader.Error().empty())
    {
        throw ToolFailure(Quoted(m_name) + ": " + m_reader.Error());
    }
    if (m_file.bad())
    {
        throw ToolFailure(Quoted(m_name) + " could not be read");
    }
    return found;
}

void DbfCsvInput::ToLibraryText(std::string& value)
{
    const std::optional<CString> text = LibraryFromUtf8(value);
    if (!text)
    {
        Fail("has characters that the table's code page has not: " + Quoted(Shown(value)));
    }
    value = text->GetString();
}

void DbfCsvInput::Fail(const std::string& reason) const
{
    throw ToolFailure(Quoted(m_name) + ": line " + std::to_string(m_reader.Line()) + " " + reason);
}

} // namespace vorn::tool
