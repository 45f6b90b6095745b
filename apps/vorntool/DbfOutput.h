#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace vorn::tool
{

/// Where long results go, piece by piece: standard output, or a file that is there whole or not at all.
class DbfOutput
{
public:
    /// Standard output.
    DbfOutput() = default;

    /// A file (UTF-8 name); a ToolFailure when it exists and may not be replaced.
    DbfOutput(const std::string& name, bool mayReplace);

    /// What was not finished goes.
    ~DbfOutput();
    DbfOutput(const DbfOutput&) = delete;
    DbfOutput& operator=(const DbfOutput&) = delete;

    /// Takes text; it is empty afterwards, or waits in it for more. To be called between lines.
    void Take(std::string& text);

    /// Writes what waits; a file takes its place.
    void Finish(std::string& text);

private:
    void Write(const std::string& text);

    std::string m_name;
    std::filesystem::path m_path;
    std::filesystem::path m_unfinished;
    std::ofstream m_file;
};

/// A path from a UTF-8 name.
std::filesystem::path PathFromUtf8(const std::string& name);

/// A name beside @p path that no file has, with the same ending.
std::filesystem::path UnusedBeside(const std::filesystem::path& path);

/// Moves a file over another one, in one step.
/// @return false when the system refused it
bool MoveOver(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace vorn::tool
