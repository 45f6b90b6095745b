#include "apps/vorntool/DbfOutput.h"

#include "apps/vorntool/StandardStreams.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"

namespace vorn::tool
{

namespace
{

constexpr std::size_t kPiece = 1u << 20;

bool Exists(const std::filesystem::path& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

} // namespace

std::filesystem::path PathFromUtf8(const std::string& name)
{
    return WideFromUtf8(name);
}

std::filesystem::path UnusedBeside(const std::filesystem::path& path)
{
    for (unsigned number = GetCurrentProcessId();; ++number)
    {
        std::filesystem::path unused = path;
        unused.replace_filename("~vorn" + std::to_string(number) + path.extension().string());
        if (!Exists(unused))
        {
            return unused;
        }
    }
}

bool MoveOver(const std::filesystem::path& from, const std::filesystem::path& to)
{
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE;
}

DbfOutput::DbfOutput(const std::string& name, bool mayReplace)
    : m_name(name), m_path(PathFromUtf8(name)), m_unfinished(UnusedBeside(m_path))
{
    if (name.empty())
    {
        throw ToolWrongUse("'' cannot be the name of a file");
    }
    if (Exists(m_path) && !mayReplace)
    {
        throw ToolFailure(Quoted(name) + " exists; --force replaces it");
    }
    m_file.open(m_unfinished, std::ios::binary);
    if (!m_file)
    {
        throw ToolFailure(Quoted(name) + " cannot be written there");
    }
}

DbfOutput::~DbfOutput()
{
    if (!m_unfinished.empty())
    {
        m_file.close();
        DeleteFileW(m_unfinished.c_str());
    }
}

void DbfOutput::Take(std::string& text)
{
    if (text.size() >= kPiece)
    {
        Write(text);
        text.clear();
    }
}

void DbfOutput::Finish(std::string& text)
{
    Write(text);
    text.clear();
    if (m_name.empty())
    {
        return;
    }
    m_file.close();
    if (!m_file || !MoveOver(m_unfinished, m_path))
    {
        throw ToolFailure(Quoted(m_name) + " could not be written");
    }
    m_unfinished.clear();
}

void DbfOutput::Write(const std::string& text)
{
    if (m_name.empty() && !WriteToStandardStreams({text, ""}))
    {
        throw ToolFailure("the output could not be written");
    }
    if (!m_name.empty() && !m_file.write(text.data(), static_cast<std::streamsize>(text.size())))
    {
        throw ToolFailure(Quoted(m_name) + " could not be written");
    }
}

} // namespace vorn::tool
