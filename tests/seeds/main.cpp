#include "tests/seeds/PictureSeeds.h"
#include "tests/seeds/TableSeeds.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{

namespace fs = std::filesystem;

void Write(const fs::path& path, const std::string& bytes)
{
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

bool Holds(const fs::path& path, const std::string& bytes)
{
    std::ifstream file(path, std::ios::binary);
    return file && std::string(std::istreambuf_iterator<char>(file), {}) == bytes;
}

} // namespace

/// `fuzz_seeds write|check FOLDER`: writes the generated inputs of the fuzz targets below the folder, or tells which of
/// those that are kept there differ (status 1).
int main(int argc, char** argv)
{
    const bool write = argc == 3 && std::strcmp(argv[1], "write") == 0;
    if (!write && (argc != 3 || std::strcmp(argv[1], "check") != 0))
    {
        std::fputs("fuzz_seeds write|check FOLDER\n", stderr);
        return 2;
    }
    int differing = 0;
    std::map<std::string, std::string> seeds = vorn::test::TableSeeds();
    seeds.merge(vorn::test::PictureSeeds());
    for (const auto& [name, bytes] : seeds)
    {
        const fs::path path = fs::path(argv[2]) / name;
        if (write)
        {
            Write(path, bytes);
        }
        else if (!Holds(path, bytes))
        {
            std::printf("%s is not what the generator makes\n", path.string().c_str());
            ++differing;
        }
    }
    return differing == 0 ? 0 : 1;
}
