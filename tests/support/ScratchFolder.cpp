#include "tests/support/ScratchFolder.h"
#include "tests/support/CurrentTest.h"
#include "tests/support/ProcessId.h"

#include <fstream>
#include <iterator>

namespace vorn::test
{

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder()
    : m_path(fs::temp_directory_path() / ("vorn-" + CurrentTestFileName() + "-" + std::to_string(ProcessId())))
{
    fs::remove_all(m_path);
    fs::create_directories(m_path);
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored; // a file that the test left open stays behind
    fs::remove_all(m_path, ignored);
}

std::string ScratchFolder::File(std::string_view name) const
{
    return (m_path / name).make_preferred().string();
}

std::string ScratchFolder::Write(std::string_view name, std::string_view bytes) const
{
    std::ofstream file(File(name), std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return File(name);
}

std::string ScratchFolder::Read(std::string_view name) const
{
    return ReadWholeFile(File(name));
}

std::string ReadWholeFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace vorn::test
