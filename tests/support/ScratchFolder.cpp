#include "tests/support/ScratchFolder.h"
#include "tests/support/CurrentTest.h"
#include "tests/support/ProcessId.h"

#include <fstream>
#include <iterator>

namespace vorn::test
{

namespace fs = std::filesystem;

namespace
{

/// A folder of that name; of a longer one where files of another run, of a process with the same number, are still
/// there and cannot be removed: programs that were linked there cannot, while they run elsewhere.
fs::path MadeEmpty(const fs::path& wanted)
{
    constexpr int kMost = 100;
    fs::path path = wanted;
    for (int number = 2; number <= kMost; ++number)
    {
        std::error_code error;
        fs::remove_all(path, error);
        if (!error && fs::create_directories(path, error))
            return path;
        path = wanted;
        path += '-' + std::to_string(number);
    }
    fs::create_directories(path);
    return path;
}

} // namespace

ScratchFolder::ScratchFolder()
    : m_path(
          MadeEmpty(fs::temp_directory_path() / ("vorn-" + CurrentTestFileName() + "-" + std::to_string(ProcessId()))))
{
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
